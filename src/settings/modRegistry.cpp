#include "settings/modRegistry.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "environment/resume_next.h"

namespace brimwork {
namespace {

constexpr std::uint32_t kAllAccess = 0x2003F;
constexpr std::size_t kBufferSize = 1024;
constexpr int kSuccess = 0;

/// Closes the key on every way out. A key that was never opened is closed all the same: the system
/// refuses that, and the refusal does no harm.
class OpenedKey {
 public:
  OpenedKey(Registry& registry, std::uint32_t hive, std::string_view path) : registry_(registry) {
    opened_ = registry_.OpenKey(hive, path, kAllAccess, key_) == kSuccess;
  }
  ~OpenedKey() {
    ResumeNext([this] { registry_.CloseKey(key_); });
  }
  OpenedKey(const OpenedKey&) = delete;
  OpenedKey& operator=(const OpenedKey&) = delete;

  explicit operator bool() const { return opened_; }
  RegistryKey Handle() const { return key_; }

 private:
  Registry& registry_;
  RegistryKey key_ = 0;
  bool opened_ = false;
};

/// The bytes that count: one zero at their end is dropped, whatever the value's type.
std::string_view TrimBuffer(std::string_view buffer, std::uint32_t size) {
  std::string_view bytes = buffer.substr(0, std::min<std::size_t>(size, buffer.size()));
  if (bytes.ends_with('\0')) bytes.remove_suffix(1);
  return bytes;
}

std::string RenderDword(std::string_view bytes) {
  std::string text = "&h";
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    std::array<char, 3> digits{};
    std::snprintf(digits.data(), digits.size(), "%X",
                  static_cast<unsigned>(static_cast<unsigned char>(*byte)));
    text += digits.data();
  }
  return text;
}

}  // namespace

bool ReadRegistryValue(Registry& registry, std::uint32_t hive, std::string_view keyPath,
                       std::string_view valueName, std::string& result) {
  const OpenedKey key(registry, hive, keyPath);
  std::array<char, kBufferSize> buffer{};
  std::uint32_t size = kBufferSize;
  std::uint32_t type = 0;
  if (!key || registry.QueryValue(key.Handle(), valueName, type, buffer, size) != kSuccess) {
    result.clear();
    return false;
  }
  const std::string_view bytes = TrimBuffer({buffer.data(), buffer.size()}, size);
  if (type == kRegistrySz) result = bytes;
  if (type == kRegistryDword) result = RenderDword(bytes);
  return true;
}

}  // namespace brimwork
