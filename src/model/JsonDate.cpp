#include "model/Json.h"

#include <algorithm>
#include <array>

namespace tessarine::json {

namespace {

// The latest date whose year still has four digits, so that every written date reads back.
QDateTime latestWritableDate() {
    return QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59), Qt::UTC);
}

// The digits of text[from, from + count), or -1 when any of them is not a digit.
int digitsAt(QStringView text, qsizetype from, qsizetype count) {
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

// The zone designator: "Z", or "+HH:mm" / "-HH:mm" as seconds east of UTC.
std::optional<int> offsetSeconds(QStringView zone) {
    if (zone == u"Z")
        return 0;
    if (zone.size() != 6 || (zone[0] != u'+' && zone[0] != u'-') || zone[3] != u':')
        return std::nullopt;
    const int hours = digitsAt(zone, 1, 2);
    const int minutes = digitsAt(zone, 4, 2);
    if (hours < 0 || minutes < 0 || hours > 23 || minutes > 59)
        return std::nullopt;
    const int seconds = hours * 3600 + minutes * 60;
    return zone[0] == u'-' ? -seconds : seconds;
}

} // namespace

QString formatDate(const QDateTime& date) {
    // An unknown date is written as the distant past, the same "unknown" a scan records.
    const QDateTime utc = date.isValid()
                              ? std::clamp(date.toUTC(), distantPast(), latestWritableDate())
                              : distantPast();
    const QDate day = utc.date();
    const QTime time = utc.time();
    // Fractional seconds are dropped, not rounded, so a date never moves to a later second.
    return QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02dZ", day.year(), day.month(), day.day(),
                             time.hour(), time.minute(), time.second());
}

std::optional<QDateTime> parseDate(QStringView text) {
    // yyyy-MM-ddTHH:mm:ss followed by Z or by an offset +HH:mm / -HH:mm: the internet date-time
    // form without fractions, as the platform's ISO 8601 decoding accepts it.
    constexpr qsizetype localLength = 19;
    if (text.size() < localLength || text[4] != u'-' || text[7] != u'-' || text[10] != u'T' ||
        text[13] != u':' || text[16] != u':')
        return std::nullopt;
    const std::optional<int> offset = offsetSeconds(text.sliced(localLength));
    const std::array<int, 6> fields = {digitsAt(text, 0, 4),  digitsAt(text, 5, 2),
                                       digitsAt(text, 8, 2),  digitsAt(text, 11, 2),
                                       digitsAt(text, 14, 2), digitsAt(text, 17, 2)};
    if (!offset || std::any_of(fields.begin(), fields.end(), [](int field) { return field < 0; }))
        return std::nullopt;
    const QDate day(fields[0], fields[1], fields[2]);
    const QTime time(fields[3], fields[4], fields[5]);
    if (!day.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(day, time, Qt::UTC).addSecs(-*offset);
}

} // namespace tessarine::json
