#pragma once

#include "screens/dashboard/DesktopServices.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Reveal, open and copy for the largest-files table. A file that has gone since the scan is not
// handed to the desktop: reveal and open say false, and the table raises the alert.
class FileActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // Replaces the desktop that every FileActions acts on; null restores the real one.
    static void setServices(DesktopServices* services);

    Q_INVOKABLE bool reveal(const QString& path) const;
    Q_INVOKABLE bool open(const QString& path) const;
    // The paths one per line, as a file manager's copy gives them.
    Q_INVOKABLE void copyPaths(const QStringList& paths) const;

private:
    static DesktopServices& services();
};

} // namespace tessarine
