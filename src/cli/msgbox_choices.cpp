#include "cli/msgbox_choices.h"

#include <array>
#include <span>
#include <string>
#include <vector>

#include "cli/command_request.h"
#include "cli/near_miss.h"
#include "environment/text.h"
#include "msgbox/msgbox_styles.h"

namespace brimwork {
namespace {

struct ChoiceName {
  std::string_view name;
  int index;
};

constexpr ChoiceName kButtonsNames[] = {{"ok-only", 2},
                                        {"ok-cancel", 1},
                                        {"yes-no", 4},
                                        {"yes-no-cancel", 5},
                                        {"retry-cancel", 3},
                                        {"abort-retry-ignore", 0},
                                        {"ok", 2},
                                        {"vbOKOnly", 2},
                                        {"vbOKCancel", 1},
                                        {"vbYesNo", 4},
                                        {"vbYesNoCancel", 5},
                                        {"vbRetryCancel", 3},
                                        {"vbAbortRetryIgnore", 0}};

constexpr ChoiceName kIconNames[] = {{"none", 0},          {"critical", 1},      {"exclamation", 2},
                                     {"information", 3},   {"question", 4},      {"error", 1},
                                     {"warning", 2},       {"info", 3},          {"vbCritical", 1},
                                     {"vbExclamation", 2}, {"vbInformation", 3}, {"vbQuestion", 4}};

constexpr ChoiceName kModalityNames[] = {
    {"application", 0}, {"system", 1}, {"vbApplicationModal", 0}, {"vbSystemModal", 1}};

constexpr ChoiceName kDefaultButtonNames[] = {{"1", 0},
                                              {"2", 1},
                                              {"3", 2},
                                              {"vbDefaultButton1", 0},
                                              {"vbDefaultButton2", 1},
                                              {"vbDefaultButton3", 2}};

constexpr int kNone = -1;

int IndexOf(std::string_view name, std::span<const ChoiceName> names) {
  for (const ChoiceName& known : names) {
    if (EqualNames(known.name, name)) return known.index;
  }
  return kNone;
}

std::string Hint(std::string_view name, std::span<const ChoiceName> names) {
  std::vector<std::string_view> known;
  for (const ChoiceName& each : names) known.push_back(each.name);
  return NearMissHint(name, known);
}

/// unknown: what the message says of a name that is none; right: the names that it tells.
int RequiredIndex(std::string_view name, std::span<const ChoiceName> names,
                  std::string_view unknown, std::string_view right) {
  const int index = IndexOf(name, names);
  if (index != kNone) return index;
  throw UsageError(std::string(unknown) + " \"" + std::string(name) + '"' + Hint(name, names) +
                   "; " + std::string(right));
}

}  // namespace

int ButtonsSetNamed(std::string_view name) {
  return RequiredIndex(name, kButtonsNames, "--buttons: there is no set",
                       "the sets are ok-only, ok-cancel, yes-no, yes-no-cancel, retry-cancel and "
                       "abort-retry-ignore");
}

int IconNamed(std::string_view name) {
  return RequiredIndex(name, kIconNames, "--icon: there is no icon",
                       "the icons are none, critical, exclamation, information and question");
}

int ModalityNamed(std::string_view name) {
  return RequiredIndex(name, kModalityNames, "--modal: there is no modality",
                       "write application or system");
}

int DefaultButtonNamed(std::string_view name, int buttonsSet) {
  const int index = IndexOf(name, kDefaultButtonNames);
  if (index == kNone) {
    throw UsageError("--default " + std::string(name) +
                     ": write the number of a button, which is 1, 2 or 3");
  }
  const ButtonsSet& set = kButtonsSets.at(static_cast<std::size_t>(buttonsSet));
  if (index < set.buttonCount) return index;
  throw UsageError("--default " + std::string(name) + ": " + std::string(set.name) + " has " +
                   std::to_string(set.buttonCount) +
                   (set.buttonCount == 1 ? " button" : " buttons"));
}

}  // namespace brimwork
