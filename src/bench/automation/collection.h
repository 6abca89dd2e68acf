// What the collections of the object model have in common: entries that are asked for by number or
// by name, and enumerators.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/automation/call.h"
#include "bench/automation/interfaces.h"
#include "bench/automation/variant_enumerator.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {

[[noreturn]] inline void RaiseNoSuchEntry() {
  throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range");
}

/// The entry that the first argument names: a text by matches(entry, text), a number from 1 by its
/// place. Raises error 9 when there is none.
template <typename Entries, typename Matches>
win32::Variant EntryOf(Call& call, const Entries& entries, Matches matches) {
  if (call.IsText(0)) {
    const std::string name = call.Text(0);
    const auto found =
        std::ranges::find_if(entries, [&](const auto& entry) { return matches(*entry, name); });
    if (found == entries.end()) RaiseNoSuchEntry();
    return ObjectOf(call, *found);
  }
  const long index = call.Long(0);
  if (index < 1 || index > static_cast<long>(entries.size())) RaiseNoSuchEntry();
  return ObjectOf(call, entries[static_cast<std::size_t>(index - 1)]);
}

/// An enumerator over the entries as they are now.
template <typename Entries>
win32::Variant EnumeratorOf(Call& call, const Entries& entries) {
  std::vector<win32::Variant> values;
  for (const auto& entry : entries) values.push_back(ObjectOf(call, entry));
  return NewEnumerator(call.TheSession(), std::move(values));
}

template <typename Entries>
win32::Variant CountOf(const Entries& entries) {
  return win32::Variant(static_cast<long>(entries.size()));
}

}  // namespace brimwork::bench
