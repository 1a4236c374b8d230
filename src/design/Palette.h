#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QtQml/qqmlregistration.h>

namespace tessarine {

enum class Appearance { light, dark };

// The named colours of the system palette the application was designed against, each in a light
// and a dark variant, in one place for C++ drawing and for QML (Theme reads every
// colour it has from here). Besides the system's named colours and label tiers, the table holds
// the surfaces and the materials that stand in for translucent ones.
// Data carries colour names ("pink" for images, "cyan" for a folder), which this maps to colours.
// Unknown names give the secondary colour, so that a stray name shows dimmed instead of black.
QColor paletteColor(QStringView name, Appearance appearance);
// In the appearance the desktop asks for now (ColorScheme).
QColor paletteColor(QStringView name);
// Every name the palette holds, in table order.
QStringList paletteColorNames();

class Palette : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(NamedColors)
    QML_SINGLETON

public:
    explicit Palette(QObject* parent = nullptr);

    // Takes the appearance from the caller so that a QML binding that passes ColorScheme.dark
    // is evaluated again when the desktop switches.
    Q_INVOKABLE QColor named(const QString& name, bool dark) const;
};

} // namespace tessarine
