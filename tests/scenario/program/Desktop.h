// The display that the tests share with the program: what it shows, and its keyboard.
#pragma once

#include <QColor>
#include <QGuiApplication>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

namespace vorbel {

// Where a window of the smallest size in the screen's upper left corner shows what is looked at.
inline constexpr QPoint court(600, 450);
inline constexpr QPoint redBorder(7, 100); // lit while it is that side's turn
inline constexpr QPoint blueBorder(1192, 100);
inline constexpr QRect messageLine(300, 730, 600, 60);

inline const QColor courtGreen(42, 160, 96);
inline const QColor red(255, 82, 71);
inline const QColor blue(77, 163, 255);

inline constexpr int patience = 60'000; // ms, on a busy machine without a graphics card

class Desktop {
public:
    [[nodiscard]] static Desktop& instance();

    // What the screen shows now where a window of the smallest size lies: in its upper left corner.
    [[nodiscard]] QImage picture() const;

    // Presses and releases a key, named as X names it ("space",
    // "Left", "Tab"), in the window that has the focus.
    void press(const QString& key) const;

    void hold(const QString& key) const; // presses it, for the time being
    void letGo(const QString& key) const;

    // The same as to press it, and waits until that part of the picture is another than before.
    [[nodiscard]] bool pressUntilChanged(const QString& key, const QRect& part) const;

    // Waits for the game's window and gives it the keyboard. False when none appears.
    [[nodiscard]] bool focusGame() const;

    // From the main menu to the arena: start, this country, this class.
    void startMatch() const;

private:
    Desktop();

    int argumentCount_ = 1;
    char name_[6] = "tests";
    char* arguments_[2] = {name_, nullptr};
    QGuiApplication application_{argumentCount_, arguments_};
};

// Whether two colours are the same to the eye.
[[nodiscard]] bool alike(const QColor& a, const QColor& b);

// The same for two pictures: letters that were laid out anew differ by a level or two at their edges.
[[nodiscard]] bool alike(const QImage& a, const QImage& b);

// Looks again and again until the condition holds; false when it does not within the time.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition, int milliseconds = patience);

} // namespace vorbel
