#pragma once

#include "store/Database.h"

#include <string>
#include <vector>

namespace sandbox {

/**
 * What must hold in the books after every event, each figure computed anew from the deals and from what came
 * from outside: cash and shares are conserved; nothing is below zero; frozen is what the open orders need; no
 * deal outside its order's price or the day's limits; nothing sold that was bought the same day; fees as the
 * order's total demands; filled as the deals say. Answers one line for each that is broken, so nothing when
 * all hold.
 */
std::vector<std::string> brokenInvariants(Database &database);

} // namespace sandbox
