#include "memory/user_folders.h"

#include "memory/utf8_path.h"

namespace brimwork {
namespace {

/// A relative path would mean another folder in every working directory, so it does not count.
std::filesystem::path AbsoluteOrNone(const char* variable) {
  const std::filesystem::path path = PathOf(EnvironmentVariable(variable));
  return path.is_absolute() ? path : std::filesystem::path();
}

}  // namespace

std::filesystem::path HomeFolder() { return AbsoluteOrNone("HOME"); }

std::filesystem::path ConfigFolder() {
  if (auto config = AbsoluteOrNone("XDG_CONFIG_HOME"); !config.empty())
    return config;
  const auto home = HomeFolder();
  return home.empty() ? home : home / ".config";
}

}  // namespace brimwork
