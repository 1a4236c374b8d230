#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The core's display formats for QML, so that a size, count or date reads the same on every
// screen as in the command line.
class DisplayFormat : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Format)
    QML_SINGLETON
    Q_PROPERTY(QString missing READ missing CONSTANT)

public:
    using QObject::QObject;

    Q_INVOKABLE QString byteCount(qint64 bytes) const;
    Q_INVOKABLE QString count(qint64 value) const;
    Q_INVOKABLE QString share(double part, double total) const;
    Q_INVOKABLE QString duration(double seconds) const;
    Q_INVOKABLE QString compactDuration(double seconds) const;
    Q_INVOKABLE QString absoluteDate(const QDateTime& date) const;
    // Relative to the moment of the call, so a view re-reads it on its own refresh.
    Q_INVOKABLE QString relativeDate(const QDateTime& date) const;
    Q_INVOKABLE QString clockTime(const QDateTime& date) const;
    QString missing() const;
};

} // namespace tessarine
