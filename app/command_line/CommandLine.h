// What the program was asked to do.
#pragma once

#include <filesystem>
#include <span>
#include <string>

namespace vorbel {

struct CommandLine {
    enum class Action {
        play,
        demonstrate,
        replay,
        takeScreenshot,
        diagnose,
        showHelp,
        showVersion,
        complain
    };

    Action action = Action::play;
    bool resetOptions = false;               // before anything else
    bool oneSwitch = false;                  // turns it on, for players who cannot do so themselves
    bool noRecording = false;                // of the matches that are played
    std::filesystem::path replay;            // file to play again, for replay
    std::filesystem::path screenshot;        // file to write, for takeScreenshot
    std::filesystem::path screenshotsFolder; // of a demonstration; empty: no pictures
    bool verbose = false;                    // tell on the console what goes into the log
    std::string complaint;                   // one line without the program's name, for complain

    // The arguments without the program's name.
    [[nodiscard]] static CommandLine parse(std::span<char* const> arguments);

    [[nodiscard]] static std::string helpText();
    [[nodiscard]] static std::string versionText();
};

} // namespace vorbel
