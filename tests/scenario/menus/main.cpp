// Tests that show the menu in a real window, on the display that they are given.
#include "app/text/Fonts.h"
#include "app/window/Display.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    vorbel::prepareFonts();
    vorbel::chooseGraphics();
    return RUN_ALL_TESTS();
}
