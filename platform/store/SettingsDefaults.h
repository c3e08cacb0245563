// The player's settings on disk: a folder with one small file for each key.
#pragma once

#include "platform/store/ValueDefaults.h"

#include <filesystem>
#include <map>

namespace vorbel {

// One file a key: a file is replaced whole or not at all, so a program that is killed leaves the old value or
// the new one, running games do not touch each other's other keys, and a damaged file costs no other value.
// Values are read from the disk each time, so that games see what the others stored.
//
// Who writes holds `.lock` in the folder meanwhile. A lock whose game was killed is taken over; one that is
// not to be had within 5 s is done without, because a result that is written late is better than none.
//
// What cannot be written (a read-only folder, a full disk) is kept for the session, and tried again with each
// later write and at the end. What reads as no value of the new one's type is set aside before it is replaced.
class SettingsDefaults final : public ValueDefaults {
public:
    // The folder is made when the first value is stored. What killed games left unfinished in it is removed.
    explicit SettingsDefaults(std::filesystem::path folder);
    SettingsDefaults(const SettingsDefaults&) = delete;
    SettingsDefaults& operator=(const SettingsDefaults&) = delete;
    ~SettingsDefaults() override;

    // `vorbel` in the user's own settings folder: $XDG_CONFIG_HOME, else ~/.config.
    [[nodiscard]] static std::filesystem::path userFolder();

    void atomically(const std::function<void()>& change) override;
    void setAside(std::string_view key) override; // as KEY.damaged, KEY.damaged-2 …

private:
    [[nodiscard]] std::optional<DefaultsValue> value(std::string_view key) const override;
    void setValue(std::string_view key, DefaultsValue value) override;

    [[nodiscard]] std::filesystem::path fileOf(std::string_view key) const;
    void removeUnfinished();
    void writePending();

    std::filesystem::path folder_;
    bool locked_ = false;
    std::map<std::string, DefaultsValue, std::less<>> pending_; // not on the disk yet
};

} // namespace vorbel
