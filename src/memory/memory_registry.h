// The registry as plain data: typed values under hive, path and name. Names are compared without
// regard to case; a status is the system's own error number.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "environment/registry.h"

namespace brimwork {

namespace registry_status {
inline constexpr int kSuccess = 0;
inline constexpr int kFileNotFound = 2;
inline constexpr int kAccessDenied = 5;
inline constexpr int kInvalidHandle = 6;
inline constexpr int kMoreData = 234;
}  // namespace registry_status

class MemoryRegistry : public Registry {
 public:
  int OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
              RegistryKey& key) override;
  int QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                 std::span<char> buffer, std::uint32_t& size) override;
  int CloseKey(RegistryKey key) override;

  /// Creates the key when it is not there. bytes are kept as they are: a text has its terminating
  /// zero only when it stands in them.
  void SetValue(std::uint32_t hive, std::string_view path, std::string_view name,
                std::uint32_t type, std::string bytes);

  /// Stores a DWORD, lowest byte first.
  void SetDword(std::uint32_t hive, std::string_view path, std::string_view name,
                std::uint32_t value);

  /// The key is there, but opening it is refused.
  void DenyAccess(std::uint32_t hive, std::string_view path);

  int Opens() const { return opens_; }    // calls, refused ones included
  int Closes() const { return closes_; }  // calls, those with a wrong handle included
  std::size_t OpenHandles() const { return handles_.size(); }
  std::uint32_t LastAccess() const { return lastAccess_; }

 private:
  using KeyPath = std::pair<std::uint32_t, std::string>;

  struct Value {
    std::uint32_t type = 0;
    std::string bytes;
  };

  static KeyPath Folded(std::uint32_t hive, std::string_view path);

  std::map<KeyPath, std::map<std::string, Value>> keys_;
  std::set<KeyPath> denied_;
  std::map<RegistryKey, KeyPath> handles_;
  RegistryKey nextHandle_ = 1;
  std::uint32_t lastAccess_ = 0;
  int opens_ = 0;
  int closes_ = 0;
};

}  // namespace brimwork
