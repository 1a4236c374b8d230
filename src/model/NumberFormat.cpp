#include "model/Format.h"

#include <QLocale>

namespace tessarine::format {

QString count(qint64 value) {
    const QString grouped = QLocale().toString(value);
    return grouped.isEmpty() ? QString::number(value) : grouped;
}

QString share(double part, double total) {
    const double percent = total < 1 ? 0.0 : part / total * 100.0;
    return QString::asprintf("%.1f%%", percent);
}

QString missing() {
    return QStringLiteral("\u2014");
}

} // namespace tessarine::format
