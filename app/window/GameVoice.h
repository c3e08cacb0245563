// The voice of the game in its window.
#pragma once

#include "app/speech/FocusReader.h"
#include "app/speech/Narrator.h"
#include "app/speech/Outlets.h"
#include "app/speech/PromptVoice.h"
#include "platform/speech/SpeechService.h"

namespace vorbel {

class ContentView;

// Main thread only.
class GameVoice {
public:
    // Both must outlive it. Needs the application object.
    GameVoice(ContentView& view, MainQueue& queue);

private:
    SpeechService service_;
    Outlets outlets_;
    Narrator narrator_;
    FocusReader focusReader_;
    PromptVoice promptVoice_;
};

} // namespace vorbel
