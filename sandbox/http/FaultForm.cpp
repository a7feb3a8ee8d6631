#include "http/FaultForm.h"

#include "http/Envelope.h"

namespace sandbox::http {
namespace {

Refusal unknownKind()
{
    std::string kinds = "clear";
    for (const std::string &name : faultNames())
        kinds += ", " + name;
    return Refusal("unknown kind; one of " + kinds);
}

} // namespace

void applyFaultForm(Faults &faults, const Call &call)
{
    const std::string kind = call.text("kind");
    if (kind == "clear")
        return faults.clear();
    const auto found = faultKind(kind);
    if (!found)
        throw unknownKind();
    Fault fault;
    fault.kind = *found;
    fault.path = fault.kind == FaultKind::DuplicatePush ? "sandbox/push" : call.need("path", "path");
    fault.count = call.number("count", 1, 1, 1'000'000);
    fault.delay = std::chrono::milliseconds(call.number("delay", 0, 0, 600'000));
    fault.status = call.number("status", 500, 200, 599);
    if (const std::string message = call.text("message"); !message.empty())
        fault.message = message;
    faults.add(std::move(fault));
}

} // namespace sandbox::http
