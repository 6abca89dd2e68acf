// What one building operation has put into the environment, and its removal.
#pragma once

#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "environment/command_bar.h"

namespace brimwork {

/// Begins the tag of each control that the add-in adds.
inline constexpr std::string_view kTagPrefix = "Brimwork.";

class AddedEntries {
 public:
  /// Adds a control. No two tags may be the same: the environment takes controls with the same tag
  /// for one.
  std::shared_ptr<CommandBarControl> Add(CommandBarControls& parent, const NewControl& control,
                                         std::string_view tag);

  /// Keeps the binding of a handler until the entries are removed.
  void Bind(int handler, std::unique_ptr<CommandBarEvents> events);

  /// Deletes the controls one by one, a submenu behind its entries, and ends the bindings. Run-time
  /// errors are passed over.
  void Remove();

 private:
  std::vector<std::shared_ptr<CommandBarControl>> controls_;
  std::map<int, std::unique_ptr<CommandBarEvents>> ButtonHandler_;  // by number
};

/// Deletes the controls that an earlier connection has left, as after a crash. Run-time errors are
/// passed over.
void RemoveLeftovers(CommandBarControls& controls);

}  // namespace brimwork
