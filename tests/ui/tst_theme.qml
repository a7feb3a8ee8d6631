import QtQuick
import QtTest
import Zorvane.Ui

TestCase {
    name: "Theme"

    readonly property var tones: [Theme.plainLight, Theme.plainDark, Theme.deepLight, Theme.deepDark]
    readonly property var tonesNames: ["plain light", "plain dark", "deep light", "deep dark"]

    function cleanup() {
        world.display(0, 0, 0)
    }

    function luminance(colour) {
        const linear = part => part <= 0.04045 ? part / 12.92 : Math.pow((part + 0.055) / 1.055, 2.4)
        return 0.2126 * linear(colour.r) + 0.7152 * linear(colour.g) + 0.0722 * linear(colour.b)
    }

    /// As the guidelines for accessible web content measure it.
    function contrast(one, other) {
        const both = [luminance(one), luminance(other)].sort((a, b) => a - b)
        return (both[1] + 0.05) / (both[0] + 0.05)
    }

    /// `over` shines through what is laid on it.
    function laid(colour, opacity, over) {
        const mix = part => colour[part] * opacity + over[part] * (1 - opacity)
        return Qt.rgba(mix("r"), mix("g"), mix("b"), 1)
    }

    function readable(text, over, least, what) {
        verify(contrast(text, over) >= least, what + ": " + contrast(text, over).toFixed(2))
    }

    function test_textsAndFocusStandOutInEveryPalette() {
        compare(contrast(Qt.color("black"), Qt.color("white")), 21)
        tones.forEach((set, place) => {
            const name = tonesNames[place]
            for (const tone of ["textPrimary", "textSecondary", "placeholder", "accent", "green", "flat"]) {
                readable(set[tone], set.page, 4.5, name + " " + tone + " on the page")
                readable(set[tone], set.surface, 4.5, name + " " + tone + " on a surface")
            }
            readable(set.red, set.surface, 4.5, name + " red on a surface")
            readable(set.red, set.page, 3, name + " red on the page, large")
            for (const tone of ["textPrimary", "textSecondary", "placeholder", "accent"])
                readable(set[tone], set.surfacePressed, 4.5, name + " " + tone + " on a pressed surface")
            readable(set.focusRing, set.page, 3, name + " ring on the page")
            readable(set.focusRing, set.surface, 3, name + " ring on a surface")
        })
    }

    function test_textsWithAColourOfTheirOwn_data() {
        return [{ tag: "light", palette: 1 }, { tag: "dark", palette: 2 }]
    }

    function test_textsWithAColourOfTheirOwn(row) {
        world.display(row.palette, 0, 0)
        for (const fill of ["accent", "unlitButton", "buy", "sell", "leave", "indicatorPanel"])
            readable(Theme.textOnAccent, Theme[fill], 4.5, fill)
        for (const fill of ["toHome", "warningBadge", "riskBadge"])
            readable(Theme.textOnAccent, Theme[fill], 3, fill + ", large")
        for (const banner of ["successBanner", "errorBanner"])
            readable(Theme.textOnAccent, laid(Theme[banner], Theme.bannerOpacity, Theme.navigationBar), 4.5, banner)
        for (const text of ["dealt", "pendingEntrust", "profitLabel"])
            readable(Theme[text], Theme.deep.surface, 4.5, text)
        readable(Theme.navigationText, Theme.navigationBar, 4.5, "title")
        readable(Theme.textPrimary, Theme.pageGrayPlain, 4.5, "text on a plain screen")
        readable(Theme.textSecondary, Theme.pageGrayPlain, 4.5, "second text on a plain screen")
        readable(Theme.deep.accent, Theme.indicatorPanel, 4.5, "the way out of the indicator")
    }

    function test_thePaletteFollowsTheSystemOrTheUser() {
        compare(Theme.dark, Theme.system.window.hslLightness < 0.5)
        world.display(1, 0, 0)
        compare(Theme.pageGray, Qt.color("#F3F3F3"))
        compare(Theme.pageBlue, Qt.color("#2f3853"))
        world.display(2, 0, 0)
        verify(Theme.dark)
        verify(luminance(Theme.pageGray) < 0.02)
    }

    function test_trendsAndOrdersChangeColoursTogether() {
        world.display(1, 0, 0)
        compare(Theme.trend(1, true), Qt.color("#FF4747"))
        compare(Theme.trend(-1, true), Qt.color("#4AFF8A"))
        const [buy, sell] = [String(Theme.buy), String(Theme.sell)]
        const picture = String(Theme.image("stock_buy"))
        world.display(1, 1, 0)
        compare(Theme.trend(1, true), Qt.color("#4AFF8A"))
        compare(Theme.trend(-1, true), Qt.color("#FF4747"))
        compare([String(Theme.buy), String(Theme.sell)], [sell, buy])
        verify(String(Theme.image("stock_buy")) !== picture)
    }

    function test_largeTextGrowsWithItsRows() {
        const [size, row] = [Theme.body.pixelSize, Theme.rowHeight]
        world.display(0, 0, 1)
        verify(Theme.body.pixelSize / size >= 1.3)
        verify(Theme.rowHeight / row >= 1.3)
    }
}
