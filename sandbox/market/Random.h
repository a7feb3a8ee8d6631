#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>

namespace sandbox {

/**
 * Chance without state: the same seed and keys always give the same bits, in any order of asking. Everything
 * the simulated market does by chance is drawn here, so a price can be computed for any moment on demand.
 */
constexpr std::uint64_t scramble(std::uint64_t x)
{
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

template <typename Key>
concept DrawKey = std::integral<Key> || std::is_enum_v<Key>;

template <DrawKey... Keys> constexpr std::uint64_t draw(std::uint64_t seed, Keys... keys)
{
    ((seed = scramble(seed ^ static_cast<std::uint64_t>(keys))), ...);
    return seed;
}

/** A whole number from low to high, both included. */
constexpr std::int64_t between(std::uint64_t bits, std::int64_t low, std::int64_t high)
{
    return low + static_cast<std::int64_t>(bits % static_cast<std::uint64_t>(high - low + 1));
}

/** Bell-shaped about 0, in thousandths of a standard deviation, never beyond 3464. */
constexpr std::int64_t bell(std::uint64_t bits)
{
    std::int64_t sum = 0;
    for (int shift = 0; shift < 64; shift += 16)
        sum += static_cast<std::int64_t>((bits >> shift) & 0xffff);
    constexpr std::int64_t mean = 2 * 0xffff;
    constexpr std::int64_t deviation = 37837; // of the sum of four even draws
    return (sum - mean) * 1000 / deviation;
}

} // namespace sandbox
