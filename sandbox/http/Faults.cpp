#include "http/Faults.h"

#include <algorithm>

namespace sandbox::http {
namespace {

bool covers(const std::string &pattern, const std::string &path)
{
    if (!pattern.empty() && pattern.back() == '*')
        return path.compare(0, pattern.size() - 1, pattern, 0, pattern.size() - 1) == 0;
    return pattern == path;
}

} // namespace

const std::vector<std::string> &faultNames()
{
    static const std::vector<std::string> names{"delay",  "delay-before",  "drop-before",  "drop-after",
                                                "status", "garbage",       "content-type", "truncate",
                                                "refuse", "duplicate-push"};
    return names;
}

bool worksAtOnce(FaultKind kind)
{
    return kind != FaultKind::DelayBefore && kind != FaultKind::DropBefore && kind != FaultKind::Status &&
           kind != FaultKind::Refuse;
}

std::optional<FaultKind> faultKind(const std::string &name)
{
    const auto &names = faultNames();
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        return {};
    return static_cast<FaultKind>(found - names.begin());
}

std::string faultName(FaultKind kind)
{
    return faultNames().at(static_cast<std::size_t>(kind));
}

void Faults::add(Fault fault)
{
    const std::scoped_lock lock(m_mutex);
    m_faults.push_back(std::move(fault));
}

void Faults::clear()
{
    const std::scoped_lock lock(m_mutex);
    m_faults.clear();
}

std::vector<Fault> Faults::pending() const
{
    const std::scoped_lock lock(m_mutex);
    return m_faults;
}

template <typename Matches> std::optional<Fault> Faults::takeFirst(Matches matches)
{
    const std::scoped_lock lock(m_mutex);
    const auto found = std::find_if(m_faults.begin(), m_faults.end(), matches);
    if (found == m_faults.end())
        return {};
    Fault fault = *found;
    if (--found->count <= 0)
        m_faults.erase(found);
    return fault;
}

std::optional<Fault> Faults::take(const std::string &path)
{
    if (path.rfind("sandbox/", 0) == 0)
        return {};
    return takeFirst([&path](const Fault &fault) {
        return fault.kind != FaultKind::DuplicatePush && covers(fault.path, path);
    });
}

bool Faults::takeDuplicatePush()
{
    return takeFirst([](const Fault &fault) { return fault.kind == FaultKind::DuplicatePush; }).has_value();
}

} // namespace sandbox::http
