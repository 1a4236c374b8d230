#include "model/Json.h"

#include <algorithm>
#include <array>

namespace tessarine::json {

namespace {

// The latest date whose year still has four digits, so that every written date reads back.
QDateTime latestWritableDate()
{
    return QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC);
}

// The digits of text[from, from + count), or -1 when any of them is not a digit.
int digitsAt(QStringView text, qsizetype from, qsizetype count)
{
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

} // namespace

QString formatDate(const QDateTime& date)
{
    // An unknown date is written as the distant past, the same "unknown" a scan records.
    const QDateTime utc =
        date.isValid() ? std::clamp(date.toUTC(), distantPast(), latestWritableDate()) : distantPast();
    const QDate day = utc.date();
    const QTime time = utc.time();
    // Fractional seconds are dropped, not rounded, so a date never moves to a later second.
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02dZ", day.year(), day.month(), day.day(),
                             time.hour(), time.minute(), time.second());
}

std::optional<QDateTime> parseDate(QStringView text)
{
    // Exactly yyyy-MM-ddTHH:mm:ssZ.
    constexpr qsizetype length = 20;
    if (text.size() != length || text[4] != u'-' || text[7] != u'-' || text[10] != u'T' ||
        text[13] != u':' || text[16] != u':' || text[19] != u'Z')
        return std::nullopt;
    const std::array<int, 6> fields = {digitsAt(text, 0, 4),  digitsAt(text, 5, 2),
                                       digitsAt(text, 8, 2),  digitsAt(text, 11, 2),
                                       digitsAt(text, 14, 2), digitsAt(text, 17, 2)};
    if (std::any_of(fields.begin(), fields.end(), [](int field) { return field < 0; }))
        return std::nullopt;
    const QDate day(fields[0], fields[1], fields[2]);
    const QTime time(fields[3], fields[4], fields[5]);
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC);
}

} // namespace tessarine::json
