#include "ProgressHandle.h"

namespace tessarine {

int ProgressHandle::phase() const {
    return m_progress ? static_cast<int>(m_progress->phase) : -1;
}

QString ProgressHandle::phaseName() const {
    return m_progress ? rawValue(m_progress->phase) : QString();
}

qint64 ProgressHandle::filesScanned() const {
    return m_progress ? m_progress->filesScanned : 0;
}

qint64 ProgressHandle::foldersScanned() const {
    return m_progress ? m_progress->foldersScanned : 0;
}

QString ProgressHandle::currentPath() const {
    return m_progress ? m_progress->currentPath : QString();
}

qint64 ProgressHandle::bytesScanned() const {
    return m_progress ? m_progress->bytesScanned : 0;
}

QDateTime ProgressHandle::startTime() const {
    return m_progress ? m_progress->startTime : QDateTime();
}

qint64 ProgressHandle::estimatedTotalFiles() const {
    return m_progress ? m_progress->estimatedTotalFiles.value_or(-1) : -1;
}

QString ProgressHandle::formattedElapsedTime() const {
    return m_progress ? m_progress->formattedElapsedTime() : QString();
}

QString ProgressHandle::formattedRemainingTime() const {
    return m_progress ? m_progress->formattedRemainingTime().value_or(QString()) : QString();
}

} // namespace tessarine
