#include "AppError.h"

#include <utility>

namespace tessarine {

AppError::AppError(Kind kind, QString detail)
    : m_kind(kind)
    , m_detail(std::move(detail)) {}

AppError AppError::scanFailed(const QString& underlyingDescription) {
    return {Kind::scanFailed, underlyingDescription};
}

AppError AppError::permissionDenied(const QString& path) {
    return {Kind::permissionDenied, path};
}

AppError AppError::invalidPath(const QString& path) {
    return {Kind::invalidPath, path};
}

AppError AppError::saveFailed(const QString& underlyingDescription) {
    return {Kind::saveFailed, underlyingDescription};
}

AppError AppError::loadFailed(const QString& underlyingDescription) {
    return {Kind::loadFailed, underlyingDescription};
}

AppError AppError::exportFailed(const QString& underlyingDescription) {
    return {Kind::exportFailed, underlyingDescription};
}

AppError AppError::importFailed(const QString& underlyingDescription) {
    return {Kind::importFailed, underlyingDescription};
}

AppError AppError::unknown(const QString& message) {
    return {Kind::unknown, message};
}

AppError AppError::cancelled() {
    return {Kind::cancelled, QString()};
}

QString AppError::errorDescription() const {
    switch (m_kind) {
    case Kind::scanFailed:
        return QStringLiteral("Scan failed: ") + m_detail;
    case Kind::permissionDenied:
        return QStringLiteral("Permission denied for: ") + m_detail;
    case Kind::invalidPath:
        return QStringLiteral("Invalid path: ") + m_detail;
    case Kind::saveFailed:
        return QStringLiteral("Failed to save: ") + m_detail;
    case Kind::loadFailed:
        return QStringLiteral("Failed to load: ") + m_detail;
    case Kind::exportFailed:
        return QStringLiteral("Export failed: ") + m_detail;
    case Kind::importFailed:
        return QStringLiteral("Import failed: ") + m_detail;
    case Kind::unknown:
        return m_detail;
    case Kind::cancelled:
        return QStringLiteral("Operation was cancelled");
    }
    return m_detail;
}

QString AppError::recoverySuggestion() const {
    switch (m_kind) {
    case Kind::scanFailed:
        return QStringLiteral(
            "Try selecting a different folder or check if you have permission to access it.");
    case Kind::permissionDenied:
        return QStringLiteral("Check System Preferences > Security & Privacy to grant access.");
    case Kind::invalidPath:
        return QStringLiteral("The selected path may have been moved or deleted.");
    case Kind::saveFailed:
    case Kind::loadFailed:
        return QStringLiteral("Check if you have enough disk space and try again.");
    case Kind::exportFailed:
        return QStringLiteral("Check if you have write permission to the selected location.");
    case Kind::importFailed:
        return QStringLiteral("Import a file written by ncdu -o or by tessarine-cli scan.");
    case Kind::unknown:
        return QStringLiteral("Please try again or restart the application.");
    case Kind::cancelled:
        break;
    }
    return QString();
}

} // namespace tessarine
