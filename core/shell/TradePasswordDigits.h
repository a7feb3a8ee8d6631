#pragma once

#include <QString>

/// The six digits of a trade password while they are typed, and the six dots that mirror how many there are.
/// They are wiped when this goes.
class TradePasswordDigits {
public:
    static constexpr int length = 6;

    TradePasswordDigits() = default;
    TradePasswordDigits(const TradePasswordDigits &) = delete;
    TradePasswordDigits &operator=(const TradePasswordDigits &) = delete;
    ~TradePasswordDigits() { wipe(); }

    /// Keeps the first six digits of a text, whatever stands between them.
    void setText(const QString &text);
    const QString &text() const { return digits; }
    bool isComplete() const { return digits.size() == length; }
    /// Whether the dot is lit; they are counted from 0.
    bool isLit(int dot) const { return dot < digits.size(); }
    /// How many there are, for those who do not see the dots: "已输入3位".
    QString countText() const { return QStringLiteral("已输入%1位").arg(digits.size()); }
    void wipe();

private:
    QString digits;
};
