// The add-in in the bench and the command line tool write the same bytes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>

#include "end_to_end/workplace.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "memory/source_file.h"
#include "memory/text_codec.h"
#include "support/commanded_module.h"

namespace brimwork {
namespace add_in_bytes_test {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

// Each costs the bench a tenth of a second for each job.
constexpr int kGeneratedModules = 20;

constexpr const char* kEncoding = "cp1252";

struct Job {
  std::string folder;
  std::string submenu;
  std::string caption;
  bool atTheCaret = false;
};

const std::vector<Job>& Jobs() {
  static const std::vector<Job> jobs = {{"indent", "", "Indent All Procedures"},
                                        {"comment", "", "Comment All Procedures"},
                                        {"frame", "", "Comment Procedure", true},
                                        {"handle", "", "Insert Error Handling", true},
                                        {"cleanup", "", "Code Clean Up"},
                                        {"header", "Add Header", "Standard Header"},
                                        {"adapted", "Add Header", "Adapted Header"},
                                        {"number", "Line Number", "Add Line Numbers"},
                                        {"unnumber", "Line Number", "Remove Line Numbers"}};
  return jobs;
}

fs::path Source(const std::string& name) { return fs::path(BRIMWORK_SOURCE_DIR) / name; }
fs::path Library() { return Source("build/win32/bin/Brimwork.dll"); }

/// Why the add-in cannot be run here, "" when it can.
std::string Obstacle() {
  if (!fs::exists("/usr/bin/wine")) return "wine is not installed";
  if (!fs::exists(Library())) return "the add-in has not been built (cmake --build --preset win32)";
#if defined(BRIMWORK_SANITIZED)
  return "the tool is compared without the sanitizers";
#else
  return "";
#endif
}

/// Where a module's caret is put: in its first procedure.
struct Caret {
  explicit Caret(const std::string& bytes) {
    SourceFile file = SourceFile::Parse(bytes, "Module1.bas", kEncoding);
    name = file.ModuleName();
    MemoryEnvironment memory;
    const auto module = memory.Open(name, file.TakeText())->Module();
    const ProcedureName first = module->ProcOfLine(module->CountOfDeclarationLines() + 1);
    line = first.name.empty() ? 1 : module->ProcBodyLine(first.name, first.kind);
    fileLine = file.FileLineOf(line);
  }

  std::string name;  // the module's
  int line = 1;
  int fileLine = 1;
};

std::string Today() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", std::localtime(&now));
  return text;
}

/// The sample project with generated modules beside its own, once for each job and way.
class SameBytes : public testing::Test {
 protected:
  void SetUp() override {
    if (const std::string obstacle = Obstacle(); !obstacle.empty()) GTEST_SKIP() << obstacle;
    WriteProject(place / "project");
    for (const char* way : {"tool", "bench"}) fs::create_directory(place / way);
    ListCarets();
    std::string jobs;
    for (const Job& job : Jobs()) {
      for (const char* way : {"tool", "bench"}) {
        fs::copy(place / "project", place / way / job.folder, fs::copy_options::recursive);
      }
      jobs += job.folder + ';' + job.submenu + ';' + job.caption + "\r\n";
    }
    place.Write("bench/jobs.txt", jobs);
  }

  static std::string Encoded(const std::string& text) {
    std::string buffer;
    return std::string(TextCodec(kEncoding).Encode(text, buffer));
  }

  void WriteProject(const fs::path& folder) {
    fs::copy(Source("samples"), folder, fs::copy_options::recursive);
    std::string project = ReadBytes(folder / "WorkshopDesk.vbp");
    for (int i = 1; i <= kGeneratedModules; ++i) {
      const std::string name = "Part" + std::to_string(i);
      const auto options = NumberedOptions(static_cast<unsigned>(i));
      WriteBytes(folder / (name + ".bas"), "Attribute VB_Name = \"" + name + "\"\r\n" +
                                               Encoded(GenerateModule(options).text));
      project += "Module=" + name + "; " + name + ".bas\r\n";
    }
    WriteBytes(folder / "Project.vbp", project);
    fs::remove(folder / "WorkshopDesk.vbp");
  }

  std::vector<fs::path> SourceFiles() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(place / "project")) {
      const std::string extension = entry.path().extension().string();
      if (extension == ".bas" || extension == ".cls" || extension == ".frm") {
        files.push_back(fs::relative(entry.path(), place / "project"));
      }
    }
    return files;
  }

  void ListCarets() {
    std::string carets;
    for (const fs::path& file : SourceFiles()) {
      const Caret caret(ReadBytes(place / "project" / file));
      carets += caret.name + ';' + std::to_string(caret.line) + "\r\n";
    }
    place.Write("bench/carets.txt", carets);
  }

  void RunTool(const Job& job) {
    const fs::path folder = place / "tool" / job.folder;
    Words words = {"run",     job.caption,     "--write", "--unsafe",
                   "--quiet", "--no-warnings", "--now",   Today()};
    if (!job.atTheCaret) {
      words.push_back((folder / "Project.vbp").string());
      EXPECT_EQ(place.Run(words).error, "") << job.caption;
      return;
    }
    for (const fs::path& file : SourceFiles()) {
      Words here = words;
      const Caret caret(ReadBytes(place / "project" / file));
      here.insert(here.end(), {"--line", std::to_string(caret.fileLine), (folder / file).string()});
      EXPECT_EQ(place.Run(here).error, "") << job.caption << ", " << file;
    }
  }

  /// Runs all jobs in the bench; returns what went wrong.
  std::string RunBench() {
    ProgramCall call;
    call.words = {Source("scripts/run_under_wine.sh").string(),
                  "--fresh",
                  Source("build/win32/wine").string(),
                  "bash",
                  "-c",
                  "wine regsvr32 /s \"$1\" && wine \"$2\" /regserver && wine reg add "
                  "'HKCU\\Software\\VB and VBA Program Settings\\Brimwork\\Settings' "
                  "/v SplashScreen /d False /f && wine cscript //nologo \"Z:$3\" \"Z:$4\"",
                  "_",
                  Library().string(),
                  Source("build/win32/bin/bench.exe").string(),
                  Source("tests/end_to_end/rewrite_projects.vbs").string(),
                  (place / "bench").string()};
    call.folder = place.Folder();
    call.variables = {{"PATH", std::getenv("PATH")}};
    const ProgramResult result = RunProgram(call);
    const bool isDone = result.out.find("done") != std::string::npos;
    return isDone ? "" : "the bench does not come to an end: " + result.out + result.error;
  }

  Workplace place;
};

TEST_F(SameBytes, ComeOfEachRewritingCommandForTheSampleProjectAndGeneratedModules) {
  ASSERT_EQ(RunBench(), "");
  for (const Job& job : Jobs()) {
    RunTool(job);
    int changed = 0;
    for (const fs::path& file : SourceFiles()) {
      const std::string expected = ReadBytes(place / "tool" / job.folder / file);
      ASSERT_EQ(ReadBytes(place / "bench" / job.folder / file), expected)
          << job.caption << ", " << file;
      if (expected != ReadBytes(place / "project" / file)) ++changed;
    }
    EXPECT_GT(changed, kGeneratedModules / 2) << job.caption;
  }
}

}  // namespace add_in_bytes_test
}  // namespace brimwork
