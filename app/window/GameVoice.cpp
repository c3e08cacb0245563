#include "app/window/GameVoice.h"

#include "app/window/ContentView.h"

namespace vorbel {

GameVoice::GameVoice(ContentView& view, MainQueue& queue)
    : outlets_(*view.announcer(), service_, &Announcer::isHeard),
      narrator_(view.gameLogic(), *view.options(), queue, outlets_),
      focusReader_(*view.options(), *view.settings(), service_),
      promptVoice_(*view.oneSwitch(), *view.menu()->controls(), *view.options(), *view.settings(), outlets_) {
    narrator_.setWording([&view](const std::string& message) {
        return view.hints().inForce(message, view.gameLogic().language);
    });
    QObject::connect(view.keyboard(), &Keyboard::everythingRequested, &narrator_, &Narrator::sayEverything);
}

} // namespace vorbel
