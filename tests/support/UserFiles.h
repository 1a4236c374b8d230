#pragma once

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tessarine::testing {

// Keeps this test process away from the user's own files: QStandardPaths' test mode for the
// history and every other standard location, and a settings folder of its own that goes with the
// process, so that a test changing a setting touches neither the real ones nor those of a test
// running beside it. Call it before anything reads a location or a setting.
inline void isolateUserFiles() {
    QStandardPaths::setTestModeEnabled(true);
    // Test mode alone gives every test program the same settings folder (~/.qttest/config).
    static const QTemporaryDir settingsFolder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
}

} // namespace tessarine::testing
