// Reads the menus to those without a screen reader.
#pragma once

#include "platform/speech/Voice.h"

#include <QObject>

namespace vorbel {

class Options;
class PlayerSettings;

// Says the name of each control that gets the keyboard, while speech is on and no assistive technology, which
// would say it too, listens. Main thread only.
class FocusReader final : public QObject {
    Q_OBJECT

public:
    // All three must outlive it.
    FocusReader(const Options& options, const PlayerSettings& settings, Voice& voice);

private:
    void read(QObject* control);

    const Options& options_;
    const PlayerSettings& settings_;
    Voice& voice_;
};

} // namespace vorbel
