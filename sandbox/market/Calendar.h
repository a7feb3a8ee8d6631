#pragma once

#include "market/Units.h"

#include <vector>

namespace sandbox {

/** What the exchange does at a moment. */
enum class Phase {
    Closed,           ///< takes no orders
    OpeningAuction,   ///< 9:15 to 9:20: orders and cancels
    OpeningLocked,    ///< 9:20 to 9:25: orders, no cancels
    BeforeContinuous, ///< 9:25 to 9:30: both are taken and wait
    Continuous,
    Lunch,         ///< 11:30 to 13:00: both are taken and wait
    ClosingAuction ///< 14:57 to 15:00: orders, no cancels
};

/**
 * Trading days and their moments, in Asia/Shanghai (eight hours east of Greenwich, no summer time).
 *
 * A trading day is cut into moments about three seconds apart at which the market's price is set: `moment`
 * counts them from 0. Around the clock every calendar day is a trading day of 28,800 moments. With market
 * hours the first moment is the opening auction's (9:25), the last the closing auction's (15:00), and
 * weekends and the exchange's holidays are not trading days. Days are counted from the first one of 2025;
 * what is before it counts as day 0. Immutable.
 */
class Calendar {
public:
    explicit Calendar(bool marketHours);

    bool marketHours() const { return m_marketHours; }

    /** The running trading day: the last one whose date is not after the time's. */
    int dayOf(Millis time) const;
    /** Its date as 20260105. */
    int dateOf(int day) const;
    /** Midnight at its begin. */
    Millis begin(int day) const;
    /** When its unfilled orders expire: the closing auction's moment, or midnight at its end. */
    Millis close(int day) const;
    /** When the day first takes orders. */
    Millis opens(int day) const;

    int momentCount() const { return m_momentCount; }
    Millis timeOf(int day, int moment) const;
    /** The day's last moment not after the time; -1 before its first. */
    int momentOf(int day, Millis time) const;
    /** True for the moments at which an auction is settled. */
    bool isAuction(int moment) const;

    Phase phase(Millis time) const;

private:
    bool m_marketHours;
    int m_momentCount;
    std::vector<int> m_dates; ///< days since 1970 of each trading day; empty around the clock
};

constexpr Millis kSecond = 1000;
constexpr Millis kMinute = 60 * kSecond;
constexpr Millis kDay = 24 * 60 * kMinute;
constexpr Millis kMomentLength = 3 * kSecond;

/** Milliseconds since midnight in Shanghai. */
Millis timeOfDay(Millis time);
/** The date in Shanghai, as 20260105. */
int dateAt(Millis time);

} // namespace sandbox
