// The sample project, cleaned up as ./run does it, on a copy.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace sample_project_test {

namespace fs = std::filesystem;

const fs::path& Samples() {
  static const fs::path folder = fs::path(BRIMWORK_SOURCE_DIR) / "samples";
  return folder;
}

/// The files of a folder by their names, settings aside.
std::map<std::string, std::string> ContentOf(const fs::path& folder) {
  std::map<std::string, std::string> content;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    content[fs::relative(entry.path(), folder).string()] = ReadBytes(entry.path());
  }
  return content;
}

/// The lines that the editor hides, with their line ends.
std::vector<std::string> HiddenLines(const std::string& bytes) {
  std::vector<std::string> hidden;
  bool inPreamble = true;
  bool inBlocks = false;
  for (const std::string& line : LinesOf(bytes)) {
    const bool isAttribute = line.starts_with("Attribute ");
    if (line.starts_with("VERSION ")) inBlocks = true;
    if (isAttribute) inBlocks = false;
    if (!inBlocks && !isAttribute) inPreamble = false;
    if (isAttribute || (inPreamble && inBlocks)) hidden.push_back(line);
  }
  return hidden;
}

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

class SampleProject : public testing::Test {
 protected:
  SampleProject() { fs::copy(Samples(), place.Folder(), fs::copy_options::recursive); }

  ProgramResult CleanUp(const std::string& day) const {
    return place.Run({"cleanup", "--write", "--now", day, "WorkshopDesk.vbp"});
  }

  Workplace place;
};

TEST_F(SampleProject, IsCleanedUpWithoutAnError) {
  const ProgramResult result = CleanUp("2026-11-21");
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_THAT(result.error, testing::HasSubstr("5 files, 5 changed\n"));
}

TEST_F(SampleProject, KeepsEveryHiddenLine) {
  const auto before = ContentOf(place.Folder());
  CleanUp("2026-11-21");
  std::size_t hidden = 0;
  for (const auto& [name, bytes] : before) {
    EXPECT_EQ(HiddenLines(place.Read(name)), HiddenLines(bytes)) << name;
    hidden += HiddenLines(bytes).size();
  }
  EXPECT_GT(hidden, 100u);
}

TEST_F(SampleProject, KeepsItsLineEnds) {
  CleanUp("2026-11-21");
  for (const auto& [name, bytes] : ContentOf(place.Folder())) {
    EXPECT_EQ(WithCrLfEnds(bytes), bytes) << name;
  }
}

TEST_F(SampleProject, GetsNoSecondHeaderOnTheSameDay) {
  CleanUp("2026-11-21");
  CleanUp("2026-11-21");
  for (const auto& [name, bytes] : ContentOf(place.Folder())) {
    if (name.ends_with(".vbp")) continue;
    EXPECT_EQ(CountOf(bytes, "'  Published Date: 11/21/2026"), 1) << name;
  }
}

TEST_F(SampleProject, GetsASecondHeaderOnAnotherDay) {
  CleanUp("2026-11-21");
  CleanUp("2026-11-22");
  const std::string module = place.Read("Modules/modStock.bas");
  EXPECT_EQ(CountOf(module, "'  Published Date: 11/21/2026"), 1);
  EXPECT_EQ(CountOf(module, "'  Published Date: 11/22/2026"), 1);
}

TEST_F(SampleProject, IsTheSameWhenEveryStepButTheHandlersRunsAgain) {
  const auto run = [&] {
    place.Run({"cleanup", "--write", "--now", "2026-11-21", "--steps",
               "Header,Indent,Comment,LineNumber", "WorkshopDesk.vbp"});
    return ContentOf(place.Folder());
  };
  run();
  const auto once = run();
  EXPECT_EQ(run(), once);
}

TEST_F(SampleProject, IsOnlyLookedAtByADiff) {
  const auto before = ContentOf(Samples());
  const std::string project = (Samples() / "WorkshopDesk.vbp").string();
  EXPECT_EQ(place.Run({"cleanup", "--diff", project}).exitCode, 0);
  EXPECT_EQ(place.Run({"cleanup", "--check", project}).exitCode, 1);
  EXPECT_EQ(ContentOf(Samples()), before);
}

}  // namespace sample_project_test
}  // namespace brimwork
