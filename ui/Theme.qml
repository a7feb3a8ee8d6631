pragma Singleton

import QtQuick

/// Every colour, size, font and picture of the client by meaning. Pages are plain (grey, for forms and lists of texts) or
/// deep (blue, for money and markets): blocks have a `deep` property that picks the tones.
QtObject {
    id: theme

    // What money does. Trends are signs: 1 rise, 0 flat, -1 fall. A switch of the two colours belongs here.
    readonly property color rise: "#FF4747"
    readonly property color fall: "#4AFF8A"
    readonly property color flat: "#FFFFFF"
    readonly property color buy: "#E8453F"
    readonly property color sell: "#12935A"
    readonly property color dealt: "#ff6c70"
    readonly property color pendingEntrust: "#60b6ff"
    readonly property color profitLabel: "#959595"

    // What the client says.
    readonly property color accent: "#2787DA"
    readonly property color link: "#2893EF"
    readonly property color warning: "#FF7E00"
    readonly property color danger: "#E90303"
    readonly property color warningBadge: "#dd6e01"
    readonly property color riskBadge: "#ff0000"
    readonly property color successBanner: "#2787DA"
    readonly property color errorBanner: "#E90303"
    readonly property color textOnAccent: "#FFFFFF"

    // The frame.
    readonly property color navigationBar: "#313030"
    readonly property color navigationText: "#FFFFFF"
    readonly property color navigationButtonText: "#2F3853"
    readonly property color menuBackground: "#313030"
    readonly property color pageBlue: "#2f3853"
    readonly property color pageGray: "#F3F3F3"
    readonly property color pageGrayPlain: "#DDDDDD"
    readonly property color scrim: "#80101420"
    readonly property color pressedOverlay: "#26FFFFFF"
    readonly property color indicatorPanel: "#E6262A36"
    readonly property color focusRing: "#2893EF"
    readonly property color transparent: "#00000000"

    readonly property Tones plain: Tones {
        page: theme.pageGray
        surface: "#FFFFFF"
        surfacePressed: "#E9EDF3"
        hairline: "#E2E5EB"
        textPrimary: "#22283A"
        textSecondary: "#626A7C"
        placeholder: "#8B92A2"
        disabled: "#BCC2CE"
        accent: theme.accent
        rise: "#E5322F"
        fall: "#0E8F50"
        flat: "#22283A"
    }
    readonly property Tones deep: Tones {
        page: theme.pageBlue
        surface: "#273048"
        surfacePressed: "#1F273B"
        hairline: "#3D4766"
        textPrimary: "#FFFFFF"
        textSecondary: "#B7BFD3"
        placeholder: "#929DB9"
        disabled: "#6C7796"
        accent: "#6DB9FF"
        rise: theme.rise
        fall: theme.fall
        flat: theme.flat
    }
    // The tones of plain pages, by their short names.
    readonly property color surface: plain.surface
    readonly property color surfacePressed: plain.surfacePressed
    readonly property color hairline: plain.hairline
    readonly property color textPrimary: plain.textPrimary
    readonly property color textSecondary: plain.textSecondary
    readonly property color placeholder: plain.placeholder
    readonly property color disabled: plain.disabled

    // Distances.
    readonly property int spacingTiny: 4
    readonly property int spacingSmall: 8
    readonly property int spacing: 12
    readonly property int spacingLarge: 16
    readonly property int spacingHuge: 24
    readonly property int margin: 16
    readonly property int touchTarget: 44
    readonly property int rowHeight: 52
    readonly property real detailRowHeight: 42.5
    readonly property int buttonHeight: 48
    readonly property int radius: 6
    readonly property int radiusLarge: 10
    readonly property int iconSize: 24
    readonly property int hairlineWidth: 1
    readonly property int focusRingWidth: 2
    readonly property int statusBarHeight: 20
    readonly property int navigationBarHeight: 44
    readonly property int bannerTop: 64
    readonly property int bannerHeight: 45
    readonly property real bannerOpacity: 0.8
    readonly property real disabledOpacity: 0.45

    // The type scale. Digits have equal widths in the client's typeface.
    readonly property real textScale: 1
    readonly property string family: Qt.font({ pixelSize: 15 }).family
    readonly property font caption: Qt.font({ family: family, pixelSize: 12 * textScale })
    readonly property font label: Qt.font({ family: family, pixelSize: 13 * textScale })
    readonly property font body: Qt.font({ family: family, pixelSize: 15 * textScale })
    readonly property font bodyBold: Qt.font({ family: family, pixelSize: 15 * textScale, weight: Font.Bold })
    readonly property font title: Qt.font({ family: family, pixelSize: 17 * textScale, weight: Font.Bold })
    readonly property font heading: Qt.font({ family: family, pixelSize: 20 * textScale, weight: Font.Bold })
    readonly property font headline: Qt.font({ family: family, pixelSize: 26 * textScale, weight: Font.Bold })
    readonly property font amount: Qt.font({ family: family, pixelSize: 22 * textScale, weight: Font.Bold })
    readonly property font display: Qt.font({ family: family, pixelSize: 36 * textScale, weight: Font.Bold })
    readonly property font unit: Qt.font({ family: family, pixelSize: 11 * textScale })

    // Milliseconds.
    readonly property int motionFast: 120
    readonly property int motion: 220
    readonly property int motionBanner: 500

    function tones(isDeep: bool): Tones {
        return isDeep ? theme.deep : theme.plain
    }

    /// The colour of a trend: 1 rise, 0 flat, -1 fall.
    function trend(sign: int, isDeep: bool): color {
        const colours = theme.tones(isDeep)
        return sign > 0 ? colours.rise : sign < 0 ? colours.fall : colours.flat
    }

    function image(name: string): url {
        return name === "" ? "" : Qt.resolvedUrl("images/" + name + ".svg")
    }
}
