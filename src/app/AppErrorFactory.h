#pragma once

#include "AppError.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The errors that arise in QML, raised as C++ raises them: AppState.error =
// AppError.exportFailed(reason).
class AppErrorFactory : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(AppError)
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE tessarine::AppError invalidPath(const QString& path) const;
    Q_INVOKABLE tessarine::AppError exportFailed(const QString& underlyingDescription) const;
};

} // namespace tessarine
