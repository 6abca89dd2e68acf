#include "bench/model/recent_projects.h"

#include <algorithm>
#include <utility>

#include "environment/text.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace {

constexpr std::size_t kFirst = 15;  // of the menu's controls
constexpr std::size_t kMost = 4;

}  // namespace

RecentProjects::RecentProjects(std::shared_ptr<MemoryCommandBar> file,
                               std::function<void(const std::string&)> open)
    : file_(std::move(file)), open_(std::move(open)) {
  const auto& controls = file_->Entries()->All();
  entries_.assign(controls.begin() + (kFirst - 1), controls.end() - 1);
  ShowEntries();
}

void RecentProjects::Set(const std::vector<std::string>& paths) {
  paths_.clear();
  for (const std::string& path : paths) {
    const bool isThere = std::ranges::any_of(
        paths_, [&](const std::string& each) { return EqualNames(each, path); });
    if (!isThere && !path.empty() && paths_.size() < kMost) paths_.push_back(path);
  }
  ShowEntries();
}

void RecentProjects::PutFirst(const std::string& path) {
  std::vector<std::string> paths{path};
  paths.insert(paths.end(), paths_.begin(), paths_.end());
  Set(paths);
}

/// The entries go only when the new ones are there, so that their place in the menu is not lost.
void RecentProjects::ShowEntries() {
  const auto before = std::exchange(entries_, {});
  const auto first =
      std::ranges::find_if(before, [](const auto& entry) { return !entry->IsDeleted(); });
  int place = first == before.end() ? static_cast<int>(kFirst) : (*first)->Index();
  place = std::min(place, file_->Entries()->Count());
  if (paths_.empty()) AddEntry(place, "(No recent projects)");
  for (std::size_t i = 0; i < paths_.size(); ++i) {
    AddEntry(place++, '&' + std::to_string(i + 1) + ' ' + Replace(paths_[i], "&", "&&"));
    entries_.back()->action = [this, path = paths_[i]] { open_(path); };
  }
  for (const auto& entry : before) {
    if (!entry->IsDeleted()) entry->Delete();
  }
}

void RecentProjects::AddEntry(int place, const std::string& caption) {
  const auto entry = file_->Entries()->AddBuiltIn(command::kSharedId, caption, {}, place);
  entry->SetCommand(command::kRecentProject);
  entry->SetBeginGroup(entries_.empty());
  ControlDetails details = entry->Details();
  details.faceId = 0;
  details.enabled = !paths_.empty();
  entry->SetDetails(std::move(details));
  entries_.push_back(entry);
}

}  // namespace brimwork::bench
