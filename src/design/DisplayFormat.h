#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The core's display formats for QML, so that a size, count or date reads the same on every
// screen as in the command line. Relative dates are measured from now, a clock that moves every
// second: one timer for every "3 sec. ago" on screen, each text bound to it.
class DisplayFormat : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Format)
    QML_SINGLETON
    Q_PROPERTY(QString missing READ missing CONSTANT)
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged)

public:
    explicit DisplayFormat(QObject* parent = nullptr);

    Q_INVOKABLE QString byteCount(qint64 bytes) const;
    Q_INVOKABLE QString count(qint64 value) const;
    Q_INVOKABLE QString share(double part, double total) const;
    Q_INVOKABLE QString duration(double seconds) const;
    Q_INVOKABLE QString compactDuration(double seconds) const;
    Q_INVOKABLE QString absoluteDate(const QDateTime& date) const;
    // Pass now, so that the text follows the clock: Format.relativeDate(date, Format.now).
    Q_INVOKABLE QString relativeDate(const QDateTime& date, const QDateTime& now) const;
    Q_INVOKABLE QString clockTime(const QDateTime& date) const;
    QString missing() const;
    QDateTime now() const { return m_now; }

signals:
    void nowChanged();

private:
    QDateTime m_now = QDateTime::currentDateTimeUtc();
    QTimer m_clock;
};

} // namespace tessarine
