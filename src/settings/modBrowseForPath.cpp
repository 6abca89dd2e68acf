#include "settings/modBrowseForPath.h"

#include "environment/resume_next.h"

namespace brimwork {
namespace {

constexpr std::uint32_t kFileSystemFoldersOnly = 1;
constexpr std::uint32_t kNothingBelowTheDomain = 2;

}  // namespace

std::string BrowseForFolder(Environment& environment, std::string_view title, WindowHandle owner) {
  std::string path;
  ResumeNext([&] {
    path = environment.dialogs.BrowseForFolder(
        {owner, std::string(title), kFileSystemFoldersOnly | kNothingBelowTheDomain});
  });
  return path;
}

}  // namespace brimwork
