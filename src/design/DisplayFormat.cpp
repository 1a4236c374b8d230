#include "DisplayFormat.h"

#include "model/Format.h"

namespace tessarine {

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

QString DisplayFormat::relativeDate(const QDateTime& date) const {
    return format::relativeDate(date, QDateTime::currentDateTimeUtc());
}

QString DisplayFormat::clockTime(const QDateTime& date) const {
    return date.isValid() ? format::clockTime(date) : missing();
}

QString DisplayFormat::missing() const {
    return format::missing();
}

} // namespace tessarine
