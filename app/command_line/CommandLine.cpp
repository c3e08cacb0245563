#include "app/command_line/CommandLine.h"

#include "app/command_line/Version.h"

#include <string_view>

namespace vorbel {

namespace {

class Parser {
public:
    explicit Parser(std::span<char* const> arguments) : rest_(arguments) {}

    CommandLine parse() {
        while (!rest_.empty() && result_.action != CommandLine::Action::complain) {
            take(next());
        }
        if (!result_.screenshotsFolder.empty() && result_.action == CommandLine::Action::play) {
            complain("--screenshots needs --demo");
        }
        return result_;
    }

private:
    void take(std::string_view option) {
        using Action = CommandLine::Action;
        if (option == "--help" || option == "-h") {
            result_.action = Action::showHelp;
        } else if (option == "--version") {
            result_.action = Action::showVersion;
        } else if (option == "--demo") {
            result_.action = Action::demonstrate;
        } else if (option == "--reset-options") {
            result_.resetOptions = true;
        } else if (option == "--one-switch") {
            result_.oneSwitch = true;
        } else if (option == "--no-recording") {
            result_.noRecording = true;
        } else if (option == "--replay") {
            result_.action = Action::replay;
            takePath(option, result_.replay);
        } else if (option == "--diagnose") {
            result_.action = Action::diagnose;
        } else if (option == "--verbose") {
            result_.verbose = true;
        } else if (option == "--screenshot") {
            result_.action = Action::takeScreenshot;
            takePath(option, result_.screenshot);
        } else if (option == "--screenshots") {
            takePath(option, result_.screenshotsFolder);
        } else {
            complain("unknown option '" + std::string(option) + "' (--help lists the options)");
        }
    }

    void takePath(std::string_view option, std::filesystem::path& path) {
        if (rest_.empty()) {
            complain(std::string(option) + " needs a path");
        } else {
            path = next();
        }
    }

    std::string_view next() {
        const std::string_view argument = rest_.front();
        rest_ = rest_.subspan(1);
        return argument;
    }

    void complain(std::string complaint) {
        result_.action = CommandLine::Action::complain;
        result_.complaint = std::move(complaint);
    }

    std::span<char* const> rest_;
    CommandLine result_;
};

} // namespace

CommandLine CommandLine::parse(std::span<char* const> arguments) {
    return Parser(arguments).parse();
}

std::string CommandLine::helpText() {
    return R"(VORBEL, a game of boccia.

Usage: vorbel [OPTION]

  --screenshot FILE       draw the arena into a PNG file and exit
  --demo                  let the computer play a match against itself and exit
  --screenshots FOLDER    with --demo: leave a picture of each stage in the folder
  --replay FILE           show a recorded match again; any key ends it
  --no-recording          do not record the matches that are played
  --one-switch            turn on playing with one switch
  --reset-options         start with every option as in a new game
  --diagnose              print what a report of a problem needs: a page about game and machine, and exit
  --verbose               tell on the console what goes into the log, and more
  --version               print the version and exit
  --help                  print this text and exit

Keys: Space aims, locks the power, throws and goes on; the arrow keys aim;
Escape leaves full screen.

Environment:
  VORBEL_RESOURCES        folder with the pictures and sounds
  VORBEL_SPEED            how much faster than real time the game runs, 0.1 to 100
)";
}

std::string CommandLine::versionText() {
    return "vorbel " + std::string(version()) + "\n";
}

} // namespace vorbel
