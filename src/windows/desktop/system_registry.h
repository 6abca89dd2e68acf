// The system's registry behind the seam's calls.
#pragma once

#include "environment/registry.h"

namespace brimwork::windows {

class SystemRegistry : public Registry {
 public:
  int OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
              RegistryKey& key) override;
  /// Text values come as UTF-8, ended by a NUL: the user's letters need not be those of one code
  /// page.
  int QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                 std::span<char> buffer, std::uint32_t& size) override;
  int CloseKey(RegistryKey key) override;
};

}  // namespace brimwork::windows
