#include "UserFiles.h"

#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tessarine::testing {

void isolateUserFiles() {
    QStandardPaths::setTestModeEnabled(true);
    // Test mode alone gives every test program the same settings folder (~/.qttest/config).
    static const QTemporaryDir settingsFolder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsFolder.path());
}

} // namespace tessarine::testing
