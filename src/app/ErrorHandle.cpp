#include "ErrorHandle.h"

namespace tessarine {

QString ErrorHandle::errorDescription() const {
    return m_error ? m_error->errorDescription() : QString();
}

bool ErrorHandle::hasRecoverySuggestion() const {
    return m_error && m_error->recoverySuggestion().has_value();
}

QString ErrorHandle::recoverySuggestion() const {
    return hasRecoverySuggestion() ? *m_error->recoverySuggestion() : QString();
}

QString ErrorHandle::identity() const {
    return m_error ? m_error->identity() : QStringLiteral("unknown");
}

} // namespace tessarine
