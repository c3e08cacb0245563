#include "tests/scenario/menus/MenuWindow.h"

#include <QTest>

#include <stdexcept>

namespace vorbel {

namespace {

Platform withResources(HeadlessPlatform& platform, const Resources& resources) {
    platform.resources = resources;
    return platform.services();
}

// The window of the test before, which has just closed, may pass the keyboard on after this one has asked for it.
bool getsKeyboard(QWindow& window) {
    constexpr int requests = 12;
    for (int request = 0; request < requests; ++request) {
        window.requestActivate();
        if (QTest::qWaitForWindowActive(&window)) {
            return true;
        }
    }
    return false;
}

} // namespace

Resources gameResources() {
    return Resources({VORBEL_RESOURCES_FOLDER});
}

bool isOfType(const QQuickItem& item, const char* className) {
    for (const QMetaObject* type = item.metaObject(); type != nullptr; type = type->superClass()) {
        const QByteArrayView name(type->className());
        if (name == className || name.startsWith(className + QByteArray("_QMLTYPE"))) {
            return true;
        }
    }
    return false;
}

QRectF inScene(const QQuickItem& item) {
    return item.mapRectToScene({0, 0, item.width(), item.height()});
}

MenuWindow::MenuWindow(const Resources& resources) : view_(withResources(platform_, resources), defaults_) {
    view_.receiveNotifications(notifications_);
    engine_.setInitialProperties({{QStringLiteral("view"), QVariant::fromValue(&view_)},
                                  {QStringLiteral("shell"), QVariant::fromValue(&shell_)}});
    QObject::connect(&engine_, &QQmlEngine::warnings, &view_, [this](const QList<QQmlError>& warnings) {
        for (const QQmlError& warning : warnings) {
            complaints_.append(warning.toString());
        }
    });
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Vorbel/qml/window/Main.qml")));
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().value(0));
    if (window_ == nullptr) {
        throw std::runtime_error("the window cannot be made");
    }
    if (!getsKeyboard(*window_)) {
        throw std::runtime_error("the window does not get the keyboard");
    }
}

QQuickItem& MenuWindow::menu() const {
    std::vector<QQuickItem*> found;
    collect(
        *window_->contentItem(), [](QQuickItem& item) { return isOfType(item, "Menu"); }, found);
    if (found.empty()) {
        throw std::runtime_error("no menu is open");
    }
    return *found.front();
}

void MenuWindow::setLanguage(AppLanguage language) {
    view_.settings()->setSelectedLanguage(language);
    settle();
}

OneSwitch& MenuWindow::oneSwitch() {
    OneSwitch& one = *view_.oneSwitch();
    one.setWindow(*window_);
    QGuiApplication::instance()->installEventFilter(&one);
    return one;
}

void MenuWindow::open(MenuScreen screen) {
    view_.openMenu().setMenuScreen(screen);
    settle();
}

void MenuWindow::settle() {
    platform_.queue.advance(0);
    platform_.queue.advance(0); // a setting first, then what follows from it
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MenuWindow::wait(double seconds) {
    platform_.queue.advance(seconds);
    settle();
}

void MenuWindow::click(QQuickItem& item) {
    QTest::mouseClick(window_, Qt::LeftButton, Qt::NoModifier, inScene(item).center().toPoint());
    settle();
}

QQuickItem* MenuWindow::button(const QString& text) {
    std::vector<QQuickItem*> found;
    collect(
        *window_->contentItem(),
        [&](QQuickItem& item) {
            return isOfType(item, "QQuickAbstractButton") && item.isEnabled() &&
                   item.property("text") == text;
        },
        found);
    return found.empty() ? nullptr : found.front();
}

void MenuWindow::press(Qt::Key key, int times) {
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(window_, key);
        settle();
    }
}

QImage MenuWindow::picture() {
    settle();
    return window_->grabWindow();
}

QQuickItem* MenuWindow::focus() const {
    return window_->activeFocusItem();
}

QString MenuWindow::focusedText() const {
    return focus() == nullptr ? QString() : focus()->property("text").toString();
}

std::vector<QQuickItem*> MenuWindow::controls() const {
    std::vector<QQuickItem*> found;
    collect(
        menu(),
        [](QQuickItem& item) {
            return isOfType(item, "QQuickAbstractButton") || isOfType(item, "LinkButton");
        },
        found);
    return found;
}

QQuickItem& MenuWindow::control(const QString& text) const {
    for (QQuickItem* item : controls()) {
        if (item->property("text").toString() == text) {
            return *item;
        }
    }
    throw std::runtime_error("no control " + text.toStdString());
}

} // namespace vorbel
