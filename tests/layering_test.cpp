// Holds the includes under src/ to the order of the rooms: a room may use itself and the rooms
// below it. The compiler would not object to an arrow that points up, so this test does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/text.h"

namespace brimwork {
namespace layering_test {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// One #include, as it stands in a file whose path counts from src/.
struct Include {
  std::string file;
  std::string target;
  bool quoted = true;  // "..." instead of <...>
};

using Rooms = std::set<std::string, std::less<>>;

/// Each room with the rooms that it may use beside itself.
const std::map<std::string, Rooms, std::less<>>& AllowedRooms() {
  static const std::map<std::string, Rooms, std::less<>> kAllowed = {
      {"environment", {}},
      {"settings", {"environment"}},
      {"transform", {"environment", "settings"}},
      {"ide_windows", {"environment", "settings", "transform"}},
      {"export", {"environment", "settings", "transform", "ide_windows"}},
      {"msgbox", {"environment", "settings", "transform", "ide_windows", "export"}},
      {"core", {"environment", "settings", "transform", "ide_windows", "export", "msgbox"}},
      {"win32", {"environment"}},
      {"memory", {"environment", "win32"}},
      {"spelling", {"environment", "memory"}},
      {"cli",
       {"environment", "settings", "transform", "ide_windows", "export", "msgbox", "core", "memory",
        "spelling"}},
      {"windows",
       {"environment", "settings", "transform", "ide_windows", "export", "msgbox", "core",
        "win32"}},
      {"bench/model", {"environment", "memory"}},
      {"bench/automation", {"environment", "memory", "win32", "bench/model"}},
      {"bench/screen", {"environment", "memory", "win32", "bench/model"}},
      {"bench/add_ins", {"environment", "memory", "win32", "bench/model", "bench/automation"}},
      {"bench/manager",
       {"environment", "memory", "win32", "bench/model", "bench/automation", "bench/add_ins",
        "bench/screen"}},
      {"bench/program",
       {"environment", "memory", "win32", "bench/model", "bench/automation", "bench/screen",
        "bench/add_ins", "bench/manager"}},
      {"bench/main", {"environment", "win32", "bench/automation", "bench/screen", "bench/program"}},
  };
  return kAllowed;
}

/// The first folder of a path; the stand-in environment is a house of rooms in itself.
std::string RoomOf(std::string_view path) {
  const std::size_t first = path.find('/');
  const bool isHouse = path.substr(0, first) == "bench";
  return std::string(path.substr(0, isHouse ? path.find('/', first + 1) : first));
}

std::string Describe(const Include& include) {
  return include.file + " includes " + include.target;
}

/// Says why a quoted include breaks the order; nothing when it keeps it.
std::optional<std::string> FaultOf(const Include& include) {
  if (include.target.find('/') == std::string::npos) {
    return Describe(include) + " without naming its room";
  }
  const std::string from = RoomOf(include.file);
  const std::string to = RoomOf(include.target);
  const auto allowed = AllowedRooms().find(from);
  if (allowed == AllowedRooms().end()) {
    return Describe(include) + ", but " + from + " has no place in the order of the rooms";
  }
  if (to == from || allowed->second.contains(to)) return std::nullopt;
  return Describe(include) + ", but " + from + " must not use " + to;
}

std::vector<std::string> FaultsIn(const std::vector<Include>& includes) {
  std::vector<std::string> faults;
  for (const Include& include : includes) {
    if (!include.quoted) continue;
    if (const auto fault = FaultOf(include)) faults.push_back(*fault);
  }
  return faults;
}

char ToLowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool IsWindowsHeader(std::string_view header) {
  static const std::set<std::string, std::less<>> kWindowsHeaders = {
      "atlbase.h", "atlcom.h",   "combaseapi.h", "comdef.h",   "commctrl.h", "commdlg.h",
      "comutil.h", "dispex.h",   "guiddef.h",    "htmlhelp.h", "initguid.h", "minwindef.h",
      "oaidl.h",   "objbase.h",  "objidl.h",     "ocidl.h",    "ole2.h",     "oleauto.h",
      "olectl.h",  "oleidl.h",   "richedit.h",   "richole.h",  "shellapi.h", "shlobj.h",
      "shlwapi.h", "shobjidl.h", "tchar.h",      "unknwn.h",   "uxtheme.h",  "winbase.h",
      "windef.h",  "windows.h",  "windowsx.h",   "winerror.h", "wingdi.h",   "winnls.h",
      "winnt.h",   "winreg.h",   "winsock2.h",   "winuser.h",  "wtypes.h"};
  std::string name(header);
  std::transform(name.begin(), name.end(), name.begin(), ToLowerAscii);
  return kWindowsHeaders.contains(name);
}

/// True where a file may use the system's headers: in a folder for Windows, or in a room that is
/// for nothing else.
bool IsForWindows(const std::string& file) {
  static const Rooms kRooms = {"win32",         "windows",       "bench/automation", "bench/screen",
                               "bench/add_ins", "bench/manager", "bench/program",    "bench/main"};
  return Contains(file, "/windows/") || kRooms.contains(RoomOf(file));
}

std::vector<std::string> WindowsHeadersOutsideTheirRoom(const std::vector<Include>& includes) {
  std::vector<std::string> faults;
  for (const Include& include : includes) {
    if (IsForWindows(include.file) || !IsWindowsHeader(include.target)) continue;
    faults.push_back(Describe(include));
  }
  return faults;
}

/// Finds files that include each other in a circle.
class CycleSearch {
 public:
  explicit CycleSearch(const std::vector<Include>& includes) {
    for (const Include& include : includes) {
      if (include.quoted) targets_[include.file].push_back(include.target);
    }
  }

  /// The files of one circle, the first one again at its end; nothing when there is none.
  std::vector<std::string> Find() {
    const auto known = targets_;
    for (const auto& [file, targets] : known) {
      if (Visit(file)) return path_;
    }
    return {};
  }

 private:
  bool Visit(const std::string& file) {
    if (done_.contains(file)) return false;
    const auto circle = std::find(path_.begin(), path_.end(), file);
    if (circle != path_.end()) {
      path_.erase(path_.begin(), circle);
      path_.push_back(file);
      return true;
    }
    path_.push_back(file);
    for (const std::string& target : targets_[file]) {
      if (Visit(target)) return true;
    }
    path_.pop_back();
    done_.insert(file);
    return false;
  }

  std::map<std::string, std::vector<std::string>> targets_;
  std::vector<std::string> path_;
  std::set<std::string> done_;
};

fs::path SourceFolder() { return fs::path(BRIMWORK_SOURCE_DIR) / "src"; }

/// The include that the line holds, if any.
std::optional<Include> ParseInclude(std::string_view line) {
  constexpr std::string_view kWord = "include";
  line = TrimBlanksAndTabs(line);
  if (!line.starts_with('#')) return std::nullopt;
  line = TrimBlanksAndTabs(line.substr(1));
  if (!line.starts_with(kWord)) return std::nullopt;
  line = TrimBlanksAndTabs(line.substr(kWord.size()));
  const bool quoted = line.starts_with('"');
  const auto end = line.find(quoted ? '"' : '>', 1);
  if (end == std::string_view::npos) return std::nullopt;
  return Include{"", std::string(line.substr(1, end - 1)), quoted};
}

std::vector<Include> IncludesOf(const fs::path& path) {
  const std::string file = path.lexically_relative(SourceFolder()).generic_string();
  std::vector<Include> includes;
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) {
    auto include = ParseInclude(line);
    if (!include) continue;
    include->file = file;
    includes.push_back(std::move(*include));
  }
  return includes;
}

std::vector<Include> AllIncludes() {
  std::vector<Include> all;
  for (const auto& entry : fs::recursive_directory_iterator(SourceFolder())) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    for (Include& include : IncludesOf(entry.path())) all.push_back(std::move(include));
  }
  return all;
}

TEST(Layering, EveryRoomUsesOnlyRoomsBelowIt) {
  const std::vector<Include> includes = AllIncludes();
  ASSERT_FALSE(includes.empty());
  EXPECT_THAT(FaultsIn(includes), IsEmpty());
}

TEST(Layering, EveryQuotedIncludeNamesAFileUnderTheSources) {
  for (const Include& include : AllIncludes()) {
    if (!include.quoted) continue;
    EXPECT_TRUE(fs::is_regular_file(SourceFolder() / include.target)) << Describe(include);
  }
}

TEST(Layering, WindowsHeadersStayInTheirRoom) {
  EXPECT_THAT(WindowsHeadersOutsideTheirRoom(AllIncludes()), IsEmpty());
}

TEST(Layering, NoFilesIncludeEachOtherInACircle) {
  EXPECT_THAT(CycleSearch(AllIncludes()).Find(), IsEmpty());
}

TEST(LayeringRules, ReadIncludesHoweverTheyAreSpaced) {
  EXPECT_EQ(ParseInclude(" # include\t\"core/a.h\" // why")->target, "core/a.h");
  EXPECT_FALSE(ParseInclude("#include <vector>")->quoted);
  EXPECT_FALSE(ParseInclude("// #include <vector>"));
}

TEST(LayeringRules, RefuseAnIncludeThatPointsUp) {
  EXPECT_THAT(FaultsIn({{"transform/a.cpp", "core/b.h"}, {"memory/a.h", "settings/b.h"}}),
              ElementsAre("transform/a.cpp includes core/b.h, but transform must not use core",
                          "memory/a.h includes settings/b.h, but memory must not use settings"));
}

TEST(LayeringRules, AllowIncludesThatPointDownOrStayInTheRoom) {
  EXPECT_THAT(FaultsIn({{"cli/main/main.cpp", "cli/a.h"},
                        {"core/a.cpp", "transform/b.h"},
                        {"cli/a.cpp", "memory/b.h"},
                        {"core/a.cpp", "core/b.h"}}),
              IsEmpty());
}

TEST(LayeringRules, RefuseARoomThatIsNotInTheOrder) {
  EXPECT_THAT(FaultsIn({{"attic/a.cpp", "environment/b.h"}}),
              ElementsAre("attic/a.cpp includes environment/b.h, but attic has no place in the "
                          "order of the rooms"));
}

TEST(LayeringRules, RefuseAnIncludeWithoutItsRoom) {
  EXPECT_THAT(FaultsIn({{"core/a.cpp", "a.h"}}),
              ElementsAre("core/a.cpp includes a.h without naming its room"));
}

TEST(LayeringRules, RefuseWindowsHeadersInAnyCase) {
  EXPECT_THAT(WindowsHeadersOutsideTheirRoom({{"core/a.cpp", "Windows.h", false},
                                              {"core/b.cpp", "commctrl.h", false},
                                              {"windows/c.cpp", "windows.h", false},
                                              {"memory/windows/c.cpp", "windows.h", false},
                                              {"core/d.cpp", "vector", false}}),
              ElementsAre("core/a.cpp includes Windows.h", "core/b.cpp includes commctrl.h"));
}

TEST(LayeringRules, FindACircle) {
  EXPECT_THAT(CycleSearch({{"a/1.h", "a/2.h"}, {"a/2.h", "a/3.h"}, {"a/3.h", "a/2.h"}}).Find(),
              ElementsAre("a/2.h", "a/3.h", "a/2.h"));
}

TEST(LayeringRules, TakeAFileIncludedTwiceForNoCircle) {
  EXPECT_THAT(CycleSearch({{"a/1.h", "a/2.h"}, {"a/1.h", "a/3.h"}, {"a/2.h", "a/3.h"}}).Find(),
              IsEmpty());
}

}  // namespace layering_test
}  // namespace brimwork
