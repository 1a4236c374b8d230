#pragma once

#include "AppError.h"

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

    Q_INVOKABLE tessarine::AppError scanFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::AppError permissionDenied(const QString& path) const;
    Q_INVOKABLE tessarine::AppError invalidPath(const QString& path) const;
    Q_INVOKABLE tessarine::AppError saveFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::AppError loadFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::AppError exportFailed(const QString& underlyingDescription) const;
    Q_INVOKABLE tessarine::AppError unknown(const QString& message) const;
    Q_INVOKABLE tessarine::AppError cancelled() const;
};

} // namespace tessarine
