#pragma once

#include "market/Calendar.h"

namespace sandbox {

constexpr Millis shanghai(int daysSince1970, int hour, int minute)
{
    return daysSince1970 * kDay + ((hour - 8) * 60 + minute) * kMinute;
}
constexpr int kTuesday = 20'410; ///< 18 November 2025

} // namespace sandbox
