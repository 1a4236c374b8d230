#include "app/design/Palette.h"

#include "app/design/ColorScheme.h"

#include <span>

namespace tessarine {

namespace {

struct NamedColor {
    QStringView name;
    QColor color;
};

QColor rgba(int red, int green, int blue, float alpha) {
    QColor color(red, green, blue);
    color.setAlphaF(alpha);
    return color;
}

// One table per appearance, with the same names. Label tiers are black (light) or white (dark)
// at falling opacities so that they read on any surface of their appearance, tinted or not.
// The hover, press and landing surfaces are the few places that need a shade of their own.
std::span<const NamedColor> lightColors() {
    static const NamedColor colors[] = {
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
        {u"primary", rgba(0, 0, 0, 0.85f)},
        {u"secondary", rgba(0, 0, 0, 0.5f)},
        {u"tertiary", rgba(0, 0, 0, 0.26f)},
        {u"quaternary", rgba(0, 0, 0, 0.1f)},
        {u"windowBackground", QColor(0xEC, 0xEC, 0xEC)},
        {u"controlBackground", QColor(0xFF, 0xFF, 0xFF)},
        {u"controlHovered", QColor(0xF5, 0xF5, 0xF7)},
        {u"controlPressed", QColor(0xE5, 0xE5, 0xEA)},
        {u"cardHovered", QColor(0xFA, 0xFA, 0xFC)},
        {u"cardPressed", QColor(0xF2, 0xF2, 0xF5)},
        {u"textBackground", QColor(0xFF, 0xFF, 0xFF)},
        {u"separator", rgba(0, 0, 0, 0.1f)},
        {u"hoverOverlay", rgba(0, 0, 0, 0.05f)},
        {u"pressedOverlay", rgba(0, 0, 0, 0.1f)},
        {u"scrim", rgba(0, 0, 0, 0.18f)},
        {u"sidebarBackground", QColor(0xE9, 0xE9, 0xEB)},
        {u"sidebarSelection", rgba(0, 0, 0, 0.07f)},
        {u"material", rgba(0xFF, 0xFF, 0xFF, 0.94f)},
        {u"materialBorder", rgba(0xFF, 0xFF, 0xFF, 0.9f)},
        {u"contentBackground", QColor(0xF5, 0xF5, 0xF7)},
        {u"landingTop", QColor(0xF8, 0xF9, 0xFD)},
        {u"landingMiddle", QColor(0xF1, 0xF1, 0xF7)},
        {u"landingBottom", QColor(0xEC, 0xE8, 0xF5)},
        {u"labelOnAccent", QColor(0xFF, 0xFF, 0xFF)},
    };
    return colors;
}

std::span<const NamedColor> darkColors() {
    static const NamedColor colors[] = {
        {u"blue", QColor(0x0A, 0x84, 0xFF)},
        {u"green", QColor(0x32, 0xD7, 0x4B)},
        {u"teal", QColor(0x6A, 0xC4, 0xDC)},
        {u"orange", QColor(0xFF, 0x9F, 0x0A)},
        {u"pink", QColor(0xFF, 0x37, 0x5F)},
        {u"purple", QColor(0xBF, 0x5A, 0xF2)},
        {u"red", QColor(0xFF, 0x45, 0x3A)},
        {u"yellow", QColor(0xFF, 0xD6, 0x0A)},
        {u"brown", QColor(0xAC, 0x8E, 0x68)},
        {u"indigo", QColor(0x5E, 0x5C, 0xE6)},
        {u"mint", QColor(0x63, 0xE6, 0xE2)},
        {u"cyan", QColor(0x5A, 0xC8, 0xF5)},
        {u"gray", QColor(0x98, 0x98, 0x9D)},
        {u"accent", QColor(0x0A, 0x84, 0xFF)},
        {u"primary", rgba(0xFF, 0xFF, 0xFF, 0.85f)},
        {u"secondary", rgba(0xFF, 0xFF, 0xFF, 0.55f)},
        {u"tertiary", rgba(0xFF, 0xFF, 0xFF, 0.25f)},
        {u"quaternary", rgba(0xFF, 0xFF, 0xFF, 0.1f)},
        {u"windowBackground", QColor(0x1E, 0x1E, 0x1E)},
        {u"controlBackground", QColor(0x2C, 0x2C, 0x2E)},
        {u"controlHovered", QColor(0x3A, 0x3A, 0x3C)},
        {u"controlPressed", QColor(0x48, 0x48, 0x4A)},
        {u"cardHovered", QColor(0x33, 0x33, 0x36)},
        {u"cardPressed", QColor(0x3A, 0x3A, 0x3C)},
        {u"textBackground", QColor(0x1C, 0x1C, 0x1E)},
        {u"separator", rgba(0xFF, 0xFF, 0xFF, 0.1f)},
        {u"hoverOverlay", rgba(0xFF, 0xFF, 0xFF, 0.06f)},
        {u"pressedOverlay", rgba(0xFF, 0xFF, 0xFF, 0.12f)},
        {u"scrim", rgba(0, 0, 0, 0.45f)},
        {u"sidebarBackground", QColor(0x26, 0x26, 0x28)},
        {u"sidebarSelection", rgba(0xFF, 0xFF, 0xFF, 0.08f)},
        {u"material", rgba(0x32, 0x32, 0x34, 0.94f)},
        {u"materialBorder", rgba(0xFF, 0xFF, 0xFF, 0.12f)},
        {u"contentBackground", QColor(0x1A, 0x1A, 0x1C)},
        {u"landingTop", QColor(0x1C, 0x1D, 0x22)},
        {u"landingMiddle", QColor(0x1A, 0x1A, 0x1F)},
        {u"landingBottom", QColor(0x20, 0x1C, 0x28)},
        {u"labelOnAccent", QColor(0xFF, 0xFF, 0xFF)},
    };
    return colors;
}

std::span<const NamedColor> table(Appearance appearance) {
    return appearance == Appearance::dark ? darkColors() : lightColors();
}

} // namespace

QColor paletteColor(QStringView name, Appearance appearance) {
    for (const NamedColor& entry : table(appearance)) {
        if (entry.name == name)
            return entry.color;
    }
    return paletteColor(u"secondary", appearance);
}

QColor paletteColor(QStringView name) {
    return paletteColor(name, ColorScheme::instance().appearance());
}

QStringList paletteColorNames(Appearance appearance) {
    QStringList names;
    for (const NamedColor& entry : table(appearance))
        names.append(entry.name.toString());
    return names;
}

Palette::Palette(QObject* parent)
    : QObject(parent) {}

QColor Palette::named(const QString& name, bool dark) const {
    return paletteColor(name, dark ? Appearance::dark : Appearance::light);
}

} // namespace tessarine
