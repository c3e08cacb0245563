// What the desktop's screen saver hears of the game.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

namespace vorbel {

namespace {

// A desktop's screen saver: counts who holds it off.
class ScreenSaverOfADesktop final : public QDBusVirtualObject {
public:
    ScreenSaverOfADesktop() {
        QDBusConnection bus = QDBusConnection::sessionBus();
        ready_ = bus.registerVirtualObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this) &&
                 bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }
    ~ScreenSaverOfADesktop() override {
        QDBusConnection::sessionBus().unregisterService(QStringLiteral("org.freedesktop.ScreenSaver"));
        QDBusConnection::sessionBus().unregisterObject(QStringLiteral("/org/freedesktop/ScreenSaver"));
    }
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() == QLatin1String("Inhibit")) {
            name_ = message.arguments().value(0).toString();
            ++held_;
            return connection.send(message.createReply(QVariant::fromValue(++lastCookie_)));
        }
        held_ -= message.member() == QLatin1String("UnInhibit") && message.arguments().value(0).toUInt() > 0
                     ? 1
                     : 0;
        return connection.send(message.createReply());
    }

    [[nodiscard]] bool isReady() const { return ready_; }
    [[nodiscard]] const QString& name() const { return name_; }

    [[nodiscard]] bool becomesHeld(int times) const {
        return waitUntil([this, times] {
            QCoreApplication::processEvents();
            return held_ == times;
        });
    }

private:
    bool ready_ = false;
    int held_ = 0;
    uint lastCookie_ = 0;
    QString name_;
};

} // namespace

TEST(ScreenSaverTest, ItIsHeldOffWhileTheComputerPlaysAndLetGoInTheMenu) {
    static_cast<void>(Desktop::instance());
    ScreenSaverOfADesktop saver;
    ASSERT_TRUE(saver.isReady());
    Program game({});
    ASSERT_TRUE(Desktop::instance().focusGame());
    Desktop::instance().startMatch();
    EXPECT_TRUE(saver.becomesHeld(0)) << "the player is to aim";
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Desktop::instance().pressUntilChanged(QStringLiteral("space"), messageLine));
    }
    EXPECT_TRUE(saver.becomesHeld(1)) << "the ball rolls";
    EXPECT_EQ(saver.name(), QStringLiteral("vorbel"));
    Desktop::instance().press(QStringLiteral("ctrl+n"));
    EXPECT_TRUE(saver.becomesHeld(0)) << "the menu is open";
}

} // namespace vorbel
