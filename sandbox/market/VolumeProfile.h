#pragma once

#include "market/Calendar.h"
#include "market/Units.h"

#include <cstdint>
#include <vector>

namespace sandbox {

/**
 * How a day's volume falls on its moments: the day is halved again and again, and each half gets its part by
 * chance, so that the sum up to any moment is known without adding up the others. Auctions get about a
 * hundredth each. A value for one stock and day.
 */
class VolumeProfile {
public:
    VolumeProfile(std::uint64_t seed, const Calendar &calendar, Shares dayVolume);

    /** Whole lots traded in one moment, or in the whole day; moments add up to the day. */
    Shares at(int moment) const;
    Shares wholeDay() const;
    /** All moments of the day. */
    std::vector<Shares> all() const;

private:
    Shares through(int moment) const;
    Shares auction(int moment) const;
    Shares leftPart(int first, int count, Shares volume) const;
    void spread(std::vector<Shares> &volumes, int first, int count, Shares volume) const;

    std::uint64_t m_seed;
    const Calendar &m_calendar;
    Shares m_dayVolume;
    int m_last;       ///< the day's last moment
    int m_begin;      ///< of continuous trading
    int m_count;      ///< moments of continuous trading
    Shares m_opening; ///< volume of the opening auction
    Shares m_continuous;
};

} // namespace sandbox
