#include "platform/resources/Resources.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace vorbel {

namespace fs = std::filesystem;

class ResourcesTest : public testing::Test {
protected:
    ResourcesTest() { fs::create_directories(folder); }
    ~ResourcesTest() override {
        unsetenv("VORBEL_RESOURCES");
        fs::remove_all(folder);
    }
    void make(const fs::path& file) const {
        fs::create_directories((folder / file).parent_path());
        std::ofstream(folder / file) << "content";
    }
    const fs::path folder = // one for each test: several run at once
        fs::path(testing::TempDir()) / ("vorbel-resources-" + std::to_string(::getpid()));
};

TEST_F(ResourcesTest, FilesAreFoundByNameAndExtension) {
    make("crowd.mp3");
    const Resources resources({folder});
    EXPECT_EQ(resources.find("crowd", "mp3"), folder / "crowd.mp3");
    EXPECT_EQ(resources.find("crowd", "wav"), std::nullopt);
    EXPECT_EQ(resources.find("Crowd", "mp3"), std::nullopt);
}

TEST_F(ResourcesTest, TheFirstFolderWins) {
    make("a/Pop.wav");
    make("b/Pop.wav");
    make("b/Tink.wav");
    const Resources resources({folder / "a", folder / "b"});
    EXPECT_EQ(resources.find("Pop", "wav"), folder / "a" / "Pop.wav");
    EXPECT_EQ(resources.find("Tink", "wav"), folder / "b" / "Tink.wav");
}

TEST_F(ResourcesTest, AFolderIsNoResource) {
    fs::create_directories(folder / "crowd.mp3");
    EXPECT_EQ(Resources({folder}).find("crowd", "mp3"), std::nullopt);
}

TEST_F(ResourcesTest, TheyLieBesideTheBuildOrInTheInstallPrefix) {
    make("bin/resources/Logo.png");
    make("share/vorbel/Pop.wav");
    const Resources resources = Resources::forProgram(folder / "bin" / "vorbel");
    EXPECT_EQ(resources.find("Logo", "png"), folder / "bin" / "resources" / "Logo.png");
    EXPECT_EQ(resources.find("Pop", "wav"), folder / "share" / "vorbel" / "Pop.wav");
}

TEST_F(ResourcesTest, TheEnvironmentReplacesTheUsualPlaces) {
    make("bin/resources/Logo.png");
    setenv("VORBEL_RESOURCES", (folder / "elsewhere").c_str(), 1);
    EXPECT_EQ(Resources::forProgram(folder / "bin" / "vorbel").find("Logo", "png"), std::nullopt);
}

} // namespace vorbel
