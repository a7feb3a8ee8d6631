#pragma once

#include "http/Call.h"
#include "http/Faults.h"

namespace sandbox::http {

/// Adds the fault that the fields "kind", "path", "count" (1), "delay" (0 ms), "status" (500) and "message"
/// describe; the kind "clear" removes all. Throws Refusal.
void applyFaultForm(Faults &faults, const Call &call);

} // namespace sandbox::http
