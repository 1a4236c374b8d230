pragma Singleton
import QtQuick
// Qualified: QtQuick has a Palette type of its own, which otherwise wins when this module is
// reached through another module's import.
import Tessarine.App as App

// The one palette, type scale and set of measures that every screen shares, so that a card, a
// caption or a fade looks and moves the same wherever it appears. Named colours come from
// Palette; the surfaces here are light-mode values.
QtObject {
    id: theme

    // Named colours, from the palette that C++ drawing reads too.
    readonly property color blue: App.Palette.named("blue")
    readonly property color green: App.Palette.named("green")
    readonly property color teal: App.Palette.named("teal")
    readonly property color orange: App.Palette.named("orange")
    readonly property color pink: App.Palette.named("pink")
    readonly property color purple: App.Palette.named("purple")
    readonly property color red: App.Palette.named("red")
    readonly property color yellow: App.Palette.named("yellow")
    readonly property color brown: App.Palette.named("brown")
    readonly property color indigo: App.Palette.named("indigo")
    readonly property color mint: App.Palette.named("mint")
    readonly property color cyan: App.Palette.named("cyan")
    readonly property color gray: App.Palette.named("gray")
    readonly property color accent: App.Palette.named("accent")

    // Label tiers.
    readonly property color primary: App.Palette.named("primary")
    readonly property color secondary: App.Palette.named("secondary")
    readonly property color tertiary: App.Palette.named("tertiary")
    readonly property color quaternary: App.Palette.named("quaternary")

    // Surfaces.
    readonly property color windowBackground: "#ECECEC"
    readonly property color controlBackground: "#FFFFFF"
    readonly property color textBackground: "#FFFFFF"
    readonly property color separator: Qt.rgba(0, 0, 0, 0.1)

    // Surfaces that stand in for translucent materials, which the scene graph cannot blur.
    readonly property color sidebarBackground: "#E9E9EB"
    readonly property color sidebarSelection: Qt.rgba(0, 0, 0, 0.07)
    readonly property color material: Qt.rgba(1, 1, 1, 0.94)
    readonly property color contentBackground: "#F5F5F7"
    readonly property color labelOnAccent: "#FFFFFF"

    // A colour by its name, so that data carrying a colour name (a category, a folder colour) can
    // be painted. Unknown names give the secondary colour.
    function named(name) {
        return App.Palette.named(name)
    }

    // The colour with its opacity multiplied, so that "secondary at 30%" stays fainter than
    // secondary itself.
    function withOpacity(base, opacity) {
        return Qt.rgba(base.r, base.g, base.b, base.a * opacity)
    }

    // Typography: Inter at the system type scale, in pixels.
    readonly property string fontFamily: "Inter"
    readonly property string monoFamily: "DejaVu Sans Mono"
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

    // The monospaced face at a style's size, for figures and paths that should not jitter.
    function monospaced(style, weight) {
        return Qt.font({ family: monoFamily, pixelSize: style.pixelSize,
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

    // Motion: the quick fade, the standard change, and a critically damped spring (no overshoot),
    // which an ease-out curve of the spring's response time matches closely.
    readonly property int quickDuration: 200
    readonly property int standardDuration: 300
    readonly property int standardEasing: Easing.InOutQuad
    readonly property int springDuration: 500
    readonly property int springEasing: Easing.OutCubic
}
