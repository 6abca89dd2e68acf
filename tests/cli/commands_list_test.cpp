#include "cli/commands_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/catalogue.h"

namespace brimwork {
namespace commands_list_test {

std::vector<std::string> TableLines() {
  std::vector<std::string> lines;
  std::istringstream table(CommandsTable());
  for (std::string line; std::getline(table, line);) lines.push_back(line);
  return lines;
}

/// The line of a caption, blanks between its columns as one bar.
std::string RowOf(const std::string& caption) {
  for (const std::string& line : TableLines()) {
    if (!line.starts_with(caption + "  ")) continue;
    std::string row;
    for (const char c : line) {
      if (c == ' ' && row.ends_with(' ')) row.back() = '|';
      if (c == ' ' && row.ends_with('|')) continue;
      row += c;
    }
    return row;
  }
  return {};
}

TEST(CommandsTable, HasEveryCaptionOfTheCatalogueOnce) {
  std::set<std::string_view> captions;
  for (const CatalogueEntry& entry : Catalogue()) captions.insert(entry.caption);
  EXPECT_EQ(TableLines().size(), captions.size() + 1);
  for (const std::string_view caption : captions) {
    int rows = 0;
    for (const std::string& line : TableLines())
      rows += line.starts_with(std::string(caption) + "  ");
    EXPECT_EQ(rows, 1) << caption;
  }
}

TEST(CommandsTable, SaysWhatEachCommandWorksOn) {
  EXPECT_EQ(RowOf("Add Line Numbers"), "Add Line Numbers|module or procedure|number");
  EXPECT_EQ(RowOf("Code Clean Up"), "Code Clean Up|module|cleanup");
  EXPECT_EQ(RowOf("Comment Procedure"), "Comment Procedure|procedure|comment");
  EXPECT_EQ(RowOf("Insert Time Stamp"), "Insert Time Stamp|line|timestamp");
  EXPECT_EQ(RowOf("Standard Header"), "Standard Header|module|header");
  EXPECT_EQ(RowOf("RTF"), "RTF|module or lines|export --format rtf");
  EXPECT_EQ(RowOf("Quick Export"), "Quick Export|module or lines|export --quick");
  EXPECT_EQ(RowOf("Full Screen"), "Full Screen|in the editor only");
  EXPECT_EQ(RowOf("MsgBox Creator"), "MsgBox Creator|a new message box|msgbox");
  EXPECT_EQ(RowOf("Configure Brimwork"), "Configure Brimwork|the settings|setup");
  for (const std::string caption : {"Contents", "Index", "About Brimwork", "Vantrel Web Site"}) {
    EXPECT_EQ(RowOf(caption), caption + "|in the editor only");
  }
}

TEST(CommandsTable, EndsNoLineInBlanksAndFitsInto80Columns) {
  for (const std::string& line : TableLines()) {
    EXPECT_FALSE(line.ends_with(' ')) << line;
    EXPECT_LE(line.size(), 80u) << line;
  }
}

}  // namespace commands_list_test
}  // namespace brimwork
