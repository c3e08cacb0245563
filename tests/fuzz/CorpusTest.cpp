// The texts that the fuzzers start from, and those that they once found, in every build.
#include "tests/fuzz/FuzzTargets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace vorbel {

namespace {

struct Fuzzed {
    const char* folder;
    void (*read)(std::string_view);
};

class CorpusTest : public testing::TestWithParam<Fuzzed> {};

} // namespace

TEST_P(CorpusTest, IsReadAsPromised) {
    int files = 0;
    for (const auto& file :
         std::filesystem::directory_iterator(std::filesystem::path(VORBEL_CORPUS) / GetParam().folder)) {
        std::ifstream stream(file.path(), std::ios::binary);
        GetParam().read(std::string(std::istreambuf_iterator<char>(stream), {}));
        ++files;
    }
    EXPECT_GE(files, 5);
}

INSTANTIATE_TEST_SUITE_P(All, CorpusTest,
                         testing::Values(Fuzzed{"settings", fuzzSettings}, Fuzzed{"diary", fuzzDiary},
                                         Fuzzed{"recording", fuzzRecording},
                                         Fuzzed{"command_line", fuzzCommandLine}),
                         [](const auto& test) { return test.param.folder; });

} // namespace vorbel
