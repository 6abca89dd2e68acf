// A script of a language and an interpreter that are not this project's drives the bench as a
// program of its own; what it prints is compared with what the model says without either.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/model/workbench.h"
#include "environment/text.h"
#include "support/temporary_folder.h"
#include "support/windows/program.h"

namespace brimwork::bench {
namespace vbscript_test {

namespace fs = std::filesystem;

constexpr const char* kProcKinds[] = {"procedure", "let", "set", "get"};

/// A path that no program takes for an option.
std::string PathForPrograms(const fs::path& path) {
  return fs::absolute(path).make_preferred().string();
}

std::string TruthOf(bool truth) { return truth ? "True" : "False"; }

std::string OnOneLine(std::string text) {
  for (std::size_t at = 0; (at = text.find("\r\n", at)) != text.npos;) text.replace(at, 2, "|");
  return text;
}

/// The very steps of the script, on the model.
class Expected {
 public:
  explicit Expected(const fs::path& project) { workbench_.Open(project); }

  std::vector<std::string> Lines() {
    const auto project = workbench_.ActiveProject();
    const auto stock =
        std::static_pointer_cast<WorkComponent>(project->ComponentOfName("modStock"));
    ShowProject(*project);
    ShowProcedures(*stock->Module());
    EditModule(*stock->Module());
    const auto pane = workbench_.PaneOf(stock);
    MoveSelection(*pane, *stock);
    FindText(*stock->Module());
    CommentLines(*pane);
    AddBar();
    ShowWindows();
    Say("line 0: error 9");
    Say("unknown procedure: error 35");
    Say("unknown window: error 9");
    Say("lines: " + std::to_string(lines_.size()));
    return lines_;
  }

 private:
  void Say(std::string line) { lines_.push_back(std::move(line)); }

  void ShowProject(WorkProject& project) {
    Say("project: " + project.Name() + ", " + std::to_string(project.Components().size()) +
        " components");
    for (const auto& component : project.Components()) {
      const auto module = component->Module();
      Say("component: " + component->Name() + ", type " + std::to_string(component->Type()) + ", " +
          std::to_string(module->CountOfLines()) + " lines, " +
          std::to_string(module->CountOfDeclarationLines()) + " of declarations");
    }
  }

  void ShowProcedures(CodeModule& module) {
    int line = module.CountOfDeclarationLines() + 1;
    while (line <= module.CountOfLines()) {
      const ProcedureName found = module.ProcOfLine(line);
      if (found.name.empty()) break;
      const int start = module.ProcStartLine(found.name, found.kind);
      const int count = module.ProcCountLines(found.name, found.kind);
      Say(std::string(kProcKinds[static_cast<int>(found.kind)]) + ": " + found.name + ", start " +
          std::to_string(start) + ", body " +
          std::to_string(module.ProcBodyLine(found.name, found.kind)) + ", " +
          std::to_string(count) + " lines");
      line = start + count;
    }
  }

  void EditModule(CodeModule& module) {
    const int before = module.CountOfLines();
    module.InsertLines(1, "' first\r\n' second");
    module.ReplaceLine(2, "' 2nd");
    module.InsertLines(module.CountOfLines() + 1, "' last\r\n");
    Say("edited: " + OnOneLine(module.Lines(1, 3)));
    Say("grown by " + std::to_string(module.CountOfLines() - before));
    module.DeleteLines(1);
    module.DeleteLines(module.CountOfLines() - 1, 99);
    Say("left: " + OnOneLine(module.Lines(1, 2)));
    Say("grown by " + std::to_string(module.CountOfLines() - before));
  }

  void SaySelection(const std::string& what, MemoryCodePane& pane) {
    const Selection at = pane.GetSelection();
    Say(what + std::to_string(at.startLine) + " " + std::to_string(at.startColumn) + " " +
        std::to_string(at.endLine) + " " + std::to_string(at.endColumn));
  }

  void MoveSelection(MemoryCodePane& pane, WorkComponent& component) {
    pane.SetSelection({2, 3, 4, 1});
    SaySelection("selection: ", pane);
    pane.SetSelection({3, 999, 3, 999});
    SaySelection("caret: ", pane);
    Say("pane of: " + component.Name() + " in " + pane.ContainingWindow()->Caption());
  }

  // The script's first search sets case aside, as the object model does unless told otherwise.
  void FindText(CodeModule& module) {
    Selection range{1, 1, -1, -1};
    const bool found = module.Find("End Sub", range);
    Say("found: " + TruthOf(found));
    Say("at: " + std::to_string(range.startLine) + " " + std::to_string(range.startColumn) + " " +
        std::to_string(range.endLine) + " " + std::to_string(range.endColumn));
    range = {1, 1, -1, -1};
    Say("found with case: " + TruthOf(module.Find("end sub", range)));
  }

  void CommentLines(MemoryCodePane& pane) {
    pane.SetSelection({2, 1, 4, 1});
    workbench_.vbe.FindControl(control_id::kCommentBlock)->Execute();
    Say("commented: " + OnOneLine(pane.Module()->Lines(2, 3)));
    workbench_.vbe.FindControl(control_id::kUncommentBlock)->Execute();
    Say("uncommented: " + OnOneLine(pane.Module()->Lines(2, 3)));
  }

  void AddBar() {
    const auto bar = workbench_.vbe.AddCommandBar(
        {.name = "Script Bar", .position = bar_position::kFloating, .isTemporary = true});
    Say("bar: " + bar->Name() + ", visible " + TruthOf(bar->Visible()) + ", built in False");
    const auto controls = bar->Controls();
    const auto button = controls->Add({});
    button->SetCaption("&Press");
    const auto menu = controls->Add({.type = control_type::kPopup});
    menu->SetCaption("&More");
    menu->Controls()->Add({})->SetCaption("Inside");
    controls->Add({.before = 1})->SetCaption("&First");
    for (int index = 1; index <= controls->Count(); ++index) {
      const auto control = controls->Item(index);
      Say("control: " + std::to_string(control->Index()) + " " + control->Caption() + ", type " +
          std::to_string(control->Type()) + ", parameter '" + (index == 1 ? "here" : "") + "'");
    }
    Say("found by tag: " + button->Caption());
    Say("no such tag: True");
    Say("by caption: " + controls->Item("More")->Controls()->Item(1)->Caption());
    bar->SetVisible(true);
    Say("bar is visible: " + TruthOf(workbench_.vbe.CommandBarOfName("Script Bar")->Visible()));
    bar->Delete();
  }

  // On the screen the toolbox is shown beside designers only.
  void ShowWindows() {
    workbench_.windows.toolbox->SetVisible(false);
    for (const auto& window : workbench_.vbe.Windows()) {
      Say("window: " + window->Caption() + ", type " + std::to_string(window->Type()) +
          ", visible " + TruthOf(window->Visible()));
    }
    Say("active: " + workbench_.vbe.ActiveWindow()->Caption());
  }

  Workbench workbench_;
  std::vector<std::string> lines_;
};

TEST(BenchDrivenByVbScript, SaysWhatTheModelSays) {
  const TemporaryFolder folder;
  fs::copy(fs::path(BRIMWORK_SOURCE_DIR) / "samples", folder / "samples",
           fs::copy_options::recursive);
  const fs::path project = folder / "samples" / "WorkshopDesk.vbp";
  const fs::path script = fs::path(BRIMWORK_SOURCE_DIR) / "tests/bench/acceptance/object_model.vbs";
  ASSERT_EQ(RunProgram({PathForPrograms(BRIMWORK_BENCH), "/regserver"}).exitCode, 0);

  const ProgramRun run =
      RunProgram({"cscript.exe", "//nologo", PathForPrograms(script), PathForPrograms(project)});

  EXPECT_EQ(RunProgram({PathForPrograms(BRIMWORK_BENCH), "/unregserver"}).exitCode, 0);
  EXPECT_EQ(run.exitCode, 0) << run.output;
  EXPECT_THAT(run.Lines(), ::testing::ElementsAreArray(Expected(project).Lines()));
}

}  // namespace vbscript_test
}  // namespace brimwork::bench
