#include "recording/RecordedFile.h"

#include <fstream>
#include <iterator>
#include <system_error>

namespace vorbel::recording {

std::variant<Recording, std::string> recordingInFile(const std::filesystem::path& file) {
    namespace fs = std::filesystem;
    constexpr std::uintmax_t largest = 64UL * 1024 * 1024; // bytes
    std::error_code error;
    if (!fs::exists(file, error)) {
        return "there is no such file";
    }
    if (!fs::is_regular_file(file, error) || fs::file_size(file, error) > largest) {
        return "it is no recording of a match: no file, or far too large";
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    return stream ? readRecording(text) : "it cannot be read";
}

} // namespace vorbel::recording
