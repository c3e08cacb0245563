#include "app/options/SoundNotes.h"

#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"

#include <algorithm>
#include <array>

namespace vorbel {

namespace {

struct NamedSound {
    std::string_view sound; // as the match asks for it
    TextKey name;
};
constexpr std::array names{NamedSound{"Pop", "sound.throw"}, NamedSound{"Tink", "sound.hit"},
                           NamedSound{"Glass", "sound.victory"}};

} // namespace

SoundNotes::SoundNotes(AdjustableAudio& audio, const Options& options, const PlayerSettings& settings,
                       MainQueue& queue)
    : options_(options),
      settings_(settings),
      queue_(queue),
      sounds_(audio.onSound([this](std::string_view sound) { show(sound); })) {}

void SoundNotes::show(std::string_view sound) {
    const auto* const named = std::ranges::find(names, sound, &NamedSound::sound);
    if (named == names.end() || !options_.isOn(Option::soundNotes)) {
        return;
    }
    shown_ = named->name;
    untilGone_ = Lifetime();
    queue_.postAfter(shownFor, untilGone_.whileAlive([this] {
        shown_.reset();
        emit changed();
    }));
    emit changed();
}

QString SoundNotes::note() const {
    return shown_ ? text(*shown_, settings_.selectedLanguage()) : QString();
}

} // namespace vorbel
