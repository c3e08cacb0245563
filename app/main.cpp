#include "app/Application.h"
#include "app/command_line/CommandLine.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    using vorbel::CommandLine;
    constexpr int wrongUsage = 2;
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    const CommandLine commandLine = CommandLine::parse(arguments.subspan(argc > 0 ? 1 : 0));
    switch (commandLine.action) {
    case CommandLine::Action::showHelp:
        std::fputs(CommandLine::helpText().c_str(), stdout);
        return EXIT_SUCCESS;
    case CommandLine::Action::showVersion:
        std::fputs(CommandLine::versionText().c_str(), stdout);
        return EXIT_SUCCESS;
    case CommandLine::Action::complain:
        std::fprintf(stderr, "vorbel: %s\n", commandLine.complaint.c_str());
        return wrongUsage;
    default:
        return vorbel::runApplication(argc, argv, commandLine);
    }
}
