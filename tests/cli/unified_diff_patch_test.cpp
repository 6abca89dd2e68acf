// Hands diffs of random files to the programs that people feed them to.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "cli/unified_diff.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace unified_diff_patch_test {

struct RandomFile {
  std::vector<std::string> lines;  // with their CR
  bool endsLastLine = true;

  std::string Bytes() const {
    std::string bytes;
    for (const std::string& line : lines) bytes.append(line).append("\n");
    if (!endsLastLine && !lines.empty()) bytes.pop_back();
    return bytes;
  }
};

class RandomFiles {
 public:
  explicit RandomFiles(unsigned seed) : random_(seed) {}

  int Pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

  RandomFile Make() {
    RandomFile file;
    const int count = Pick(4) == 0 ? Pick(3) : Pick(1500);
    for (int line = 0; line < count; ++line) file.lines.push_back(Line());
    file.endsLastLine = file.lines.empty() || Pick(2) == 0;
    return file;
  }

  RandomFile Changed(const RandomFile& file) {
    RandomFile changed;
    const int rarity = Pick(3) == 0 ? 2 : 40;
    for (const std::string& line : file.lines) {
      const int fate = Pick(rarity) == 0 ? Pick(3) : 3;
      if (fate != 0) changed.lines.push_back(fate == 1 ? Line() : line);
      if (fate == 2) changed.lines.push_back(Line());
    }
    if (changed.lines.empty()) changed.lines.push_back(Line());
    changed.endsLastLine = Pick(2) == 0;
    return changed;
  }

  /// Sometimes none, sometimes at random places.
  std::vector<DiffAnchor> Anchors(const RandomFile& before, const RandomFile& after) {
    std::vector<DiffAnchor> anchors;
    if (Pick(2) == 0) return anchors;
    DiffAnchor at{1, 1};
    while (true) {
      at.before += Pick(120);
      at.after += Pick(120);
      if (at.before > static_cast<int>(before.lines.size()) ||
          at.after > static_cast<int>(after.lines.size())) {
        return anchors;
      }
      anchors.push_back(at);
    }
  }

 private:
  /// Few different lines, some of which look like parts of a diff.
  std::string Line() {
    const char* const kLines[] = {"", "x = 1", "--- a", "+++ b", "@@ -1 +1 @@", "\\ No", "-", "+ "};
    std::string line = Pick(3) == 0 ? std::to_string(Pick(1000)) : kLines[Pick(8)];
    if (Pick(2) == 0) line += '\r';
    return line;
  }

  std::mt19937 random_;
};

bool IsInstalled(const std::string& program) {
  return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

/// Applies the diffs of random files with the command and compares what comes of them.
void ApplyRandomDiffs(const std::string& program, const std::string& arguments) {
  if (!IsInstalled(program)) {
    GTEST_SKIP() << program << " is not installed, so no diff can be applied with it";
  }
  const TemporaryFolder folder;
  const std::string name = "my module.bas";
  const std::string command =
      "cd '" + folder.Path().string() + "' && " + program + " " + arguments + " >log 2>&1";
  for (unsigned seed = 1; seed <= 60; ++seed) {
    RandomFiles random(seed);
    const RandomFile before = random.Make();
    const RandomFile after = random.Changed(before);
    const VectorLines linesBefore(before.lines);
    const VectorLines linesAfter(after.lines);
    std::string diff;
    DiffOptions options;
    options.context = before.lines.empty() ? 3 : 1 + random.Pick(4);
    UnifiedDiff({name, name}, {linesBefore, before.endsLastLine}, {linesAfter, after.endsLastLine},
                random.Anchors(before, after), options,
                [&](std::string_view part) { diff += part; });
    if (diff.empty()) continue;
    WriteBytes(folder / name, before.Bytes());
    WriteBytes(folder / "diff", diff);
    ASSERT_EQ(std::system(command.c_str()), 0)
        << "seed " << seed << ": " << ReadBytes(folder / "log");
    ASSERT_EQ(ReadBytes(folder / name), after.Bytes()) << "seed " << seed;
  }
}

TEST(UnifiedDiffApplied, ByPatchGivesTheNewFile) {
  ApplyRandomDiffs("patch", "-p0 --no-backup-if-mismatch -i diff");
}

TEST(UnifiedDiffApplied, ByGitGivesTheNewFile) { ApplyRandomDiffs("git", "apply -p0 diff"); }

}  // namespace unified_diff_patch_test
}  // namespace brimwork
