pragma Singleton

import QtQuick
import Zorvane.Ui

/// Every colour, size, font and picture of the client by meaning. Pages are plain (grey, for forms and lists of texts) or
/// deep (blue, for money and markets): blocks have a `deep` property that picks the tones. Each palette has both.
///
/// Texts have a contrast of 4.5 over the page and the surface of their tones, those in red over the surface only; what is
/// drawn, and bold text from 19 points on, one of 3.
QtObject {
    id: theme

    readonly property SystemPalette system: SystemPalette {}
    readonly property bool dark: Display.followsSystem ? system.window.hslLightness < 0.5 : Display.prefersDark

    // What money does: see `trend`. A buy has the colour of a rise, a sell that of a fall.
    readonly property color rise: deep.rise
    readonly property color fall: deep.fall
    readonly property color buy: Display.greenRises ? greenFill : redFill
    readonly property color sell: Display.greenRises ? redFill : greenFill
    readonly property color redFill: "#CF2F2A"
    readonly property color greenFill: "#0C7A48"
    readonly property color dealt: "#ff6c70"
    readonly property color pendingEntrust: "#60b6ff"
    readonly property color profitLabel: "#959595"

    // The lines of charts; prices are drawn in the accent of deep pages.
    readonly property color chartAverage: "#FFC24B"
    readonly property color chartMa5: "#FFC24B"
    readonly property color chartMa10: "#63C7FF"
    readonly property color chartMa20: "#D590FF"
    readonly property color chartCost: "#FF9A55"

    // What the client says.
    readonly property color accent: "#1F74C4"
    readonly property color link: plain.accent
    readonly property color reloadHint: dark ? plain.accent : "#2893EF"
    readonly property color unlitButton: "#5F6A88"
    readonly property color leave: redFill
    readonly property color toHome: "#FF4747"
    readonly property color warning: "#FF7E00"
    readonly property color danger: "#E90303"
    readonly property color warningBadge: "#dd6e01"
    readonly property color riskBadge: "#ff0000"
    readonly property color successBanner: "#2787DA"
    readonly property color errorBanner: "#E90303"
    readonly property color textOnAccent: "#FFFFFF"

    // The frame.
    readonly property color navigationBar: dark ? "#1A1B1F" : "#313030"
    readonly property color navigationText: "#FFFFFF"
    readonly property color navigationButtonText: "#2F3853"
    readonly property color menuBackground: dark ? "#17181B" : "#313030"
    readonly property color pageBlue: deep.page
    readonly property color pageGray: plain.page
    readonly property color pageGrayPlain: dark ? plain.page : "#DDDDDD"
    readonly property color scrim: dark ? "#B3000000" : "#80101420"
    readonly property color pressedOverlay: "#26FFFFFF"
    readonly property color indicatorPanel: dark ? "#2C3444" : "#262A36"
    readonly property color transparent: "#00000000"

    readonly property Tones plain: dark ? plainDark : plainLight
    readonly property Tones deep: dark ? deepDark : deepLight
    readonly property Tones plainLight: Tones {
        greenRises: Display.greenRises
        page: "#F3F3F3"
        surface: "#FFFFFF"
        surfacePressed: "#EEF2F7"
        hairline: "#E2E5EB"
        textPrimary: "#22283A"
        textSecondary: "#565E70"
        placeholder: "#646C7E"
        disabled: "#BCC2CE"
        accent: "#1A6FBE"
        focusRing: "#1A6FBE"
        red: "#D0211F"
        green: "#0A7A42"
        flat: "#22283A"
    }
    readonly property Tones deepLight: Tones {
        greenRises: Display.greenRises
        page: "#2f3853"
        surface: "#1E2539"
        surfacePressed: "#171D2E"
        hairline: "#3D4766"
        textPrimary: "#FFFFFF"
        textSecondary: "#B7BFD3"
        placeholder: "#A3ADC6"
        disabled: "#6C7796"
        accent: "#6DB9FF"
        focusRing: "#6DB9FF"
        red: "#FF4747"
        green: "#4AFF8A"
        flat: "#FFFFFF"
    }
    readonly property Tones plainDark: Tones {
        greenRises: Display.greenRises
        page: "#11141B"
        surface: "#1B202B"
        surfacePressed: "#252B38"
        hairline: "#2C3342"
        textPrimary: "#E9EDF5"
        textSecondary: "#AAB3C4"
        placeholder: "#8F99AD"
        disabled: "#555E70"
        accent: "#6DB9FF"
        focusRing: "#6DB9FF"
        red: "#FF5A55"
        green: "#3DDC84"
        flat: "#E9EDF5"
    }
    readonly property Tones deepDark: Tones {
        greenRises: Display.greenRises
        page: "#0F1420"
        surface: "#19202F"
        surfacePressed: "#1E2637"
        hairline: "#2B354B"
        textPrimary: "#F2F5FB"
        textSecondary: "#AEB8CC"
        placeholder: "#8F9AB3"
        disabled: "#566079"
        accent: "#6DB9FF"
        focusRing: "#6DB9FF"
        red: "#FF4747"
        green: "#4AFF8A"
        flat: "#F2F5FB"
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
    readonly property int radius: 6
    readonly property int radiusLarge: 10
    readonly property int iconSize: 24
    readonly property int hairlineWidth: 1
    readonly property int focusRingWidth: 2
    readonly property int statusBarHeight: 20
    readonly property int navigationBarHeight: 44
    readonly property int bannerTop: 64
    readonly property real bannerOpacity: 0.8
    readonly property real disabledOpacity: 0.45

    // Heights that hold a line of text, or two: they grow with it.
    readonly property int rowHeight: scaled(52)
    readonly property real detailRowHeight: 42.5 * textScale
    readonly property int buttonHeight: scaled(48)
    readonly property int bannerHeight: scaled(45)

    // The type scale. Digits have equal widths in the client's typeface.
    readonly property real textScale: Display.textScale
    readonly property string family: Qt.font({ pixelSize: 15 }).family
    readonly property int smallestText: scaled(11)
    // What digits shrink to before any of them is left out; larger text is no reason to leave out one more.
    readonly property int smallestFigure: 10
    readonly property font unit: style(11, Font.Normal)
    readonly property font caption: style(12, Font.Normal)
    readonly property font label: style(13, Font.Normal)
    readonly property font body: style(15, Font.Normal)
    readonly property font bodyBold: style(15, Font.Bold)
    readonly property font title: style(17, Font.Bold)
    readonly property font badge: style(19, Font.Bold)
    readonly property font heading: style(20, Font.Bold)
    readonly property font amount: style(22, Font.Bold)
    readonly property font headline: style(26, Font.Bold)
    readonly property font display: style(36, Font.Bold)

    // Milliseconds.
    readonly property int motionFast: 120
    readonly property int motion: 220
    readonly property int motionBanner: 500
    // How long an indicator leaves the page as it is.
    readonly property int motionPatience: 1000
    // Of an on-screen keyboard; it does not tell its own.
    readonly property int motionKeyboard: 250

    /// A height that grows with the text.
    function scaled(height: int): int {
        return Math.round(height * textScale)
    }

    function style(size: int, weight: int): font {
        return Qt.font({ family: family, pixelSize: scaled(size), weight: weight })
    }

    function tones(isDeep: bool): Tones {
        return isDeep ? theme.deep : theme.plain
    }

    /// The colour of a trend: 1 rise, 0 flat, -1 fall.
    function trend(sign: int, isDeep: bool): color {
        const colours = theme.tones(isDeep)
        return sign > 0 ? colours.rise : sign < 0 ? colours.fall : colours.flat
    }

    /// Some pictures have a second one for the dark palette or for changed colours of the trends.
    function image(name: string): url {
        const seconds = Object.assign(dark ? { "no_data": "no_data_deep", "no_net": "no_net_deep" } : {},
                                      Display.greenRises ? { "stock_buy": "stock_buy_green", "stock_sell": "stock_sell_red" }
                                                         : {})
        return name === "" ? "" : Qt.resolvedUrl("images/" + (seconds[name] ?? name) + ".svg")
    }
}
