#include "bench/automation/member.h"

#include <algorithm>

#include "bench/automation/names.h"

namespace brimwork::bench {
namespace {

template <typename Condition>
const Member* FindWhere(const InterfaceTable& table, const Condition& condition) {
  for (const InterfaceTable* level = &table; level != nullptr; level = level->base) {
    const auto found = std::ranges::find_if(level->members, condition);
    if (found != level->members.end()) return &*found;
  }
  return nullptr;
}

}  // namespace

const Member* FindMember(const InterfaceTable& table, std::wstring_view name) {
  return FindWhere(table, [&](const Member& member) { return SameName(member.name, name); });
}

const Member* FindMember(const InterfaceTable& table, DISPID id) {
  return FindWhere(table, [&](const Member& member) { return member.id == id; });
}

DISPID ParameterId(const Member& member, std::wstring_view name) {
  for (std::size_t index = 0; index < member.parameters.count; ++index) {
    if (SameName(member.parameters.Name(index), name)) return static_cast<DISPID>(index);
  }
  return DISPID_UNKNOWN;
}

}  // namespace brimwork::bench
