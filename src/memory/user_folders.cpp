#include "memory/user_folders.h"

#include <cstdlib>

namespace brimwork {
namespace {

/// A relative path would mean another folder in every working directory, so it does not count.
std::filesystem::path AbsoluteOrNone(std::filesystem::path path) {
  return path.is_absolute() ? path : std::filesystem::path();
}

}  // namespace

std::string EnvironmentVariable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

std::filesystem::path HomeFolder() { return AbsoluteOrNone(EnvironmentVariable("HOME")); }

std::filesystem::path ConfigFolder() {
  if (auto config = AbsoluteOrNone(EnvironmentVariable("XDG_CONFIG_HOME")); !config.empty())
    return config;
  const auto home = HomeFolder();
  return home.empty() ? home : home / ".config";
}

}  // namespace brimwork
