// screen_picture FILE: saves what the upper left corner of
// the screen shows, where a window of the smallest size lies.
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1200, 800);
    const QStringList arguments = QGuiApplication::arguments();
    return arguments.size() == 2 && picture.save(arguments.at(1)) ? 0 : 1;
}
