#include "support/every_command.h"

#include <algorithm>

#include "core/modButtonClicked.h"
#include "support/click.h"

namespace brimwork {
namespace {

const CatalogueEntry* FindEntry(std::string_view caption, bool wholeModule) {
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.caption == caption && entry.wholeModule == wholeModule) return &entry;
  }
  return nullptr;
}

bool IsListed(const std::vector<DispatchedCommand>& commands, std::string_view caption,
              bool wholeModule) {
  return std::any_of(commands.begin(), commands.end(), [&](const DispatchedCommand& command) {
    return command.caption == caption && command.wholeModule == wholeModule;
  });
}

}  // namespace

std::string DispatchedCommand::Title() const {
  return std::string(caption) + (wholeModule ? " (whole module)" : " (at the caret)");
}

std::vector<DispatchedCommand> EveryCommand() {
  std::vector<DispatchedCommand> commands;
  for (const CatalogueEntry& entry : Catalogue()) {
    for (const bool wholeModule : {false, true}) {
      if (!HasCommand(entry.caption, wholeModule)) continue;
      if (IsListed(commands, entry.caption, wholeModule)) continue;
      commands.push_back({entry.caption, wholeModule, FindEntry(entry.caption, wholeModule)});
    }
  }
  return commands;
}

void Run(AddIn& addIn, const DispatchedCommand& command) {
  if (command.entry != nullptr) {
    Click(addIn, *command.entry, command.caption);
  } else {
    ButtonClicked(addIn, command.caption, command.wholeModule);
  }
}

}  // namespace brimwork
