// What the add-in's installation writes into the registry, so that the editors find and load it.
#pragma once

#include <windows.h>

#include <string>
#include <variant>
#include <vector>

namespace brimwork::windows {

/// For whom the class is registered.
enum class Scope { kMachine, kUser };

struct RegistryEntry {
  HKEY root;
  std::string key;
  std::string name;  // "" for the key's default value
  std::variant<std::string, unsigned long> value;
};

/// All values of an installation of the component at a path, in the order of their writing: the
/// class, then the lists of add-ins of the editors of this word size, which are always the user's.
std::vector<RegistryEntry> RegistrationOf(const std::string& path, Scope scope);

/// The machine's when the process may write there, which an elevated one may; else the user's.
Scope AvailableScope();

/// Writes them. Throws RunTimeError with the system's words when one cannot be written; what was
/// written by then is removed again.
void Register(const std::string& path, Scope scope);

/// Removes the class from both scopes, as far as the process may, and the add-in from the editors'
/// lists. What is not there is fine.
void Unregister();

}  // namespace brimwork::windows
