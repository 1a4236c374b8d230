#include "DisplayFormat.h"

#include "model/Format.h"

namespace tessarine {

DisplayFormat::DisplayFormat(QObject* parent)
    : QObject(parent) {
    m_clock.setInterval(1000);
    connect(&m_clock, &QTimer::timeout, this, [this] {
        m_now = QDateTime::currentDateTimeUtc();
        emit nowChanged();
    });
    m_clock.start();
}

QString DisplayFormat::byteCount(qint64 bytes) const {
    return format::byteCount(bytes);
}

QString DisplayFormat::count(qint64 value) const {
    return format::count(value);
}

QString DisplayFormat::share(double part, double total) const {
    return format::share(part, total);
}

QString DisplayFormat::duration(double seconds) const {
    return format::duration(seconds);
}

QString DisplayFormat::compactDuration(double seconds) const {
    return format::compactDuration(seconds);
}

QString DisplayFormat::absoluteDate(const QDateTime& date) const {
    return format::absoluteDate(date);
}

QString DisplayFormat::relativeDate(const QDateTime& date, const QDateTime& now) const {
    return format::relativeDate(date, now);
}

QString DisplayFormat::clockTime(const QDateTime& date) const {
    return date.isValid() ? format::clockTime(date) : missing();
}

QString DisplayFormat::missing() const {
    return format::missing();
}

} // namespace tessarine
