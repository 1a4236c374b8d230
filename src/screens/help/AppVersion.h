#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// "1.0 (1)": the version and the build number the application was built with, as the help shows
// them. A part the build does not set reads "1.0" and "1".
QString versionText(const QString& shortVersion, const QString& buildNumber);

// The running application's version, for QML.
class AppVersion : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString text READ text CONSTANT)

public:
    using QObject::QObject;
    static QString text();
};

} // namespace tessarine
