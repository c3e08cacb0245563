#include "app/options/OptionTable.h"

#include <array>
#include <cstddef>

namespace vorbel {

namespace {

constexpr std::array offOrOn{OptionChoice{0, ""}, OptionChoice{1, ""}};
constexpr std::array paces{OptionChoice{1000, "options.asUsual"}, OptionChoice{500, "½"},
                           OptionChoice{250, "¼"}, OptionChoice{125, "⅛"}, OptionChoice{0, "options.byKeys"}};
constexpr std::string_view seconds = "options.seconds.format"; // of so many milliseconds
constexpr std::array waits{OptionChoice{500, seconds},  OptionChoice{1000, seconds},
                           OptionChoice{1500, seconds}, OptionChoice{2000, seconds},
                           OptionChoice{3000, seconds}, OptionChoice{4000, seconds}};
constexpr std::array rests{OptionChoice{0, seconds}, OptionChoice{250, seconds}, OptionChoice{500, seconds},
                           OptionChoice{1000, seconds}, OptionChoice{1500, seconds}};
constexpr std::array volumes{OptionChoice{0, "0"}, OptionChoice{25, "25"}, OptionChoice{50, "50"},
                             OptionChoice{75, "75"}, OptionChoice{100, "100"}};
constexpr std::array sizes{OptionChoice{100, "100"}, OptionChoice{125, "125"}, OptionChoice{150, "150"},
                           OptionChoice{175, "175"}, OptionChoice{200, "200"}};

constexpr auto rows = std::to_array<OptionRow>({
    {Option::powerPace, "powerPace", "options.throw", "options.powerPace", "options.powerPace.help", paces,
     1000},
    {Option::fineAim, "fineAim", "options.throw", "options.fineAim", "options.fineAim.help", offOrOn, 0,
     GameAction::takeBack},
    {Option::switchOn, "switchOn", "options.oneSwitch", "options.switchOn", "options.switchOn.help", offOrOn,
     0},
    {Option::switchPace, "switchPace", "options.oneSwitch", "options.switchPace", "options.switchPace.help",
     waits, 1500},
    {Option::switchAsks, "switchAsks", "options.oneSwitch", "options.switchAsks", "options.switchAsks.help",
     offOrOn, 0},
    {Option::switchRest, "switchRest", "options.oneSwitch", "options.switchRest", "options.switchRest.help",
     rests, 500},
    {Option::switchKey,
     "switchKey",
     "options.oneSwitch",
     "options.switchKey",
     "options.switchKey.help",
     {},
     0},
    {Option::courtButtons, "courtButtons", "options.devices", "options.courtButtons",
     "options.courtButtons.help", offOrOn, 0},
    {Option::controller, "controller", "options.devices", "options.controller", "options.controller.help",
     offOrOn, 1}, // whoever presses a button of one has turned it on
    {Option::speech, "speech", "options.voice", "options.speech", "options.speech.help", offOrOn, 0,
     GameAction::everything},
    {Option::tones, "tones", "options.voice", "options.tones", "options.tones.help", offOrOn, 0},
    {Option::hitPlaces, "hitPlaces", "options.voice", "options.hitPlaces", "options.hitPlaces.help", offOrOn,
     0},
    {Option::textSize, "textSize", "options.sight", "options.textSize", "options.textSize.help", sizes, 100},
    {Option::ballMarks, "ballMarks", "options.sight", "options.ballMarks", "options.ballMarks.help", offOrOn,
     0},
    {Option::ballOutlines, "ballOutlines", "options.sight", "options.ballOutlines",
     "options.ballOutlines.help", offOrOn, 0},
    {Option::clearPointer, "clearPointer", "options.sight", "options.clearPointer",
     "options.clearPointer.help", offOrOn, 0},
    {Option::solidPanels, "solidPanels", "options.sight", "options.solidPanels", "options.solidPanels.help",
     offOrOn, 0},
    {Option::mute, "mute", "options.sound", "options.mute", "options.mute.help", offOrOn, 0,
     GameAction::mute},
    {Option::crowdVolume, "crowdVolume", "options.sound", "options.crowdVolume", "options.crowdVolume.help",
     volumes, 100},
    {Option::effectVolume, "effectVolume", "options.sound", "options.effectVolume",
     "options.effectVolume.help", volumes, 100},
    {Option::soundNotes, "soundNotes", "options.sound", "options.soundNotes", "options.soundNotes.help",
     offOrOn, 0},
    {Option::menuPauses, "menuPauses", "options.rest", "options.menuPauses", "options.menuPauses.help",
     offOrOn, 0},
    {Option::askToLeave, "askToLeave", "options.rest", "options.askToLeave", "options.askToLeave.help",
     offOrOn, 0},
});

consteval bool standInTheirPlaces() {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].option) != i) {
            return false;
        }
    }
    return true;
}
static_assert(standInTheirPlaces());

} // namespace

std::span<const OptionRow> optionRows() {
    return rows;
}

const OptionRow& rowOf(Option option) {
    return rows[static_cast<std::size_t>(option)];
}

} // namespace vorbel
