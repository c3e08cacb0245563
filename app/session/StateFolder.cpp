#include "app/session/StateFolder.h"

#include <QDir>

namespace vorbel {

std::filesystem::path userStateFolder() {
    const QString chosen = qEnvironmentVariable("XDG_STATE_HOME"); // a relative one counts as none
    const QString base =
        QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + QStringLiteral("/.local/state");
    return std::filesystem::path(base.toStdString()) / "vorbel";
}

} // namespace vorbel
