pragma Singleton
import QtQuick
// Qualified: QtQuick has a Palette type of its own and Tessarine.Design may be reached through
// another module's import, so the named colours are looked up in this module explicitly.
import Tessarine.Design as Design

// The one palette, type scale and set of measures that every screen shares, so that a card, a
// caption or a fade looks and moves the same wherever it appears. Every colour comes from
// Palette in the appearance the desktop asks for, so that it switches live between light and
// dark: whatever binds to a colour here is evaluated again when ColorScheme.dark changes.
QtObject {
    id: theme

    // Named colours, from the palette that C++ drawing reads too.
    readonly property color blue: named("blue")
    readonly property color green: named("green")
    readonly property color teal: named("teal")
    readonly property color orange: named("orange")
    readonly property color pink: named("pink")
    readonly property color purple: named("purple")
    readonly property color red: named("red")
    readonly property color yellow: named("yellow")
    readonly property color brown: named("brown")
    readonly property color indigo: named("indigo")
    readonly property color mint: named("mint")
    readonly property color cyan: named("cyan")
    readonly property color gray: named("gray")
    readonly property color accent: named("accent")

    // Label tiers.
    readonly property color primary: named("primary")
    readonly property color secondary: named("secondary")
    readonly property color tertiary: named("tertiary")
    readonly property color quaternary: named("quaternary")

    // Surfaces, and the shades of controls and cards under the pointer or pressed.
    readonly property color windowBackground: named("windowBackground")
    readonly property color controlBackground: named("controlBackground")
    readonly property color controlHovered: named("controlHovered")
    readonly property color controlPressed: named("controlPressed")
    readonly property color cardHovered: named("cardHovered")
    readonly property color cardPressed: named("cardPressed")
    readonly property color textBackground: named("textBackground")
    readonly property color separator: named("separator")
    // Laid over a surface of either appearance to mark hover and press; the dimming behind a modal.
    readonly property color hoverOverlay: named("hoverOverlay")
    readonly property color pressedOverlay: named("pressedOverlay")
    readonly property color scrim: named("scrim")

    // Surfaces that stand in for translucent materials, which the scene graph cannot blur.
    readonly property color sidebarBackground: named("sidebarBackground")
    readonly property color sidebarSelection: named("sidebarSelection")
    readonly property color material: named("material")
    readonly property color materialBorder: named("materialBorder")
    readonly property color contentBackground: named("contentBackground")
    readonly property color labelOnAccent: named("labelOnAccent")
    // The start screen's wash, top to bottom.
    readonly property color landingTop: named("landingTop")
    readonly property color landingMiddle: named("landingMiddle")
    readonly property color landingBottom: named("landingBottom")

    // True while the desktop asks for dark colours.
    readonly property bool dark: Design.ColorScheme.dark

    // A colour by its name, so that data carrying a colour name (a category, a folder colour) can
    // be painted. Unknown names give the secondary colour. Reading `dark` here makes every binding
    // that calls this depend on the appearance.
    function named(name) {
        return Design.NamedColors.named(name, theme.dark)
    }

    // The colour with its opacity multiplied, so that "secondary at 30%" stays fainter than
    // secondary itself.
    function withOpacity(base, opacity) {
        return Qt.rgba(base.r, base.g, base.b, base.a * opacity)
    }

    // Typography: Inter at the system type scale, in pixels.
    readonly property string fontFamily: "Inter"
    readonly property string monoFamily: "DejaVu Sans Mono"
    // Inter with its tabular digits, which the build writes and the application carries.
    readonly property string figureFamily: "Inter Tabular"
    readonly property font largeTitle: Qt.font({ family: fontFamily, pixelSize: 26 })
    readonly property font title: Qt.font({ family: fontFamily, pixelSize: 22 })
    readonly property font title2: Qt.font({ family: fontFamily, pixelSize: 17 })
    readonly property font title3: Qt.font({ family: fontFamily, pixelSize: 15 })
    readonly property font headline: Qt.font({ family: fontFamily, pixelSize: 13, weight: Font.DemiBold })
    readonly property font subheadline: Qt.font({ family: fontFamily, pixelSize: 11 })
    readonly property font body: Qt.font({ family: fontFamily, pixelSize: 13 })
    readonly property font callout: Qt.font({ family: fontFamily, pixelSize: 12 })
    readonly property font caption: Qt.font({ family: fontFamily, pixelSize: 10 })
    readonly property font extraSmall: Qt.font({ family: fontFamily, pixelSize: 9 })

    // A style of the scale at another weight: weighted(Theme.title, Font.Bold).
    function weighted(style, weight) {
        return Qt.font({ family: style.family, pixelSize: style.pixelSize, weight: weight })
    }

    // The monospaced face at a style's size, for paths, key caps and text set in a typewriter face.
    function monospaced(style, weight) {
        return faceAt(monoFamily, style, weight)
    }

    // The style with digits of one width, for figures that change or stand in columns.
    function tabularDigits(style, weight) {
        return faceAt(figureFamily, style, weight)
    }

    function faceAt(family, style, weight) {
        return Qt.font({ family: family, pixelSize: style.pixelSize,
                         weight: weight === undefined ? Font.Normal : weight })
    }

    // Corner radii.
    readonly property real radiusSmall: 6
    readonly property real radiusMedium: 8
    readonly property real radiusButton: 10
    readonly property real radiusCard: 12
    readonly property real radiusLarge: 20

    // Spacing steps.
    readonly property real spacingTiny: 4
    readonly property real spacingSmall: 8
    readonly property real spacingMedium: 12
    readonly property real spacingLarge: 16
    readonly property real spacingXLarge: 20
    readonly property real spacingSection: 24
    readonly property real spacingHuge: 40
    // What every card leaves between its edge and its content: the platform's standard padding.
    readonly property real cardPadding: 16

    // Motion: the quick fade, the standard change, and a critically damped spring (no overshoot),
    // which an ease-out curve of the spring's response time matches closely.
    readonly property int quickDuration: 200
    readonly property int standardDuration: 300
    readonly property int standardEasing: Easing.InOutQuad
    readonly property int springDuration: 500
    readonly property int springEasing: Easing.OutCubic
}
