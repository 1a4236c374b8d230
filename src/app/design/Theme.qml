pragma Singleton
import QtQuick
// Qualified: QtQuick has a Palette type of its own and Tessarine.App may be reached through
// another module's import, so the named colours are looked up in this module explicitly.
import Tessarine.App as App

// The one palette, type scale and set of measures that every screen shares, so that a card, a
// caption or a fade looks and moves the same wherever it appears. Named colours come from
// Palette; the surfaces here are light-mode values.
QtObject {
    id: theme

    // Named colours, from the palette that C++ drawing reads too.
    readonly property color blue: App.NamedColors.named("blue")
    readonly property color green: App.NamedColors.named("green")
    readonly property color teal: App.NamedColors.named("teal")
    readonly property color orange: App.NamedColors.named("orange")
    readonly property color pink: App.NamedColors.named("pink")
    readonly property color purple: App.NamedColors.named("purple")
    readonly property color red: App.NamedColors.named("red")
    readonly property color yellow: App.NamedColors.named("yellow")
    readonly property color brown: App.NamedColors.named("brown")
    readonly property color indigo: App.NamedColors.named("indigo")
    readonly property color mint: App.NamedColors.named("mint")
    readonly property color cyan: App.NamedColors.named("cyan")
    readonly property color gray: App.NamedColors.named("gray")
    readonly property color accent: App.NamedColors.named("accent")

    // Label tiers.
    readonly property color primary: App.NamedColors.named("primary")
    readonly property color secondary: App.NamedColors.named("secondary")
    readonly property color tertiary: App.NamedColors.named("tertiary")
    readonly property color quaternary: App.NamedColors.named("quaternary")

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
        return App.NamedColors.named(name)
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
