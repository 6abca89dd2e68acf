// The add-in's toolbar and its entries in the environment's menus and pop-up menus.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "core/add_in.h"
#include "core/added_entries.h"

namespace brimwork {

/// Building and removing raise no run-time error.
class Menus {
 public:
  explicit Menus(std::shared_ptr<AddIn> addIn) : addIn_(std::move(addIn)) {}

  // Each stops at its first error and tells the user; what was built by then stays.

  /// Builds the toolbar and puts it to its saved place.
  void BuildToolbar();
  void BuildAddInsMenu();
  void BuildPopups();

  // Nothing where nothing was built.

  /// Saves the toolbar's place first.
  void RemoveToolbar();
  void RemoveAddInsMenu();
  void RemovePopups();

 private:
  template <class Build>
  void BuildOrTell(std::string_view failure, Build build);
  std::shared_ptr<CommandBar> FindToolbar();

  std::shared_ptr<AddIn> addIn_;
  std::shared_ptr<CommandBar> toolbar_;
  AddedEntries toolbarEntries_;
  AddedEntries addInsMenu_;
  AddedEntries popups_;
  bool isToolbarInPlace_ = false;  // until then it has no place that is worth saving
};

}  // namespace brimwork
