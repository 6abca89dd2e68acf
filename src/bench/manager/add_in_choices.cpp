#include "bench/manager/add_in_choices.h"

#include <algorithm>

#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace {

AddInChoice ChoiceOf(AddIn& addIn) {
  const RegisteredAddIn& registered = addIn.Registered();
  return {.progId = registered.progId,
          .title = registered.friendlyName,
          .description = registered.description,
          .failure = addIn.LastFailure(),
          .isLoaded = addIn.IsConnected(),
          .atStartup = (registered.loadBehavior & load_behavior::kAtStartup) != 0,
          .forCommandLine = (registered.loadBehavior & load_behavior::kForCommandLine) != 0};
}

std::shared_ptr<AddIn> Find(const AddIns& addIns, const std::string& progId) {
  const auto found = std::ranges::find_if(
      addIns.All(), [&](const auto& addIn) { return addIn->ProgId() == progId; });
  return found == addIns.All().end() ? nullptr : *found;
}

/// The registered behaviour with the two choices in it; what else it says stays.
unsigned long BehaviorOf(const AddIn& addIn, const AddInChoice& choice) {
  unsigned long behavior = addIn.Registered().loadBehavior;
  behavior &= ~(load_behavior::kAtStartup | load_behavior::kForCommandLine);
  if (choice.atStartup) behavior |= load_behavior::kAtStartup;
  if (choice.forCommandLine) behavior |= load_behavior::kForCommandLine;
  return behavior;
}

void ApplyTo(AddIns& addIns, AddIn& addIn, const AddInChoice& choice) {
  const unsigned long behavior = BehaviorOf(addIn, choice);
  if (behavior != addIn.Registered().loadBehavior) addIn.SetLoadBehavior(behavior);
  if (choice.isLoaded) {
    addIns.Connect(addIn, ConnectMode::kAfterStartup);
  } else {
    addIns.Disconnect(addIn, DisconnectMode::kUserClosed);
  }
}

}  // namespace

std::vector<AddInChoice> ChoicesOf(const AddIns& addIns) {
  std::vector<AddInChoice> choices;
  for (const auto& addIn : addIns.All()) choices.push_back(ChoiceOf(*addIn));
  return choices;
}

std::string BehaviorText(const AddInChoice& choice) {
  std::string text;
  const auto add = [&](bool isSo, const char* word) {
    if (isSo) text += (text.empty() ? "" : " / ") + std::string(word);
  };
  add(!choice.failure.empty() && !choice.isLoaded, "Failed");
  add(choice.atStartup, "Startup");
  add(choice.forCommandLine, "Command Line");
  add(choice.isLoaded, "Loaded");
  return text;
}

std::string DetailText(const AddInChoice& choice) {
  if (choice.failure.empty()) return choice.description;
  return choice.description + "\r\n\r\nIt could not be loaded: " + choice.failure;
}

std::vector<std::string> Apply(AddIns& addIns, const std::vector<AddInChoice>& choices) {
  std::vector<std::string> failures;
  for (const AddInChoice& choice : choices) {
    const auto addIn = Find(addIns, choice.progId);
    if (addIn == nullptr) continue;
    try {
      ApplyTo(addIns, *addIn, choice);
    } catch (const std::runtime_error& failure) {
      failures.push_back(choice.title + ": " + failure.what());
    }
  }
  return failures;
}

}  // namespace brimwork::bench
