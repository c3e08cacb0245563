#include "platform/audio/AdjustableAudio.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vorbel {

class AdjustableAudio::Sound final : public SystemSound {
public:
    Sound(AdjustableAudio& owner, std::string_view name, std::unique_ptr<SystemSound> sound)
        : owner_(owner), name_(name), sound_(std::move(sound)) {
        owner_.sounds_.push_back(this);
        follow();
    }
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;
    ~Sound() override { std::erase(owner_.sounds_, this); }

    void play() override {
        sound_->play();
        owner_.played_.tell(name_);
    }
    void stop() override { sound_->stop(); }
    void setVolume(float volume) override {
        volume_ = volume;
        follow();
    }
    void setPan(float pan) override {
        pan_ = pan;
        follow();
    }
    void follow() {
        sound_->setVolume(volume_ * owner_.soundVolume_);
        sound_->setPan(owner_.soundsArePlaced_ ? pan_ : 0);
    }

private:
    AdjustableAudio& owner_;
    std::string name_;
    std::unique_ptr<SystemSound> sound_;
    float volume_ = 1;
    float pan_ = 0;
};

class AdjustableAudio::Player final : public AudioPlayer {
public:
    Player(AdjustableAudio& owner, std::unique_ptr<AudioPlayer> player)
        : owner_(owner), player_(std::move(player)) {
        owner_.players_.push_back(this);
        follow();
    }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    ~Player() override { std::erase(owner_.players_, this); }

    void play() override { player_->play(); }
    void setLoopCount(int count) override { player_->setLoopCount(count); }
    void setVolume(float volume) override {
        volume_ = volume;
        follow();
    }
    void follow() { player_->setVolume(volume_ * owner_.playerVolume_); }

private:
    AdjustableAudio& owner_;
    std::unique_ptr<AudioPlayer> player_;
    float volume_ = 1;
};

class AdjustableAudio::Tone final : public vorbel::Tone {
public:
    Tone(AdjustableAudio& owner, std::unique_ptr<vorbel::Tone> tone) : owner_(owner), tone_(std::move(tone)) {
        owner_.tones_.push_back(this);
        follow();
    }
    Tone(const Tone&) = delete;
    Tone& operator=(const Tone&) = delete;
    ~Tone() override { std::erase(owner_.tones_, this); }

    void sound(double pitch, double pan) override { tone_->sound(pitch, pan); }
    void silence() override { tone_->silence(); }
    void setVolume(float volume) override {
        volume_ = volume;
        follow();
    }
    void follow() { tone_->setVolume(volume_ * owner_.soundVolume_); }

private:
    AdjustableAudio& owner_;
    std::unique_ptr<vorbel::Tone> tone_;
    float volume_ = 1;
};

std::unique_ptr<SystemSound> AdjustableAudio::systemSound(std::string_view name) {
    auto sound = audio_.systemSound(name);
    return sound ? std::make_unique<Sound>(*this, name, std::move(sound)) : nullptr;
}

std::unique_ptr<AudioPlayer> AdjustableAudio::player(const std::filesystem::path& file) {
    auto player = audio_.player(file);
    return player ? std::make_unique<Player>(*this, std::move(player)) : nullptr;
}

std::unique_ptr<vorbel::Tone> AdjustableAudio::tone() {
    auto tone = audio_.tone();
    return tone ? std::make_unique<Tone>(*this, std::move(tone)) : nullptr;
}

void AdjustableAudio::setSoundVolume(float volume) {
    soundVolume_ = volume;
    std::ranges::for_each(sounds_, &Sound::follow);
    std::ranges::for_each(tones_, &Tone::follow);
}

void AdjustableAudio::placeSounds(bool placed) {
    soundsArePlaced_ = placed;
    std::ranges::for_each(sounds_, &Sound::follow);
}

void AdjustableAudio::setPlayerVolume(float volume) {
    playerVolume_ = volume;
    std::ranges::for_each(players_, &Player::follow);
}

} // namespace vorbel
