pragma Singleton
import QtQuick

// The one palette, type scale and set of measures that every screen shares, so that a card, a
// caption or a fade looks and moves the same wherever it appears. Colours are the light-mode
// values of the system palette the application was designed against.
QtObject {
    id: theme

    // Named colours.
    readonly property color blue: "#007AFF"
    readonly property color green: "#28CD41"
    readonly property color teal: "#59ADC4"
    readonly property color orange: "#FF9500"
    readonly property color pink: "#FF2D55"
    readonly property color purple: "#AF52DE"
    readonly property color red: "#FF3B30"
    readonly property color yellow: "#FFCC00"
    readonly property color brown: "#A2845E"
    readonly property color indigo: "#5856D6"
    readonly property color mint: "#00C7BE"
    readonly property color cyan: "#55BEF0"
    readonly property color gray: "#8E8E93"
    readonly property color accent: blue

    // Semantic colours: label tiers are black at falling opacities so that they read on any
    // light surface, tinted or not.
    readonly property color primary: Qt.rgba(0, 0, 0, 0.85)
    readonly property color secondary: Qt.rgba(0, 0, 0, 0.5)
    readonly property color tertiary: Qt.rgba(0, 0, 0, 0.26)
    readonly property color quaternary: Qt.rgba(0, 0, 0, 0.1)
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

    // A colour by its name: the named and semantic colours above, so that data carrying a colour
    // name (a category, a folder colour) can be painted. Unknown names give the secondary colour.
    function named(name) {
        const known = {
            "blue": blue, "green": green, "teal": teal, "orange": orange, "pink": pink,
            "purple": purple, "red": red, "yellow": yellow, "brown": brown, "indigo": indigo,
            "mint": mint, "cyan": cyan, "gray": gray, "accent": accent, "primary": primary,
            "secondary": secondary, "tertiary": tertiary, "quaternary": quaternary
        }
        return known[name] !== undefined ? known[name] : secondary
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
