// A fresh settings folder for one test.
#pragma once

#include "platform/store/SettingsDefaults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <unistd.h>

namespace vorbel {

class SettingsFolder : public testing::Test {
protected:
    SettingsFolder() { std::filesystem::remove_all(folder); }
    ~SettingsFolder() override { std::filesystem::remove_all(folder); }

    static void write(const std::filesystem::path& file, const std::string& content) {
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
    }

    static std::string contentOf(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("vorbel-store-" + std::to_string(getpid()));
};

} // namespace vorbel
