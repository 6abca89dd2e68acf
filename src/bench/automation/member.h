// How an interface of the object model is written down: one table of members each, which the
// dispatcher reads.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "win32/variant.h"

namespace brimwork::bench {

class Call;

/// Does what a member does and answers with its value. Raises RunTimeError.
using Handler = win32::Variant (*)(Call& call);

/// The names of a member's parameters in their order. A name behind '?' may be left out.
struct Parameters {
  static constexpr std::size_t kMost = 8;

  constexpr Parameters() = default;
  template <typename... Names>
  constexpr explicit Parameters(Names... list)
      : names{std::wstring_view(list)...}, count(sizeof...(list)) {}

  constexpr bool IsOptional(std::size_t index) const { return names[index].starts_with(L'?'); }
  constexpr std::wstring_view Name(std::size_t index) const {
    return names[index].substr(IsOptional(index) ? 1 : 0);
  }

  std::array<std::wstring_view, kMost> names{};
  std::size_t count = 0;
};

struct Member {
  std::wstring_view name;
  DISPID id;
  Handler get = nullptr;
  Handler put = nullptr;
  Handler method = nullptr;
  Parameters parameters{};
  /// An object is put: by "Set", or by plain assignment.
  bool takesReference = false;
};

// The kinds of members.

constexpr Member Get(std::wstring_view name, DISPID id, Handler get, Parameters parameters = {}) {
  return {.name = name, .id = id, .get = get, .parameters = parameters};
}

constexpr Member GetPut(std::wstring_view name, DISPID id, Handler get, Handler put) {
  return {.name = name, .id = id, .get = get, .put = put};
}

constexpr Member GetSet(std::wstring_view name, DISPID id, Handler get, Handler put) {
  return {.name = name, .id = id, .get = get, .put = put, .takesReference = true};
}

constexpr Member Method(std::wstring_view name, DISPID id, Handler method,
                        Parameters parameters = {}) {
  return {.name = name, .id = id, .method = method, .parameters = parameters};
}

struct InterfaceTable {
  const char* name;
  IID iid;
  std::span<const Member> members;
  const InterfaceTable* base = nullptr;  // whose members it has as well
};

/// Null when the interface has no such member; names are told apart without case.
const Member* FindMember(const InterfaceTable& table, std::wstring_view name);
const Member* FindMember(const InterfaceTable& table, DISPID id);

/// The number by which a member's parameter is named in a call; DISPID_UNKNOWN for a name that it
/// has not.
DISPID ParameterId(const Member& member, std::wstring_view name);

}  // namespace brimwork::bench
