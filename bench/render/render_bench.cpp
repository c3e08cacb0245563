// How fast the arena is drawn. Prints one table; needs a display, a virtual one will do.
#include "app/window/Display.h"
#include "bench/render/Figures.h"
#include "bench/render/game_bench.h"
#include "bench/render/window_bench.h"
#include "platform/render/Pictures.h"
#include "platform/render/Renderer.h"
#include "platform/resources/Resources.h"
#include "tests/picture/OffscreenTarget.h"
#include "tests/picture/RollingBalls.h"

#include <QGuiApplication>

#include <cstdlib>
#include <string_view>

namespace vorbel::bench {

namespace {

constexpr int width = 1200;
constexpr int height = 800;
constexpr int ticks = 150;
constexpr int ticksBetweenFullRedraws = 10;

Moment timedDraw(Renderer& renderer, const Frame& frame, OffscreenTarget& target) {
    const Moment start = Moment::now();
    renderer.draw(frame, target.framebuffer(), width, height);
    target.finish();
    return Moment::now() - start;
}

bool measureDrawing(const Resources& resources) {
    OffscreenTarget target(width, height);
    std::string error = "OpenGL is not available.";
    Pictures pictures(resources);
    const auto changes = target.works() ? Renderer::create(pictures, error) : nullptr;
    const auto all = changes ? Renderer::create(pictures, error, Redraw::all) : nullptr;
    if (!all) {
        std::fprintf(stderr, "vorbel-bench: %s\n", error.c_str());
        return false;
    }
    RollingBalls arena;
    printRow("first picture, pictures read and sent", timedDraw(*changes, arena.frame(1), target).wall, "ms");
    timedDraw(*all, arena.frame(1), target);
    Timings changed;
    Timings redrawn;
    Timings unchanged;
    for (int tick = 0; tick < ticks; ++tick) {
        progress("13 balls", tick, ticks);
        arena.step();
        changed.add(timedDraw(*changes, arena.frame(0.5), target));
        if (tick % ticksBetweenFullRedraws == 0) {
            redrawn.add(timedDraw(*all, arena.frame(0.5), target));
            unchanged.add(timedDraw(*changes, arena.frame(0.5), target));
        }
    }
    printRow("13 balls rolling, full redraw", redrawn.wall(), "ms");
    printRow("    processor time", redrawn.cpu(), "ms");
    printRow("13 balls rolling, what changed", changed.wall(), "ms");
    printRow("    processor time", changed.cpu(), "ms");
    printRow("    ratio of the times", redrawn.wall() / changed.wall(), "");
    printRow("    ratio of the processor times", redrawn.cpu() / changed.cpu(), "");
    printRow("nothing moved, shown again", unchanged.wall(), "ms");
    return true;
}

int measure(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    chooseGraphics();
    const Resources resources = Resources::forProgram(QCoreApplication::applicationFilePath().toStdString());
    return measureGame() == 0 && measureWindow(resources) == 0 && measureDrawing(resources) ? EXIT_SUCCESS
                                                                                            : EXIT_FAILURE;
}

} // namespace

} // namespace vorbel::bench

int main(int argc, char** argv) {
    using namespace vorbel::bench;
    if (argc == 3 && std::string_view(argv[1]) == gameArgument) {
        return runGame(argv[0], std::strtod(argv[2], nullptr));
    }
    if (argc == 3 && std::string_view(argv[1]) == emptyArgument) {
        return runEmptyWindow(argv[0], std::strtod(argv[2], nullptr));
    }
    return measure(argc, argv);
}
