#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tessarine {

// Every failure that reaches the user, as one headline and an optional recovery suggestion. The
// lower layers keep their own error types; the cases that wrap one take that error's own
// description, so the user reads both what was attempted and why it failed.
class AppError {
    Q_GADGET
    QML_VALUE_TYPE(appError)
    Q_PROPERTY(QString errorDescription READ errorDescription)
    Q_PROPERTY(QString recoverySuggestion READ recoverySuggestion)
    Q_PROPERTY(bool hasRecoverySuggestion READ hasRecoverySuggestion)
    Q_PROPERTY(QString identity READ identity)

public:
    enum class Kind {
        scanFailed,
        permissionDenied,
        invalidPath,
        saveFailed,
        loadFailed,
        exportFailed,
        importFailed,
        unknown,
        cancelled
    };

    // An unknown error without a message; what the views read while no error is shown.
    AppError()
        : AppError(Kind::unknown, QString()) {}

    static AppError scanFailed(const QString& underlyingDescription);
    static AppError permissionDenied(const QString& path);
    static AppError invalidPath(const QString& path);
    static AppError saveFailed(const QString& underlyingDescription);
    static AppError loadFailed(const QString& underlyingDescription);
    static AppError exportFailed(const QString& underlyingDescription);
    static AppError importFailed(const QString& underlyingDescription);
    static AppError unknown(const QString& message);
    static AppError cancelled();

    Kind kind() const { return m_kind; }
    QString errorDescription() const;
    bool hasRecoverySuggestion() const { return !recoverySuggestion().isEmpty(); }
    // Empty when there is nothing the user can do.
    QString recoverySuggestion() const;
    // Two errors with the same text are the same error to the alert.
    QString identity() const { return errorDescription(); }

    bool operator==(const AppError&) const = default;

private:
    AppError(Kind kind, QString detail);

    Kind m_kind;
    QString m_detail; // the underlying description, the path or the message, by kind
};

} // namespace tessarine
