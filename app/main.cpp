#include "app/Application.h"
#include "app/command_line/CommandLine.h"
#include "app/command_line/Output.h"

#include <cstdio>
#include <cstdlib>

namespace {

int print(const std::string& text) {
    return vorbel::isWritten(text, stdout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    using vorbel::CommandLine;
    constexpr int wrongUsage = 2;
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const CommandLine commandLine = CommandLine::parse(arguments.subspan(argc > 0 ? 1 : 0));
    switch (commandLine.action) {
    case CommandLine::Action::showHelp:
        return print(CommandLine::helpText());
    case CommandLine::Action::showVersion:
        return print(CommandLine::versionText());
    case CommandLine::Action::complain:
        std::fprintf(stderr, "vorbel: %s\n", commandLine.complaint.c_str());
        return wrongUsage;
    default:
        return vorbel::runApplication(argc, argv, commandLine);
    }
}
