// What the user sees and chooses of the add-ins in the Add-In Manager.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "bench/add_ins/add_ins.h"

namespace brimwork::bench {

struct AddInChoice {
  std::string progId;
  std::string title;
  std::string description;
  std::string failure;  // why it could not be loaded the last time; "" when it could
  bool isLoaded = false;
  bool atStartup = false;
  bool forCommandLine = false;

  bool operator==(const AddInChoice&) const = default;
};

std::vector<AddInChoice> ChoicesOf(const AddIns& addIns);

/// "Startup / Loaded" and the like, as the list shows it; why it failed comes first.
std::string BehaviorText(const AddInChoice& choice);

/// What stands below the list: the description, and the reason of a failure under it.
std::string DetailText(const AddInChoice& choice);

/// Loads, unloads and writes to the registry what was chosen otherwise than it is. Answers what
/// went wrong, a line each with the add-in's title; the rest is done all the same.
std::vector<std::string> Apply(AddIns& addIns, const std::vector<AddInChoice>& choices);

}  // namespace brimwork::bench
