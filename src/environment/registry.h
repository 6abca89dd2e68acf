// The system registry, read only, with the calls of the system's own interface: a status of 0 is
// success, everything else a failure.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace brimwork {

using RegistryKey = std::uintptr_t;

inline constexpr std::uint32_t kHiveCurrentUser = 0x80000001;
inline constexpr std::uint32_t kRegistrySz = 1;
inline constexpr std::uint32_t kRegistryDword = 4;

class Registry {
 public:
  virtual ~Registry() = default;

  virtual int OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
                      RegistryKey& key) = 0;

  /// Copies the value's bytes into buffer; size is the buffer's size on entry and the number of
  /// bytes on return.
  virtual int QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                         std::span<char> buffer, std::uint32_t& size) = 0;

  virtual int CloseKey(RegistryKey key) = 0;
};

}  // namespace brimwork
