#include "cli/commands_list.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "cli/command_request.h"
#include "cli/spell_run.h"
#include "core/catalogue.h"
#include "core/modButtonClicked.h"

namespace brimwork {
namespace {

std::vector<std::string_view> Captions() {
  std::vector<std::string_view> captions;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (std::ranges::find(captions, entry.caption) == captions.end()) {
      captions.push_back(entry.caption);
    }
  }
  return captions;
}

std::string_view WorksOn(std::string_view caption) {
  const bool onModule = HasCommand(caption, true);
  const bool atPlace = HasCommand(caption, false);
  if (caption == "Standard Header" || caption == "Adapted Header") return "module";
  if (caption == kSpellCheckCaption) return "module";
  if (caption == "Insert Time Stamp") return "line";
  if (caption == "MsgBox Creator") return "a new message box";
  if (caption == "Configure Brimwork") return "the settings";
  if (IsExport(caption)) return "module or lines";
  if (NeedsTheEditor(caption)) return "in the editor only";
  if (onModule && atPlace) return "module or procedure";
  if (onModule) return "module";
  return "procedure";
}

std::string Padded(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, padded.size() + 1), ' ');
  return padded;
}

std::string Row(std::string_view caption, std::string_view worksOn, std::string_view name) {
  constexpr std::size_t kCaptionWidth = 35;
  constexpr std::size_t kWorksOnWidth = 21;
  std::string row = Padded(caption, kCaptionWidth) + Padded(worksOn, kWorksOnWidth);
  row.append(name);
  row.erase(row.find_last_not_of(' ') + 1);
  return row + '\n';
}

}  // namespace

std::string CommandsTable() {
  std::string table = Row("CAPTION", "WORKS ON", "ALSO CALLED");
  for (const std::string_view caption : Captions()) {
    table += Row(caption, WorksOn(caption), CommandNameOf(caption));
  }
  return table;
}

}  // namespace brimwork
