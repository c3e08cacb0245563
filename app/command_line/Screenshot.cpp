#include "app/command_line/Screenshot.h"

#include "app/command_line/Output.h"
#include "engine/GameLogic.h"
#include "platform/HeadlessPlatform.h"
#include "platform/render/Offscreen.h"

#include <QCoreApplication>
#include <QImage>

#include <cstdio>

namespace vorbel {

namespace {

constexpr int pictureWidth = 1200; // pixels
constexpr int pictureHeight = 800;
constexpr std::uint64_t arenaSeed = 1; // the same spectators in every picture

} // namespace

int takeScreenshot(const std::filesystem::path& file) {
    const Resources resources = Resources::forProgram(QCoreApplication::applicationFilePath().toStdString());
    HeadlessPlatform platform(arenaSeed);
    const GameLogic match({platform.queue, platform.random, platform.audio, resources});
    std::string error;
    const QImage picture =
        renderToImage(makeFrame(match.scene, 1), pictureWidth, pictureHeight, resources, error);
    if (picture.isNull()) {
        std::fprintf(stderr, "vorbel: %s\n", error.c_str());
        return EXIT_FAILURE;
    }
    return isWritten(picture, file) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace vorbel
