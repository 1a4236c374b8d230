#include "app/design/Palette.h"

#include <array>

namespace tessarine {

namespace {

struct NamedColor {
    QStringView name;
    QColor color;
};

// One table per appearance; a dark variant would be a second table of the same names.
// Label tiers are black at falling opacities so that they read on any light surface, tinted or not.
const std::array<NamedColor, 18>& lightColors() {
    static const std::array<NamedColor, 18> colors{{
        {u"blue", QColor(0x00, 0x7A, 0xFF)},
        {u"green", QColor(0x28, 0xCD, 0x41)},
        {u"teal", QColor(0x59, 0xAD, 0xC4)},
        {u"orange", QColor(0xFF, 0x95, 0x00)},
        {u"pink", QColor(0xFF, 0x2D, 0x55)},
        {u"purple", QColor(0xAF, 0x52, 0xDE)},
        {u"red", QColor(0xFF, 0x3B, 0x30)},
        {u"yellow", QColor(0xFF, 0xCC, 0x00)},
        {u"brown", QColor(0xA2, 0x84, 0x5E)},
        {u"indigo", QColor(0x58, 0x56, 0xD6)},
        {u"mint", QColor(0x00, 0xC7, 0xBE)},
        {u"cyan", QColor(0x55, 0xBE, 0xF0)},
        {u"gray", QColor(0x8E, 0x8E, 0x93)},
        {u"accent", QColor(0x00, 0x7A, 0xFF)},
        {u"primary", QColor::fromRgbF(0, 0, 0, 0.85f)},
        {u"secondary", QColor::fromRgbF(0, 0, 0, 0.5f)},
        {u"tertiary", QColor::fromRgbF(0, 0, 0, 0.26f)},
        {u"quaternary", QColor::fromRgbF(0, 0, 0, 0.1f)},
    }};
    return colors;
}

} // namespace

QColor paletteColor(QStringView name) {
    for (const NamedColor& entry : lightColors()) {
        if (entry.name == name)
            return entry.color;
    }
    return paletteColor(u"secondary");
}

Palette::Palette(QObject* parent)
    : QObject(parent) {}

QColor Palette::named(const QString& name) const {
    return paletteColor(name);
}

} // namespace tessarine
