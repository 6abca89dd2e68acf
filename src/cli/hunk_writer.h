// Turns an edit script into the hunks of a unified diff and writes each as soon as it is complete.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/file_lines.h"
#include "cli/line_diff.h"

namespace brimwork {

struct DiffOptions {
  int context = 3;     // unchanged lines around a change
  bool color = false;  // escape sequences for a terminal
};

/// Numbers of lines.
struct DiffStat {
  int removed = 0;
  int added = 0;
};

using TextSink = std::function<void(std::string_view)>;

class HunkWriter : public EditScript {
 public:
  /// header is written in front of the first hunk.
  HunkWriter(const FileLines& before, const FileLines& after, std::string header,
             const DiffOptions& options, const TextSink& sink);

  void Keep(int lines) override;
  void Change(int removed, int added) override;

  /// Writes what is left.
  DiffStat Finish();

 private:
  /// Unchanged lines, and what changed behind them.
  struct Block {
    int kept = 0;
    int removed = 0;
    int added = 0;
  };

  void OpenHunk();
  void WriteHunk(int keptBehind);
  void WriteRange(int keptBehind);
  void WriteLines(char mark, const FileLines& file, int& line, int count);
  void WriteColored(std::string_view color, std::string_view text, std::string_view end);
  void FlushWhenLarge();

  const FileLines& before_;
  const FileLines& after_;
  std::string header_;
  const DiffOptions options_;
  const TextSink& sink_;
  std::string output_;
  DiffStat stat_;

  int beforeLine_ = 1;  // the next line that the script tells of
  int afterLine_ = 1;

  std::vector<Block> hunk_;  // empty between hunks
  int hunkBefore_ = 0;       // its first lines
  int hunkAfter_ = 0;
  int keptBehind_ = 0;  // unchanged lines behind the hunk's last change
};

}  // namespace brimwork
