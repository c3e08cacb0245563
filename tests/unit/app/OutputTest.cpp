// What the program writes, and what it does when there is no room for it.
#include "app/command_line/Output.h"
#include "tests/FullDisk.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include <fstream>
#include <iterator>
#include <memory>

namespace vorbel {

namespace {

namespace fs = std::filesystem;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

class OutputTest : public testing::Test {
protected:
    OutputTest() { picture.fill(Qt::darkGreen); }

    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& file : fs::directory_iterator(folder)) {
            names.push_back(file.path().filename().string());
        }
        return names;
    }

    const QTemporaryDir temporary;
    const fs::path folder = temporary.path().toStdString();
    QImage picture{64, 64, QImage::Format_RGB32};
};

} // namespace

TEST_F(OutputTest, ATextIsWrittenToItsLastByte) {
    const fs::path file = folder / "text";
    EXPECT_TRUE(isWritten("boccia\n", File(std::fopen(file.c_str(), "w"), std::fclose).get()));
    std::ifstream stream(file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), "boccia\n");
}

TEST_F(OutputTest, ATextThatCannotBeWrittenIsAnErrorAtOnce) {
    const File full(std::fopen("/dev/full", "w"), std::fclose);
    EXPECT_FALSE(isWritten("boccia\n", full.get()));
}

TEST_F(OutputTest, APictureIsAFileOfItsOwn) {
    EXPECT_TRUE(isWritten(picture, folder / "arena.png"));
    EXPECT_EQ(files(), std::vector<std::string>{"arena.png"});
    EXPECT_EQ(QImage(QString::fromStdString((folder / "arena.png").string()), "PNG").size(), picture.size());
}

TEST_F(OutputTest, OnAFullDiskNoEmptyPictureIsLeft) {
    const FullDisk full(0);
    EXPECT_FALSE(isWritten(picture, folder / "arena.png"));
    EXPECT_EQ(files(), std::vector<std::string>());
}

TEST_F(OutputTest, OnAFullDiskTheOldPictureStays) {
    EXPECT_TRUE(isWritten(picture, folder / "arena.png"));
    const auto size = fs::file_size(folder / "arena.png");
    const FullDisk full(0);
    EXPECT_FALSE(isWritten(picture, folder / "arena.png"));
    EXPECT_EQ(fs::file_size(folder / "arena.png"), size);
}

TEST_F(OutputTest, ADeviceIsWrittenToAndStaysADevice) {
    EXPECT_FALSE(isWritten(picture, "/dev/full"));
    EXPECT_TRUE(isWritten(picture, "/dev/null"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(OutputTest, APictureOfNothingIsNotWritten) {
    EXPECT_FALSE(isWritten(QImage(), folder / "arena.png"));
    EXPECT_EQ(files(), std::vector<std::string>());
}

} // namespace vorbel
