#include "platform/speech/SpeechFacts.h"

#include "platform/speech/SpeechLibrary.h"

#include <chrono>
#include <cstdlib>
#include <future>
#include <memory>
#include <thread>

namespace vorbel {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 2s;

bool isAnswered(const SpeechLibrary& library) {
    constexpr int startNothing = 0;
    char* problem = nullptr;
    SPDConnectionAddress* address = library.defaultAddress(&problem);
    SPDConnection* connection = nullptr;
    if (address != nullptr) {
        connection =
            library.connect("vorbel", "diagnose", nullptr, SPD_MODE_SINGLE, address, startNothing, &problem);
        library.freeAddress(address);
    }
    std::free(problem); // NOLINT(cppcoreguidelines-no-malloc): the library's
    if (connection != nullptr) {
        library.close(connection);
    }
    return connection != nullptr;
}

} // namespace

// A service that is stuck keeps its thread, and not the page.
std::string speechFacts() {
    std::shared_ptr<SpeechLibrary> library = SpeechLibrary::open();
    if (library == nullptr) {
        return "the service's library is not installed";
    }
    std::promise<bool> promise;
    std::future<bool> answer = promise.get_future();
    std::thread([library, promise = std::move(promise)]() mutable {
        promise.set_value(isAnswered(*library));
    }).detach();
    const bool ready = answer.wait_for(patience) == std::future_status::ready;
    return !ready         ? "the service is stuck"
           : answer.get() ? "the service answers"
                          : "the service does not run; it is started when there is something to say";
}

} // namespace vorbel
