#include "model/Format.h"

#include "model/Records.h"

#include <QLocale>
#include <QRegularExpression>

namespace tessarine::format {

namespace {

// Qt offers no medium date style; the locale's long style without its weekday and with the
// month abbreviated is what a medium style looks like ("MMM d, yyyy" in US English).
QString mediumDateFormat(const QLocale& locale) {
    static const QRegularExpression weekday(QStringLiteral("[,\\s]*dddd[,.]?\\s*"));
    QString pattern = locale.dateFormat(QLocale::LongFormat);
    const auto weekdayAt = weekday.match(pattern);
    if (weekdayAt.hasMatch()) {
        // A weekday in the middle must still leave a space between its neighbours.
        const bool inside =
            weekdayAt.capturedStart() > 0 && weekdayAt.capturedEnd() < pattern.size();
        pattern.replace(weekdayAt.capturedStart(), weekdayAt.capturedLength(),
                        inside ? QStringLiteral(" ") : QString());
    }
    return pattern.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
}

struct RelativeUnit {
    qint64 amount;
    QString singular;
    QString plural;
};

// Whole calendar months from earlier to later, counting a month only once its day and time of
// day are reached again.
qint64 wholeMonthsBetween(const QDateTime& earlier, const QDateTime& later) {
    const QDate from = earlier.date();
    const QDate to = later.date();
    qint64 months = qint64(to.year() - from.year()) * 12 + (to.month() - from.month());
    const bool monthNotReached =
        to.day() < from.day() || (to.day() == from.day() && later.time() < earlier.time());
    return monthNotReached ? months - 1 : months;
}

// The largest unit that fits at least once, as an abbreviated calendar distance does.
RelativeUnit relativeUnit(const QDateTime& earlier, const QDateTime& later) {
    const qint64 seconds = earlier.secsTo(later);
    if (seconds < 60)
        return {seconds, QStringLiteral("sec."), QStringLiteral("sec.")};
    if (seconds < 3600)
        return {seconds / 60, QStringLiteral("min."), QStringLiteral("min.")};
    if (seconds < 86400)
        return {seconds / 3600, QStringLiteral("hr."), QStringLiteral("hr.")};
    const qint64 months = wholeMonthsBetween(earlier.toLocalTime(), later.toLocalTime());
    if (months >= 12)
        return {months / 12, QStringLiteral("yr."), QStringLiteral("yr.")};
    if (months >= 1)
        return {months, QStringLiteral("mo."), QStringLiteral("mo.")};
    const qint64 days = seconds / 86400;
    if (days >= 7)
        return {days / 7, QStringLiteral("wk."), QStringLiteral("wk.")};
    return {days, QStringLiteral("day"), QStringLiteral("days")};
}

} // namespace

QString absoluteDate(const QDateTime& date) {
    if (!isKnownDate(date))
        return missing();
    const QLocale locale;
    const QDateTime local = date.toLocalTime();
    const QString joiner =
        locale.language() == QLocale::English ? QStringLiteral(" at ") : QStringLiteral(", ");
    return locale.toString(local.date(), mediumDateFormat(locale)) + joiner +
           locale.toString(local.time(), QLocale::ShortFormat);
}

QString relativeDate(const QDateTime& date, const QDateTime& now) {
    if (!isKnownDate(date))
        return missing();
    const bool past = date < now;
    const RelativeUnit unit = past ? relativeUnit(date, now) : relativeUnit(now, date);
    const QString amount =
        count(unit.amount) + QLatin1Char(' ') + (unit.amount == 1 ? unit.singular : unit.plural);
    return past ? amount + QStringLiteral(" ago") : QStringLiteral("in ") + amount;
}

QString clockTime(const QDateTime& date) {
    return date.toLocalTime().toString(QStringLiteral("HH:mm:ss"));
}

} // namespace tessarine::format
