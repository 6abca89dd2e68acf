#include "core/catalogue.h"

#include <algorithm>
#include <iterator>

#include "environment/command_bar.h"

namespace brimwork {
namespace {

constexpr bool kModule = true;
constexpr bool kProcedure = false;
constexpr bool kHourglass = true;
constexpr bool kNoHourglass = false;
constexpr bool kGroup = true;
constexpr bool kNoGroup = false;

constexpr auto kMenu = EntryPlace::kAddInsMenu;
constexpr auto kPopup = EntryPlace::kCodeWindowPopup;
constexpr auto kImmediate = EntryPlace::kImmediateWindowPopup;
constexpr auto kBar = EntryPlace::kToolbar;

constexpr std::string_view kAddHeader = "Add Header";
constexpr std::string_view kExport = "Export Code";
constexpr std::string_view kExportSelected = "Export Selected Code";
constexpr std::string_view kLineNumber = "Line Number";
constexpr std::string_view kHelp = "Help";
constexpr std::string_view kSpellCheck = "Spell Check - Quotes and Comments";

// clang-format off
constexpr CatalogueEntry kEntries[] = {
    {1, "Comment Procedure", "COMMENT", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {2, "Comment All Procedures", "COMMENTALL", kMenu, "", kModule, kHourglass, kNoGroup},
    {3, "Insert Error Handling", "ERROR", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {4, "Insert Time Stamp", "TIMESTAMP", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {5, "Indent All Procedures", "INDENT", kMenu, "", kModule, kHourglass, kNoGroup},
    {6, "Code Clean Up", "CLEANUP", kMenu, "", kModule, kHourglass, kNoGroup},
    {7, "Close Windows", "CLOSE", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {8, "Clear Immediate Window", "CLEAR", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {9, "MsgBox Creator", "MSGBOX", kMenu, "", kProcedure, kNoHourglass, kNoGroup},
    {10, kSpellCheck, "SPELLCHECK", kMenu, "", kProcedure, kNoHourglass, kNoGroup},
    {11, "Full Screen", "FULLSCREEN", kMenu, "", kProcedure, kHourglass, kNoGroup},
    {21, "Standard Header", "STANDARDHEADER", kMenu, kAddHeader, kProcedure, kHourglass, kNoGroup},
    {22, "Adapted Header", "ADAPTEDHEADER", kMenu, kAddHeader, kProcedure, kHourglass, kNoGroup},
    {17, "Text", "TEXT", kMenu, kExport, kModule, kHourglass, kNoGroup},
    {18, "RTF", "RTF", kMenu, kExport, kModule, kHourglass, kNoGroup},
    {19, "Web Page", "HTM", kMenu, kExport, kModule, kHourglass, kNoGroup},
    {20, "Quick Export", "QUICKEXPORT", kMenu, kExport, kModule, kHourglass, kNoGroup},
    {53, "Add Line Numbers", "ADDLINENUMBERS", kMenu, kLineNumber, kModule, kHourglass, kNoGroup},
    {54, "Remove Line Numbers", "REMOVELINENUMBERS", kMenu, kLineNumber, kModule, kHourglass, kNoGroup},
    {60, "Contents", "HELP", kMenu, kHelp, kProcedure, kNoHourglass, kNoGroup},
    {61, "Index", "", kMenu, kHelp, kProcedure, kNoHourglass, kNoGroup},
    {62, "Configure Brimwork", "", kMenu, kHelp, kProcedure, kNoHourglass, kGroup},
    {63, "About Brimwork", "", kMenu, kHelp, kProcedure, kNoHourglass, kNoGroup},
    {64, "Vantrel Web Site", "WEBSITE", kMenu, kHelp, kProcedure, kNoHourglass, kGroup},

    {23, "Comment Procedure", "COMMENT", kPopup, "", kProcedure, kHourglass, kNoGroup},
    {24, "Insert Error Handling", "ERROR", kPopup, "", kProcedure, kHourglass, kNoGroup},
    {25, "Insert Time Stamp", "TIMESTAMP", kPopup, "", kProcedure, kHourglass, kNoGroup},
    {26, "Clear Immediate Window", "CLEAR", kPopup, "", kProcedure, kHourglass, kNoGroup},
    {27, "Full Screen", "FULLSCREEN", kPopup, "", kProcedure, kHourglass, kNoGroup},
    {28, "Text", "TEXT", kPopup, kExportSelected, kProcedure, kHourglass, kNoGroup},
    {29, "RTF", "RTF", kPopup, kExportSelected, kProcedure, kHourglass, kNoGroup},
    {30, "Web Page", "HTM", kPopup, kExportSelected, kProcedure, kHourglass, kNoGroup},
    {31, "Quick Export", "QUICKEXPORT", kPopup, kExportSelected, kProcedure, kHourglass, kNoGroup},
    {32, "Add Line Numbers", "ADDLINENUMBERS", kPopup, kLineNumber, kProcedure, kHourglass, kNoGroup},
    {33, "Remove Line Numbers", "REMOVELINENUMBERS", kPopup, kLineNumber, kProcedure, kHourglass, kNoGroup},

    {34, "Clear Immediate Window", "CLEAR", kImmediate, "", kProcedure, kHourglass, kGroup},

    {36, "Text", "TEXT", kBar, kExport, kModule, kHourglass, kNoGroup},
    {37, "RTF", "RTF", kBar, kExport, kModule, kHourglass, kNoGroup},
    {38, "Web Page", "HTM", kBar, kExport, kModule, kHourglass, kNoGroup},
    {39, "Quick Export", "QUICKEXPORT", kBar, kExport, kModule, kHourglass, kNoGroup},
    {40, "Standard Header", "STANDARDHEADER", kBar, kAddHeader, kProcedure, kHourglass, kNoGroup},
    {41, "Adapted Header", "ADAPTEDHEADER", kBar, kAddHeader, kProcedure, kHourglass, kNoGroup},
    {42, "Comment Procedure", "COMMENT", kBar, "", kProcedure, kHourglass, kNoGroup},
    {43, "Comment All Procedures", "COMMENTALL", kBar, "", kModule, kHourglass, kNoGroup},
    {44, "Insert Error Handling", "ERROR", kBar, "", kProcedure, kHourglass, kNoGroup},
    {45, "Insert Time Stamp", "TIMESTAMP", kBar, "", kProcedure, kHourglass, kNoGroup},
    {46, "Indent All Procedures", "INDENT", kBar, "", kModule, kHourglass, kNoGroup},
    {47, "Code Clean Up", "CLEANUP", kBar, "", kModule, kHourglass, kNoGroup},
    {48, "Close Windows", "CLOSE", kBar, "", kProcedure, kHourglass, kNoGroup},
    {49, "Clear Immediate Window", "CLEAR", kBar, "", kProcedure, kHourglass, kNoGroup},
    {50, "MsgBox Creator", "MSGBOX", kBar, "", kProcedure, kNoHourglass, kNoGroup},
    {51, kSpellCheck, "SPELLCHECK", kBar, "", kProcedure, kNoHourglass, kNoGroup},
    {52, "Full Screen", "FULLSCREEN", kBar, "", kProcedure, kHourglass, kNoGroup},
};
// clang-format on

constexpr int kPopupsFirstEntry = 23;

constexpr BuiltInEntry kBuiltInEntries[] = {
    {control_id::kCommentBlock, kPopupsFirstEntry},
    {control_id::kUncommentBlock, kPopupsFirstEntry},
};

struct Submenu {
  EntryPlace place;
  std::string_view caption;
  bool operator==(const Submenu&) const = default;
};

constexpr Submenu kGroupOpeners[] = {
    {kMenu, kAddHeader}, {kMenu, kHelp}, {kPopup, kExportSelected}};

}  // namespace

std::span<const CatalogueEntry> Catalogue() { return kEntries; }

std::span<const BuiltInEntry> BuiltInEntries() { return kBuiltInEntries; }

bool OpensGroup(EntryPlace place, std::string_view submenu) {
  return std::ranges::find(kGroupOpeners, Submenu{place, submenu}) != std::end(kGroupOpeners);
}

}  // namespace brimwork
