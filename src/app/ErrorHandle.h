#pragma once

#include "AppError.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// An optional AppError as a QML value: what the alert reads, and what a screen assigns to the
// application state's error.
class ErrorHandle {
    Q_GADGET
    QML_VALUE_TYPE(appError)
    Q_PROPERTY(bool present READ present CONSTANT)
    Q_PROPERTY(QString errorDescription READ errorDescription CONSTANT)
    Q_PROPERTY(bool hasRecoverySuggestion READ hasRecoverySuggestion CONSTANT)
    Q_PROPERTY(QString recoverySuggestion READ recoverySuggestion CONSTANT)
    Q_PROPERTY(QString identity READ identity CONSTANT)

public:
    ErrorHandle() = default;
    ErrorHandle(AppError error)
        : m_error(std::move(error)) {}
    ErrorHandle(std::optional<AppError> error)
        : m_error(std::move(error)) {}

    const std::optional<AppError>& error() const { return m_error; }

    bool present() const { return m_error.has_value(); }
    QString errorDescription() const;
    bool hasRecoverySuggestion() const;
    QString recoverySuggestion() const;
    // "unknown" for an absent error, which has no description to go by.
    QString identity() const;

    bool operator==(const ErrorHandle&) const = default;

private:
    std::optional<AppError> m_error;
};

} // namespace tessarine
