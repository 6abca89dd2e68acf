#include "cli/command_request.h"

#include <algorithm>
#include <span>
#include <vector>

#include "cli/near_miss.h"
#include "cli/spell_run.h"
#include "core/catalogue.h"
#include "core/modButtonClicked.h"

namespace brimwork {
namespace {

struct FriendlyName {
  std::string_view name;
  std::string_view caption;
};

constexpr FriendlyName kFriendlyNames[] = {
    {"cleanup", "Code Clean Up"},
    {"indent", "Indent All Procedures"},
    {"number", "Add Line Numbers"},
    {"unnumber", "Remove Line Numbers"},
    {"comment", "Comment All Procedures"},
    {"comment", "Comment Procedure"},
    {"error-handling", "Insert Error Handling"},
    {"header", "Standard Header"},
    {"header --adapted", "Adapted Header"},
    {"timestamp", "Insert Time Stamp"},
    {"spell", kSpellCheckCaption},
    {"export --format text", "Text"},
    {"export --format rtf", "RTF"},
    {"export --format html", "Web Page"},
    {"export --quick", "Quick Export"},
    {"msgbox", "MsgBox Creator"},
    {"setup", "Configure Brimwork"},
};

/// What these change are windows of the editor, and no module's text.
constexpr std::string_view kWindowCommands[] = {"Full Screen", "Clear Immediate Window",
                                                "Close Windows"};

/// What these open are forms, help and web pages of the add-in.
constexpr std::string_view kOpeningCommands[] = {"MsgBox Creator", "Contents",
                                                 "Index",          "Configure Brimwork",
                                                 "About Brimwork", "Vantrel Web Site"};

bool IsAmong(std::span<const std::string_view> captions, std::string_view caption) {
  return std::ranges::find(captions, caption) != captions.end();
}

bool IsInCatalogue(std::string_view caption) {
  return std::ranges::any_of(Catalogue(),
                             [&](const CatalogueEntry& entry) { return entry.caption == caption; });
}

constexpr std::string_view kTimeStamp = "Insert Time Stamp";

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string UnknownCaption(std::string_view caption) {
  std::vector<std::string_view> captions;
  for (const CatalogueEntry& entry : Catalogue()) captions.push_back(entry.caption);
  return "there is no command " + Quoted(caption) + NearMissHint(caption, captions) +
         "; \"brimwork commands\" lists them all";
}

/// A header goes to the top of the module wherever the caret stands, and the spell check goes over
/// all of it.
bool NeedsPlace(std::string_view caption) {
  return caption != "Standard Header" && caption != "Adapted Header" &&
         caption != kSpellCheckCaption;
}

/// Refuses the commands that leave no module behind: those that make another file of it, those on
/// windows, and those that open something.
void CheckResult(std::string_view caption) {
  if (IsExport(caption)) {
    throw UsageError(Quoted(caption) + " makes another file of the module: run brimwork " +
                     std::string(CommandNameOf(caption)));
  }
  if (IsAmong(kWindowCommands, caption)) {
    throw UsageError(Quoted(caption) +
                     " acts on the environment's windows, and the command line has none");
  }
  if (IsAmong(kOpeningCommands, caption)) {
    const std::string_view name = CommandNameOf(caption);
    throw UsageError(Quoted(caption) + " opens a window" +
                     (name.empty() ? ", and the command line has none"
                                   : ": run brimwork " + std::string(name)));
  }
}

void CheckPlace(const PlaceRequest& place) {
  if (place.line && place.procedure) {
    throw UsageError("--line and --procedure name one place twice: give one of them");
  }
  if (place.column && !place.line) throw UsageError("--column needs --line");
}

}  // namespace

CommandRequest MakeCommandRequest(std::string_view caption, const PlaceRequest& place) {
  CheckPlace(place);
  if (caption == kTimeStamp && place.procedure) {
    throw UsageError("a time stamp goes to one line: give --line N");
  }
  if (!IsInCatalogue(caption)) throw UsageError(UnknownCaption(caption));
  CheckResult(caption);
  const bool onModule = HasCommand(caption, true);
  const bool atPlace = HasCommand(caption, false);
  if (place.IsGiven() && !atPlace) {
    throw UsageError(Quoted(caption) +
                     " works on the whole module: leave out --line and --procedure");
  }
  if (!place.IsGiven() && !onModule && NeedsPlace(caption)) {
    throw UsageError(Quoted(caption) + " works at one place: give --line N" +
                     (caption == kTimeStamp ? "" : " or --procedure NAME"));
  }
  const PlaceRequest where = NeedsPlace(caption) ? place : PlaceRequest{};
  return {std::string(caption), where, !place.IsGiven() && onModule};
}

bool IsExport(std::string_view caption) { return CommandNameOf(caption).starts_with("export "); }

bool NeedsTheEditor(std::string_view caption) {
  return IsAmong(kWindowCommands, caption) ||
         (IsAmong(kOpeningCommands, caption) && CommandNameOf(caption).empty());
}

std::string_view CaptionOf(std::string_view commandName) {
  for (const FriendlyName& row : kFriendlyNames) {
    if (row.name == commandName) return row.caption;
  }
  return {};
}

std::string_view CommandNameOf(std::string_view caption) {
  for (const FriendlyName& row : kFriendlyNames) {
    if (row.caption == caption) return row.name;
  }
  return {};
}

}  // namespace brimwork
