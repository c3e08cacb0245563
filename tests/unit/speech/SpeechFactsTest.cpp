#include "platform/speech/SpeechFacts.h"

#include "tests/unit/speech/SpeechDispatcher.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace vorbel::test {
namespace {

// A service that was started, listens, and never answers.
class StuckService {
public:
    StuckService() {
        const QByteArray path = folder_.filePath(QStringLiteral("socket")).toLocal8Bit();
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.toStdString().copy(address.sun_path, sizeof address.sun_path - 1);
        isListening_ = bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                       listen(socket_, 4) == 0;
        qputenv("SPEECHD_ADDRESS", "unix_socket:" + path);
    }
    ~StuckService() { close(socket_); }
    StuckService(const StuckService&) = delete;
    StuckService& operator=(const StuckService&) = delete;

    [[nodiscard]] bool isListening() const { return isListening_; }

private:
    QTemporaryDir folder_;
    int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    bool isListening_ = false;
};

class SpeechFactsTest : public testing::Test {
protected:
    void SetUp() override {
        if (!SpeechDispatcher::isInstalled()) {
            GTEST_SKIP() << "no speech service is installed";
        }
    }
};

TEST_F(SpeechFactsTest, AServiceThatRunsAnswers) {
    const SpeechDispatcher dispatcher;
    ASSERT_TRUE(dispatcher.isRunning());
    EXPECT_EQ(speechFacts(), "the service answers");
}

TEST_F(SpeechFactsTest, AServiceThatDoesNotRunIsNotStarted) {
    qputenv("SPEECHD_ADDRESS", "unix_socket:/nonexistent/socket");
    EXPECT_EQ(speechFacts(), "the service does not run; it is started when there is something to say");
}

TEST_F(SpeechFactsTest, AServiceThatIsStuckHoldsNobodyUp) {
    const StuckService service;
    ASSERT_TRUE(service.isListening());
    EXPECT_EQ(speechFacts(), "the service is stuck");
}

} // namespace
} // namespace vorbel::test
