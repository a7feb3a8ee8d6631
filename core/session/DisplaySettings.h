#pragma once

/// How this device shows the client: it is kept in the settings store, and outlives a user who signs out.
struct DisplaySettings {
    enum class Palette { System, Light, Dark };
    enum class TrendColours { RedRises, GreenRises };
    enum class TextSize { Standard, Large };

    Palette palette = Palette::System;
    TrendColours trendColours = TrendColours::RedRises;
    TextSize textSize = TextSize::Standard;
    /// Whether home and my account show what is in the account.
    bool amountsHidden = false;

    /// What is stored; where that is missing or garbled, the standard.
    static DisplaySettings stored();
    /// Stores it and posts NotificationNames::displayChanged.
    void store() const;
};
