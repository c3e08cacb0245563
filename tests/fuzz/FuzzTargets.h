// What reads text that anybody may have written, each as one function of that text. It aborts when the reader
// breaks a promise; that it does not crash, hang or overflow is the sanitizers' to see.
#pragma once

#include <string_view>

namespace vorbel {

void fuzzSettings(std::string_view content); // of a value's file
void fuzzDiary(std::string_view json);
void fuzzRecording(std::string_view text);
void fuzzCommandLine(std::string_view arguments); // an argument a line, for the game and for the simulator

} // namespace vorbel
