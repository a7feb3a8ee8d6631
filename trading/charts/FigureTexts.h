#pragma once

#include <QString>

/// How the figures of a stock are written.
namespace FigureTexts {

/// What stands for a figure that is not known.
inline const QString none = QStringLiteral("--");

/// "12.34"; `none` for what is no price.
QString price(double yuan);
/// "+0.12", "-0.12", "0.00".
QString change(double yuan);
/// In percent: "+1.23%". `base` is a price.
QString rate(double difference, double base);
/// Shares in lots of 100, whole below ten thousand lots: "987手", "12.35万手", "1.23亿手".
QString volume(double shares);
/// "9876.50元" below ten thousand, then "12.35万", "1.23亿".
QString money(double yuan);
/// "2026-01-05".
QString day(int day);
/// "9:31" of a minute of the day.
QString clock(int minute);

} // namespace FigureTexts
