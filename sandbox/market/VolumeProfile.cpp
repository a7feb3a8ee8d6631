#include "market/VolumeProfile.h"

#include "market/Random.h"

namespace sandbox {

namespace {

enum Purpose { Auction = 150, Part };

Shares wholeLots(Shares shares)
{
    return shares / 100 * 100;
}

} // namespace

VolumeProfile::VolumeProfile(std::uint64_t seed, const Calendar &calendar, Shares dayVolume)
    : m_seed(seed), m_calendar(calendar), m_dayVolume(dayVolume), m_last(calendar.momentCount() - 1),
      m_begin(calendar.isAuction(0) ? 1 : 0), m_count(calendar.momentCount() - 2 * m_begin),
      m_opening(auction(0)), m_continuous(dayVolume - m_opening - auction(m_last))
{
}

Shares VolumeProfile::at(int moment) const
{
    return wholeLots(through(moment)) - wholeLots(through(moment - 1));
}

Shares VolumeProfile::wholeDay() const
{
    return wholeLots(m_dayVolume);
}

std::vector<Shares> VolumeProfile::all() const
{
    std::vector<Shares> volumes(static_cast<std::size_t>(m_last) + 1);
    volumes.front() = m_opening;
    volumes.back() = auction(m_last);
    spread(volumes, m_begin, m_count, m_continuous);
    Shares sum = 0;
    for (Shares &volume : volumes) {
        const Shares before = sum;
        sum += volume;
        volume = wholeLots(sum) - wholeLots(before);
    }
    return volumes;
}

Shares VolumeProfile::through(int moment) const
{
    if (moment < 0)
        return 0;
    if (moment == m_last)
        return m_dayVolume;
    if (moment < m_begin)
        return m_opening;
    int first = m_begin;
    int count = m_count;
    Shares volume = m_continuous;
    Shares sum = m_opening;
    while (count > 1) {
        const Shares left = leftPart(first, count, volume);
        const int half = count / 2;
        if (moment < first + half) {
            count = half;
            volume = left;
        } else {
            sum += left;
            volume -= left;
            first += half;
            count -= half;
        }
    }
    return sum + volume;
}

Shares VolumeProfile::auction(int moment) const
{
    return m_calendar.isAuction(moment)
               ? m_dayVolume / 100 * between(draw(m_seed, Auction, moment), 50, 150) / 100
               : 0;
}

Shares VolumeProfile::leftPart(int first, int count, Shares volume) const
{
    const Shares even = volume * (count / 2) / count;
    return even * between(draw(m_seed, Part, first, count), 40, 160) / 100;
}

void VolumeProfile::spread(std::vector<Shares> &volumes, int first, int count, Shares volume) const
{
    if (count == 1) {
        volumes[static_cast<std::size_t>(first)] = volume;
        return;
    }
    const Shares left = leftPart(first, count, volume);
    const int half = count / 2;
    spread(volumes, first, half, left);
    spread(volumes, first + half, count - half, volume - left);
}

} // namespace sandbox
