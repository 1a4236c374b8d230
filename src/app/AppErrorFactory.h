#pragma once

#include "ErrorHandle.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// Lets QML raise the same errors as C++: AppState.error = AppError.exportFailed(reason).
class AppErrorFactory : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(AppError)
    QML_SINGLETON

public:
    using QObject::QObject;

    Q_INVOKABLE tessarine::ErrorHandle scanFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::ErrorHandle permissionDenied(const QString& path) const;
    Q_INVOKABLE tessarine::ErrorHandle invalidPath(const QString& path) const;
    Q_INVOKABLE tessarine::ErrorHandle saveFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::ErrorHandle loadFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::ErrorHandle exportFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::ErrorHandle unknown(const QString& message) const;
    Q_INVOKABLE tessarine::ErrorHandle cancelled() const;
    // No error, for clearing an error state of one's own.
    Q_INVOKABLE tessarine::ErrorHandle none() const;
};

} // namespace tessarine
