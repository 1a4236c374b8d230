#include "design/Palette.h"

#include "design/ColorScheme.h"

#include <array>

namespace tessarine {

namespace {

struct NamedColor {
    QStringView name;
    QColor light;
    QColor dark;
};

QColor rgba(int red, int green, int blue, float alpha) {
    QColor color(red, green, blue);
    color.setAlphaF(alpha);
    return color;
}

// Each name in its light and its dark appearance. Label tiers are black (light) or white (dark)
// at falling opacities so that they read on any surface of their appearance, tinted or not.
// The hover, press and landing surfaces are the few places that need a shade of their own.
const std::array<NamedColor, 38>& namedColors() {
    static const std::array<NamedColor, 38> colors{{
        {u"blue", QColor(0x007AFFu), QColor(0x0A84FFu)},
        {u"green", QColor(0x28CD41u), QColor(0x32D74Bu)},
        {u"teal", QColor(0x59ADC4u), QColor(0x6AC4DCu)},
        {u"orange", QColor(0xFF9500u), QColor(0xFF9F0Au)},
        {u"pink", QColor(0xFF2D55u), QColor(0xFF375Fu)},
        {u"purple", QColor(0xAF52DEu), QColor(0xBF5AF2u)},
        {u"red", QColor(0xFF3B30u), QColor(0xFF453Au)},
        {u"yellow", QColor(0xFFCC00u), QColor(0xFFD60Au)},
        {u"brown", QColor(0xA2845Eu), QColor(0xAC8E68u)},
        {u"indigo", QColor(0x5856D6u), QColor(0x5E5CE6u)},
        {u"mint", QColor(0x00C7BEu), QColor(0x63E6E2u)},
        {u"cyan", QColor(0x55BEF0u), QColor(0x5AC8F5u)},
        {u"gray", QColor(0x8E8E93u), QColor(0x98989Du)},
        {u"accent", QColor(0x007AFFu), QColor(0x0A84FFu)},
        {u"primary", rgba(0, 0, 0, 0.85f), rgba(0xFF, 0xFF, 0xFF, 0.85f)},
        {u"secondary", rgba(0, 0, 0, 0.5f), rgba(0xFF, 0xFF, 0xFF, 0.55f)},
        {u"tertiary", rgba(0, 0, 0, 0.26f), rgba(0xFF, 0xFF, 0xFF, 0.25f)},
        {u"quaternary", rgba(0, 0, 0, 0.1f), rgba(0xFF, 0xFF, 0xFF, 0.1f)},
        {u"windowBackground", QColor(0xECECECu), QColor(0x1E1E1Eu)},
        {u"controlBackground", QColor(0xFFFFFFu), QColor(0x2C2C2Eu)},
        {u"controlHovered", QColor(0xF5F5F7u), QColor(0x3A3A3Cu)},
        {u"controlPressed", QColor(0xE5E5EAu), QColor(0x48484Au)},
        {u"cardHovered", QColor(0xFAFAFCu), QColor(0x333336u)},
        {u"cardPressed", QColor(0xF2F2F5u), QColor(0x3A3A3Cu)},
        {u"textBackground", QColor(0xFFFFFFu), QColor(0x1C1C1Eu)},
        {u"separator", rgba(0, 0, 0, 0.1f), rgba(0xFF, 0xFF, 0xFF, 0.1f)},
        {u"hoverOverlay", rgba(0, 0, 0, 0.05f), rgba(0xFF, 0xFF, 0xFF, 0.06f)},
        {u"pressedOverlay", rgba(0, 0, 0, 0.1f), rgba(0xFF, 0xFF, 0xFF, 0.12f)},
        {u"scrim", rgba(0, 0, 0, 0.18f), rgba(0, 0, 0, 0.45f)},
        {u"sidebarBackground", QColor(0xE9E9EBu), QColor(0x262628u)},
        {u"sidebarSelection", rgba(0, 0, 0, 0.07f), rgba(0xFF, 0xFF, 0xFF, 0.08f)},
        {u"material", rgba(0xFF, 0xFF, 0xFF, 0.94f), rgba(0x32, 0x32, 0x34, 0.94f)},
        {u"materialBorder", rgba(0xFF, 0xFF, 0xFF, 0.9f), rgba(0xFF, 0xFF, 0xFF, 0.12f)},
        {u"contentBackground", QColor(0xF5F5F7u), QColor(0x1A1A1Cu)},
        {u"landingTop", QColor(0xF8F9FDu), QColor(0x1C1D22u)},
        {u"landingMiddle", QColor(0xF1F1F7u), QColor(0x1A1A1Fu)},
        {u"landingBottom", QColor(0xECE8F5u), QColor(0x201C28u)},
        {u"labelOnAccent", QColor(0xFFFFFFu), QColor(0xFFFFFFu)},
    }};
    return colors;
}

} // namespace

QColor paletteColor(QStringView name, Appearance appearance) {
    for (const NamedColor& entry : namedColors()) {
        if (entry.name == name)
            return appearance == Appearance::dark ? entry.dark : entry.light;
    }
    return paletteColor(u"secondary", appearance);
}

QColor paletteColor(QStringView name) {
    return paletteColor(name, ColorScheme::instance().appearance());
}

QStringList paletteColorNames() {
    QStringList names;
    for (const NamedColor& entry : namedColors())
        names.append(entry.name.toString());
    return names;
}

Palette::Palette(QObject* parent)
    : QObject(parent) {}

QColor Palette::named(const QString& name, bool dark) const {
    return paletteColor(name, dark ? Appearance::dark : Appearance::light);
}

} // namespace tessarine
