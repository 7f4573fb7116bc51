pragma Singleton
import QtQuick
import Velmora

/// Type sizes, colours and spacing of every view, in light and dark.
QtObject {
    readonly property bool dark: SystemAppearance.dark

    // Type, in points of the layout. Captions stay readable on displays of low density.
    readonly property string fontFamily: SystemAppearance.fontFamily
    readonly property int title2: 17
    readonly property int title3: 15
    readonly property int headline: 13
    readonly property int body: 13
    readonly property int callout: 12
    readonly property int caption: 11

    // Text at 4.5 to 1 and more on what it stands on, symbols at 3 to 1.
    readonly property color primary: dark ? "#ececee" : "#1d1d1f"
    readonly property color secondary: dark ? "#b3b3b8" : "#5a5a5f"
    readonly property color tertiary: dark ? "#9a9aa0" : "#6d6d72"
    // For a large symbol beside its own words.
    readonly property color emblem: dark ? "#77777c" : "#8a8a8f"
    readonly property color accentText: dark ? "#66aeff" : "#0b5fd0"
    // White up to the accents that are too light for it, such as yellow.
    readonly property color overAccent: choosesAccent || accent.hslLightness < 0.6 ? "#ffffff"
                                                                                  : "#1d1d1f"
    readonly property color red: dark ? "#ff8078" : "#cc1f1a"
    readonly property color orange: dark ? "#ffa733" : "#c76200"
    readonly property color green: dark ? "#3fd160" : "#1a7331"
    readonly property color destructive: dark ? "#ffb0ab" : "#c41c17"

    // Surfaces.
    readonly property color windowBackground: dark ? "#252527" : "#f5f5f7"
    readonly property color sidebarBackground: dark ? "#2e2e31" : "#eaeaed"
    readonly property color textBackground: dark ? "#1b1b1d" : "#ffffff"
    readonly property color groupBackground: dark ? "#2d2d30" : "#fcfcfd"
    readonly property color sheetBackground: dark ? "#2c2c2f" : "#f5f5f7"
    readonly property color menuBackground: dark ? "#333337" : "#f8f8fa"
    readonly property color controlBackground: dark ? "#454549" : "#ffffff"
    readonly property color controlHover: dark ? "#4c4c50" : "#fafafb"
    readonly property color controlPressed: dark ? "#505055" : "#e6e6e9"
    readonly property color controlBorder: dark ? "#5b5b60" : "#cfcfd4"
    readonly property color controlEdge: dark ? "#232325" : "#b9b9bf"
    readonly property color sheetEdge: dark ? "#4a4a4e" : "#cfcfd4"
    readonly property color boxEdge: dark ? "#a8a8ae" : "#5f5f64"
    readonly property color segment: dark ? "#636369" : "#ffffff"
    readonly property color segmentEdge: dark ? "#636369" : "#d9d9de"
    readonly property color groove: dark ? "#33ffffff" : "#1f000000"
    readonly property color scrollThumb: dark ? "#99ffffff" : "#80000000"
    readonly property color switchOff: dark ? "#5c5c61" : "#d2d2d7"
    readonly property color separator: dark ? "#3d3d41" : "#dcdce0"
    readonly property color quaternary: dark ? "#1affffff" : "#0f000000"
    readonly property color sheetDim: dark ? "#59000000" : "#33000000"
    readonly property color shadow: dark ? "#66000000" : "#33000000"

    // What is chosen, pressed or focused.
    readonly property bool choosesAccent: !SystemAppearance.accent.valid
    readonly property color accent: !choosesAccent ? SystemAppearance.accent
                                                   : dark ? "#0f6ae0" : "#0a66dd"
    readonly property color accentHover: !choosesAccent ? Qt.lighter(accent, 1.06)
                                                        : dark ? "#1a73e8" : "#0960d0"
    readonly property color accentPressed: !choosesAccent ? Qt.darker(accent, 1.2)
                                                          : dark ? "#0c5ac0" : "#0852b3"
    readonly property color focusRing: !choosesAccent ? Qt.alpha(accent, 0.5)
                                                      : dark ? "#8066aeff" : "#800a66dd"
    readonly property color selection: dark ? "#3d5f8f" : "#b8d4fb"

    // Spacing and shape.
    readonly property int gap: 8
    readonly property int padding: 16
    readonly property int sheetPadding: 24
    readonly property int formMargin: 10
    readonly property int tinyRadius: 4
    readonly property int smallRadius: 5
    readonly property int radius: 6
    readonly property int boxRadius: 8
    readonly property int panelRadius: 10
    readonly property int largeRadius: 12
    readonly property int widestRow: 820
    readonly property int controlHeight: 24
    readonly property int smallControlHeight: 20
    readonly property int largeControlHeight: 30
    readonly property int focusRingWidth: 3
    readonly property real disabledOpacity: 0.45

    /// How long a colour or a position takes to change, in milliseconds.
    readonly property int quick: SystemAppearance.animated ? 90 : 0
    readonly property int sheetSlide: SystemAppearance.animated ? 220 : 0
    readonly property int helpDelay: 900

    /// What a screen reader hears of a control that is off, a state that the toolkit keeps to itself.
    readonly property string unavailable: "Unavailable"

    // A row that steps back; what stands on it makes up for the contrast that this takes.
    readonly property real faintOpacity: 0.72

    /// What a tone looks like, on a row that is drawn faint or not.
    function colorOf(tone: int, faint: bool): color {
        switch (tone) {
        case Look.Tone.secondary:
            return !faint ? secondary : dark ? "#cfcfd4" : "#333337";
        case Look.Tone.tertiary:
            return !faint ? tertiary : dark ? "#c2c2c7" : "#3a3a3e";
        case Look.Tone.accent:
            return !faint ? accentText : dark ? "#94c7ff" : "#003a99";
        case Look.Tone.red:
            return red;
        case Look.Tone.orange:
            return faint && !dark ? "#aa4b00" : orange;
        case Look.Tone.green:
            return !faint ? green : dark ? "#5cdb79" : "#004a14";
        case Look.Tone.primary:
            return primary;
        }
    }
}
