// Every command that the dispatcher has, so that a test that looks at all of them also looks at
// those that are added later.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/add_in.h"
#include "core/catalogue.h"

namespace brimwork {

struct DispatchedCommand {
  std::string_view caption;
  bool wholeModule = false;
  const CatalogueEntry* entry = nullptr;  // null when only other commands dispatch it

  /// As a test names it: the caption and what it acts on.
  std::string Title() const;
};

/// Each caption and flag once.
std::vector<DispatchedCommand> EveryCommand();

/// Clicks the command's entry, or hands the command to the dispatcher where it has none.
void Run(AddIn& addIn, const DispatchedCommand& command);

}  // namespace brimwork
