// Builds the catalogue's entries on the environment's bars.
#pragma once

#include <memory>
#include <string_view>

#include "core/add_in.h"
#include "core/added_entries.h"
#include "core/catalogue.h"

namespace brimwork {

/// Every operation stops at the first error and raises it; what was added by then is in entries.
class EntryBuilder {
 public:
  /// A handler that runs keeps the add-in alive.
  EntryBuilder(const std::shared_ptr<AddIn>& addIn, AddedEntries& entries)
      : addIn_(addIn), entries_(entries) {}

  /// Builds all entries of a place, with their submenus, at the end of a bar or popup.
  void Build(CommandBarControls& parent, EntryPlace place);

  /// Adds a submenu; before is the place of the control in front of which it goes, 0 for the end.
  std::shared_ptr<CommandBarControls> AddSubmenu(CommandBarControls& parent,
                                                 std::string_view caption, std::string_view tag,
                                                 bool beginGroup, int before = 0);

 private:
  void AddButton(CommandBarControls& parent, const CatalogueEntry& entry);
  void AddBuiltIns(CommandBarControls& parent, int behindHandler);

  const std::shared_ptr<AddIn>& addIn_;
  AddedEntries& entries_;
};

/// The bar of that name. Raises error 91 when there is none.
std::shared_ptr<CommandBar> BarOfName(VBE& vbe, std::string_view name);

}  // namespace brimwork
