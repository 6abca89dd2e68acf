#include "core/catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brimwork {
namespace catalogue_test {

using testing::ElementsAre;

/// "number caption (face)" of the entries in a submenu of a place, in building order.
std::vector<std::string> EntriesAt(EntryPlace place, std::string_view submenu) {
  std::vector<std::string> entries;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.place != place || entry.submenu != submenu) continue;
    entries.push_back(std::to_string(entry.handler) + ' ' + std::string(entry.caption) + " (" +
                      std::string(entry.faceKey) + ')');
  }
  return entries;
}

template <class Predicate>
std::set<std::string> CaptionsWhere(Predicate predicate) {
  std::set<std::string> captions;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (predicate(entry)) captions.emplace(entry.caption);
  }
  return captions;
}

using Captions = std::set<std::string>;

TEST(Catalogue, TheAddInsMenuHasElevenCommandsAtItsTop) {
  EXPECT_THAT(
      EntriesAt(EntryPlace::kAddInsMenu, ""),
      ElementsAre("1 Comment Procedure (COMMENT)", "2 Comment All Procedures (COMMENTALL)",
                  "3 Insert Error Handling (ERROR)", "4 Insert Time Stamp (TIMESTAMP)",
                  "5 Indent All Procedures (INDENT)", "6 Code Clean Up (CLEANUP)",
                  "7 Close Windows (CLOSE)", "8 Clear Immediate Window (CLEAR)",
                  "9 MsgBox Creator (MSGBOX)", "10 Spell Check - Quotes and Comments (SPELLCHECK)",
                  "11 Full Screen (FULLSCREEN)"));
}

TEST(Catalogue, TheAddInsMenuHasFourSubmenus) {
  EXPECT_THAT(
      EntriesAt(EntryPlace::kAddInsMenu, "Add Header"),
      ElementsAre("21 Standard Header (STANDARDHEADER)", "22 Adapted Header (ADAPTEDHEADER)"));
  EXPECT_THAT(EntriesAt(EntryPlace::kAddInsMenu, "Export Code"),
              ElementsAre("17 Text (TEXT)", "18 RTF (RTF)", "19 Web Page (HTM)",
                          "20 Quick Export (QUICKEXPORT)"));
  EXPECT_THAT(EntriesAt(EntryPlace::kAddInsMenu, "Line Number"),
              ElementsAre("53 Add Line Numbers (ADDLINENUMBERS)",
                          "54 Remove Line Numbers (REMOVELINENUMBERS)"));
  EXPECT_THAT(EntriesAt(EntryPlace::kAddInsMenu, "Help"),
              ElementsAre("60 Contents (HELP)", "61 Index ()", "62 Configure Brimwork ()",
                          "63 About Brimwork ()", "64 Vantrel Web Site (WEBSITE)"));
}

TEST(Catalogue, TheCodeWindowsPopupHasFiveCommandsAndTwoSubmenus) {
  EXPECT_THAT(EntriesAt(EntryPlace::kCodeWindowPopup, ""),
              ElementsAre("23 Comment Procedure (COMMENT)", "24 Insert Error Handling (ERROR)",
                          "25 Insert Time Stamp (TIMESTAMP)", "26 Clear Immediate Window (CLEAR)",
                          "27 Full Screen (FULLSCREEN)"));
  EXPECT_THAT(EntriesAt(EntryPlace::kCodeWindowPopup, "Export Selected Code"),
              ElementsAre("28 Text (TEXT)", "29 RTF (RTF)", "30 Web Page (HTM)",
                          "31 Quick Export (QUICKEXPORT)"));
  EXPECT_THAT(EntriesAt(EntryPlace::kCodeWindowPopup, "Line Number"),
              ElementsAre("32 Add Line Numbers (ADDLINENUMBERS)",
                          "33 Remove Line Numbers (REMOVELINENUMBERS)"));
}

TEST(Catalogue, TheImmediateWindowsPopupHasOneCommand) {
  EXPECT_THAT(EntriesAt(EntryPlace::kImmediateWindowPopup, ""),
              ElementsAre("34 Clear Immediate Window (CLEAR)"));
}

TEST(Catalogue, TheToolbarHasTwoSubmenusAndElevenCommands) {
  EXPECT_THAT(EntriesAt(EntryPlace::kToolbar, "Export Code"),
              ElementsAre("36 Text (TEXT)", "37 RTF (RTF)", "38 Web Page (HTM)",
                          "39 Quick Export (QUICKEXPORT)"));
  EXPECT_THAT(
      EntriesAt(EntryPlace::kToolbar, "Add Header"),
      ElementsAre("40 Standard Header (STANDARDHEADER)", "41 Adapted Header (ADAPTEDHEADER)"));
  EXPECT_THAT(
      EntriesAt(EntryPlace::kToolbar, ""),
      ElementsAre("42 Comment Procedure (COMMENT)", "43 Comment All Procedures (COMMENTALL)",
                  "44 Insert Error Handling (ERROR)", "45 Insert Time Stamp (TIMESTAMP)",
                  "46 Indent All Procedures (INDENT)", "47 Code Clean Up (CLEANUP)",
                  "48 Close Windows (CLOSE)", "49 Clear Immediate Window (CLEAR)",
                  "50 MsgBox Creator (MSGBOX)", "51 Spell Check - Quotes and Comments (SPELLCHECK)",
                  "52 Full Screen (FULLSCREEN)"));
}

TEST(Catalogue, HasNoOtherEntries) { EXPECT_EQ(Catalogue().size(), 24u + 11u + 1u + 17u); }

TEST(Catalogue, SubmenusStandInTheOrderInWhichTheyAreBuilt) {
  std::vector<std::string> submenus;
  for (const CatalogueEntry& entry : Catalogue()) {
    const std::string submenu(entry.submenu);
    if (submenus.empty() || submenus.back() != submenu) submenus.push_back(submenu);
  }
  EXPECT_THAT(submenus, ElementsAre("", "Add Header", "Export Code", "Line Number", "Help", "",
                                    "Export Selected Code", "Line Number", "", "Export Code",
                                    "Add Header", ""));
}

TEST(Catalogue, EachHandlerNumberIsGivenOnceBetweenOneAndSixtyFive) {
  std::set<int> numbers;
  for (const CatalogueEntry& entry : Catalogue()) {
    EXPECT_TRUE(numbers.insert(entry.handler).second) << entry.handler;
    EXPECT_GE(entry.handler, 1);
    EXPECT_LE(entry.handler, 65);
  }
}

TEST(Catalogue, TheMenuAndTheToolbarActOnTheWholeModuleWithTheseCaptions) {
  for (const EntryPlace place : {EntryPlace::kAddInsMenu, EntryPlace::kToolbar}) {
    Captions expected{"Comment All Procedures",
                      "Indent All Procedures",
                      "Code Clean Up",
                      "Text",
                      "RTF",
                      "Web Page",
                      "Quick Export"};
    if (place == EntryPlace::kAddInsMenu) {
      expected.insert("Add Line Numbers");
      expected.insert("Remove Line Numbers");
    }
    EXPECT_EQ(CaptionsWhere([&](const CatalogueEntry& entry) {
                return entry.place == place && entry.wholeModule;
              }),
              expected);
  }
}

TEST(Catalogue, ThePopupsNeverActOnTheWholeModule) {
  EXPECT_EQ(CaptionsWhere([](const CatalogueEntry& entry) {
              return (entry.place == EntryPlace::kCodeWindowPopup ||
                      entry.place == EntryPlace::kImmediateWindowPopup) &&
                     entry.wholeModule;
            }),
            Captions());
}

TEST(Catalogue, EntriesThatOpenAWindowOrHelpShowNoHourglass) {
  const Captions expected{"MsgBox Creator",     "Spell Check - Quotes and Comments",
                          "Contents",           "Index",
                          "Configure Brimwork", "About Brimwork",
                          "Vantrel Web Site"};
  EXPECT_EQ(CaptionsWhere([](const CatalogueEntry& entry) { return !entry.hourglass; }), expected);
  const Captions withHourglass =
      CaptionsWhere([](const CatalogueEntry& entry) { return entry.hourglass; });
  for (const std::string& caption : expected) EXPECT_FALSE(withHourglass.contains(caption));
}

TEST(Catalogue, ThreeEntriesOpenAGroup) {
  std::set<int> handlers;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.beginGroup) handlers.insert(entry.handler);
  }
  EXPECT_EQ(handlers, (std::set<int>{34, 62, 64}));
}

TEST(Catalogue, ThreeSubmenusOpenAGroup) {
  std::set<std::pair<EntryPlace, std::string>> openers;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (OpensGroup(entry.place, entry.submenu)) openers.emplace(entry.place, entry.submenu);
  }
  EXPECT_EQ(openers, (std::set<std::pair<EntryPlace, std::string>>{
                         {EntryPlace::kAddInsMenu, "Add Header"},
                         {EntryPlace::kAddInsMenu, "Help"},
                         {EntryPlace::kCodeWindowPopup, "Export Selected Code"}}));
}

TEST(Catalogue, TheEnvironmentsBlockCommandsFollowTheCodeWindowsFirstEntry) {
  std::vector<std::pair<int, int>> builtIns;
  for (const BuiltInEntry& builtIn : BuiltInEntries()) {
    builtIns.emplace_back(builtIn.id, builtIn.behindHandler);
  }
  EXPECT_THAT(builtIns, ElementsAre(std::pair(192, 23), std::pair(2552, 23)));
}

TEST(Catalogue, EntriesOfOneCaptionBearOneFace) {
  for (const CatalogueEntry& one : Catalogue()) {
    for (const CatalogueEntry& other : Catalogue()) {
      if (one.caption != other.caption) continue;
      EXPECT_EQ(one.faceKey, other.faceKey) << one.caption;
    }
  }
}

}  // namespace catalogue_test
}  // namespace brimwork
