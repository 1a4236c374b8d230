#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringView>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

// The named colours of the system palette the application was designed against (light mode),
// in one place for C++ drawing and for QML (Theme reads its named colours from here).
// Data carries colour names ("pink" for images, "cyan" for a folder), which this maps to colours.
// Unknown names give the secondary colour, so that a stray name shows dimmed instead of black.
QColor paletteColor(QStringView name);

class Palette : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(NamedColors)
    QML_SINGLETON

public:
    explicit Palette(QObject* parent = nullptr);

    Q_INVOKABLE QColor named(const QString& name) const;
};

} // namespace tessarine
