#include "cli/run_progress.h"

namespace brimwork {

void RunProgress::Show(const std::string& path, const frmInfo& window) {
  if (!console_.ShowsProgress() || !window.Visible() || !IsDue()) return;
  const std::string count =
      files_ > 1 ? std::to_string(done_ + 1) + " of " + std::to_string(files_) + ": " : "";
  console_.Progress(count + path + ": " + window.lblInfo.Caption.Get() + ' ' +
                    window.picProgress.Tag.Get() + '%');
}

bool RunProgress::IsDue() {
  constexpr std::int64_t kEveryMilliseconds = 100;
  const std::int64_t now = std::chrono::duration_cast<std::chrono::milliseconds>(
                               std::chrono::steady_clock::now() - started_)
                               .count();
  std::int64_t due = nextDue_.load();
  return now >= due && nextDue_.compare_exchange_strong(due, now + kEveryMilliseconds);
}

}  // namespace brimwork
