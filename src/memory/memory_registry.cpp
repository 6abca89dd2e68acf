#include "memory/memory_registry.h"

#include <algorithm>

#include "environment/text.h"

namespace brimwork {

MemoryRegistry::KeyPath MemoryRegistry::Folded(std::uint32_t hive, std::string_view path) {
  return {hive, FoldName(path)};
}

int MemoryRegistry::OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
                            RegistryKey& key) {
  ++opens_;
  lastAccess_ = access;
  if (keys_.empty() && denied_.empty()) return registry_status::kFileNotFound;
  const KeyPath wanted = Folded(hive, path);
  if (denied_.contains(wanted)) return registry_status::kAccessDenied;
  if (!keys_.contains(wanted)) return registry_status::kFileNotFound;
  key = nextHandle_++;
  handles_[key] = wanted;
  return registry_status::kSuccess;
}

int MemoryRegistry::QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                               std::span<char> buffer, std::uint32_t& size) {
  const auto handle = handles_.find(key);
  if (handle == handles_.end()) return registry_status::kInvalidHandle;
  const auto& values = keys_.at(handle->second);
  const auto found = values.find(FoldName(name));
  if (found == values.end()) return registry_status::kFileNotFound;

  const Value& value = found->second;
  const std::size_t room = std::min<std::size_t>(size, buffer.size());
  type = value.type;
  size = static_cast<std::uint32_t>(value.bytes.size());
  if (value.bytes.size() > room) return registry_status::kMoreData;
  std::copy(value.bytes.begin(), value.bytes.end(), buffer.begin());
  return registry_status::kSuccess;
}

int MemoryRegistry::CloseKey(RegistryKey key) {
  ++closes_;
  return handles_.erase(key) == 1 ? registry_status::kSuccess : registry_status::kInvalidHandle;
}

void MemoryRegistry::SetValue(std::uint32_t hive, std::string_view path, std::string_view name,
                              std::uint32_t type, std::string bytes) {
  keys_[Folded(hive, path)][FoldName(name)] = {type, std::move(bytes)};
}

void MemoryRegistry::SetDword(std::uint32_t hive, std::string_view path, std::string_view name,
                              std::uint32_t value) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xFF);
  SetValue(hive, path, name, kRegistryDword, std::move(bytes));
}

void MemoryRegistry::DenyAccess(std::uint32_t hive, std::string_view path) {
  denied_.insert(Folded(hive, path));
}

}  // namespace brimwork
