// Every command over an environment in which one call after the other fails. Whatever fails, the
// command comes to its end, the desktop is the user's again, and no line of the user's is lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/modButtonClicked.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "support/every_command.h"
#include "support/faulty_environment.h"
#include "support/kept_lines.h"
#include "support/module_generator.h"

namespace brimwork {
namespace fault_sweep_test {

constexpr const char* kUsersClipboard = "what the user copied";
constexpr const char* kExported = "C:\\Exported";
constexpr const char* kDesktop = "C:\\Desktop";
constexpr const char* kQuickExported = "C:\\Desktop\\Exported Code.txt";

struct Sample {
  std::string name;
  std::string text;
  int caretLine;
};

constexpr const char* kOrdinary =
    "Option Explicit\r\n"
    "Private total As Long\r\n"
    "\r\n"
    "' counts the parts\r\n"
    "Private Sub Count(ByVal parts As Long, _\r\n"
    "    ByVal limit As Long)\r\n"
    "Dim i As Long\r\n"
    "10:    For i = 1 To parts\r\n"
    "20:    If i > limit Then\r\n"
    "Exit For\r\n"
    "End If\r\n"
    "Next i\r\n"
    "\r\n"
    "End Sub\r\n"
    "\r\n"
    "Public Property Get Sum() As Long\r\n"
    "Sum = total\r\n"
    "End Property ' Sum\r\n"
    "Public Property Let Sum(ByVal value As Long)\r\n"
    "Select Case value\r\n"
    "Case 0: total = 1\r\n"
    "End Select\r\n"
    "End Property\r\n"
    "\r\n"
    "Function Half(ByVal a As Double) As Double\r\n"
    "    Half = a / _\r\n"
    "2\r\n"
    "End Function\r\n";

std::string OddText() {
  GeneratorOptions options;
  options.seed = 8;
  options.lines = 45;
  options.messy = options.continuations = options.lineNumbers = options.oddities = true;
  return GenerateModule(options).text;
}

std::vector<Sample> Samples() {
  return {{"ordinary procedures", kOrdinary, 9},
          {"odd procedures", OddText(), 45},
          {"nothing at all", "", 1},
          {"declarations only", "Option Explicit\r\n\r\nPrivate total As Long\r\n", 3}};
}

/// One click over a module whose environment fails as told.
class Click {
 public:
  Click(const Sample& sample, const DispatchedCommand& command, Fault fault)
      : sample_(sample),
        pane_(memory_.Open("Module1", ModuleText::FromText(sample.text))),
        faulty_(memory_.Parts(), std::move(fault)),
        addIn_(faulty_.Parts()) {
    // With a tab width to be found, the registry's calls are all made.
    memory_.registry.SetDword(kHiveCurrentUser, "Software\\Microsoft\\VBA\\Microsoft Visual Basic",
                              "TabWidth", 2);
    memory_.settingsArea.SaveSetting("Brimwork", "Settings", "ErrorHandling",
                                     "' in CURRENTFULLPROCEDUREPATH");
    memory_.settingsArea.SaveSetting("Brimwork", "Settings", "KeyWordList", "If,Then,End,Sub,Long");
    memory_.shellFolders.SetPath(0, kDesktop);
    memory_.dialogs.SaveTo(kExported);
    memory_.clipboard.SetText(kUsersClipboard);
    const int lineEnd = CharacterCount(pane_->Module()->Lines(sample.caretLine, 1)) + 1;
    pane_->SetSelection({sample.caretLine, lineEnd, sample.caretLine, lineEnd});
    try {
      Run(addIn_, command);
    } catch (const std::exception& error) {
      raised_ = error.what();
    }
  }

  const std::vector<std::string_view>& Operations() const { return faulty_.Operations(); }

  /// The module afterwards, without a time stamp that came behind the caret's line.
  std::string Text() const {
    return Replace(pane_->Module()->Lines(1, pane_->Module()->CountOfLines()),
                   " ' 11/21/2026 10:20:30 AM ", "");
  }

  /// What must hold even when nothing in the environment works any more; "" when it does.
  std::string Complaint() const {
    if (!raised_.empty()) return "raised an error: " + raised_;
    if (faulty_.RanAway()) return "does not come to an end";
    if (addIn_.progressWindow.Visible()) return "leaves the progress window";
    if (HasHalfAFile()) return "leaves half a file";
    const auto lost = FirstLostLine(sample_.text, Text());
    return lost ? "lost the line: " + *lost : "";
  }

  std::string PointerComplaint() {
    return memory_.screen.MousePointer() == mouse_pointer::kDefault ? "" : "leaves the hourglass";
  }
  std::string LockComplaint() const {
    return memory_.screen.LockedWindow() == 0 ? "" : "leaves the window frozen";
  }
  std::string ClipboardComplaint() {
    return memory_.clipboard.GetText() == kUsersClipboard ? "" : "lost the clipboard's text";
  }

  /// What must hold where the desktop's calls work, or worked when they were tried again.
  std::string ComplaintWithDesktop() {
    for (const std::string& complaint :
         {Complaint(), PointerComplaint(), LockComplaint(), ClipboardComplaint()}) {
      if (!complaint.empty()) return complaint;
    }
    return "";
  }

  bool HasFile() const {
    return memory_.textFiles.Exists(kExported) || memory_.textFiles.Exists(kQuickExported);
  }

 private:
  /// A web page and rich text say where they end; plain text is the module's or, of an empty
  /// selection, nothing.
  bool HasHalfAFile() const {
    if (!HasFile()) return false;
    const std::string bytes =
        memory_.textFiles.BytesOf(kExported) + memory_.textFiles.BytesOf(kQuickExported);
    if (bytes.starts_with("<pre>")) return !bytes.ends_with("</pre>\r\n");
    if (bytes.starts_with("{\\rtf1")) return !bytes.ends_with("}") && !bytes.ends_with("}\r\n");
    const std::string module = pane_->Module()->Lines(1, pane_->Module()->CountOfLines());
    return !bytes.empty() && SplitLines(bytes).size() != SplitLines(module).size();
  }

  const Sample& sample_;
  MemoryEnvironment memory_;
  std::shared_ptr<MemoryCodePane> pane_;
  FaultyEnvironment faulty_;
  AddIn addIn_;
  std::string raised_;
};

/// Calls check(sample, command, a click without faults) for each command over each sample.
template <class Check>
void ForEachCommandAndSample(Check check) {
  const std::vector<Sample> samples = Samples();
  for (const DispatchedCommand& command : EveryCommand()) {
    for (const Sample& sample : samples) {
      SCOPED_TRACE(command.Title() + " over " + sample.name);
      const Click unharmed(sample, command, {});
      check(sample, command, unharmed);
    }
  }
}

std::string CallTitle(const std::vector<std::string_view>& operations, int call) {
  return "call " + std::to_string(call) + ", " +
         std::string(operations[static_cast<std::size_t>(call - 1)]);
}

Fault FailingAt(int failing, Fault::Kind kind) {
  return {kind, [failing](int call, std::string_view) { return call == failing; }};
}

Fault RaisingFrom(int first) {
  return {Fault::Kind::kRaises, [first](int call, std::string_view) { return call >= first; }};
}

TEST(FaultSweep, RunsEveryCommandOverEverySampleUnharmedWithoutFaults) {
  std::set<std::string_view> operations;
  ForEachCommandAndSample(
      [&](const Sample& sample, const DispatchedCommand& command, const Click&) {
        Click click(sample, command, {});
        EXPECT_EQ(click.ComplaintWithDesktop(), "");
        EXPECT_FALSE(click.Operations().empty());
        operations.insert(click.Operations().begin(), click.Operations().end());
      });
  // A sweep over commands that do next to nothing would find nothing.
  for (const std::string_view operation :
       {"CodeModule.ReplaceLine", "CodeModule.InsertLines", "CodeModule.DeleteLines",
        "CodePane.SetSelection", "Screen.LockWindowUpdate", "Clipboard.SetText",
        "Keyboard.SendKeys", "MessageLoop.DoEvents", "Registry.CloseKey", "VBProject.Name",
        "SettingsArea.GetSetting", "Clock.GeneralDate", "Clock.ShortDate",
        "Dialogs.GetSaveFileName", "OutputFile.Close", "RichTextBox.SaveFile",
        "RichTextBox.SetSelColor", "WordProcessor.CutSelection"}) {
    EXPECT_TRUE(operations.contains(operation)) << operation;
  }
}

TEST(FaultSweep, OneFailingCallLeavesTheDesktopAsItWasLosesNoLineAndRepeatsNothing) {
  ForEachCommandAndSample(
      [](const Sample& sample, const DispatchedCommand& command, const Click& unharmed) {
        const int written = CountWrittenLines(unharmed.Text());
        const int calls = static_cast<int>(unharmed.Operations().size());
        for (int call = 1; call <= calls; ++call) {
          Click click(sample, command, FailingAt(call, Fault::Kind::kRaises));
          ASSERT_EQ(click.ComplaintWithDesktop(), "") << CallTitle(unharmed.Operations(), call);
          ASSERT_LE(CountWrittenLines(click.Text()), written)
              << CallTitle(unharmed.Operations(), call) << "\n"
              << click.Text();
        }
      });
}

TEST(FaultSweep, OneCallThatFailsBehindItsWorkDoesNoMoreHarm) {
  const auto changesSomething = [](std::string_view operation) {
    for (const std::string_view verb : {".Set", ".Insert", ".Delete", ".Replace", ".Lock", ".Clear",
                                        ".Send", ".OpenKey", ".CloseKey"}) {
      if (Contains(operation, verb)) return true;
    }
    return false;
  };
  ForEachCommandAndSample(
      [&](const Sample& sample, const DispatchedCommand& command, const Click& unharmed) {
        const auto& operations = unharmed.Operations();
        for (int call = 1; call <= static_cast<int>(operations.size()); ++call) {
          if (!changesSomething(operations[static_cast<std::size_t>(call - 1)])) continue;
          Click click(sample, command, FailingAt(call, Fault::Kind::kRaisesBehind));
          ASSERT_EQ(click.ComplaintWithDesktop(), "") << CallTitle(operations, call);
        }
      });
}

TEST(FaultSweep, AnEnvironmentThatStopsWorkingEndsTheCommandAndLosesNoLine) {
  constexpr int kSteps = 60;
  ForEachCommandAndSample(
      [](const Sample& sample, const DispatchedCommand& command, const Click& unharmed) {
        const int calls = static_cast<int>(unharmed.Operations().size());
        for (int call = 1; call <= calls; call += std::max(1, calls / kSteps)) {
          const Click click(sample, command, RaisingFrom(call));
          ASSERT_EQ(click.Complaint(), "") << "from " << CallTitle(unharmed.Operations(), call);
        }
      });
}

TEST(FaultSweep, AnEnvironmentThatFailsAgainAndAgainEndsTheCommandAndLosesNoLine) {
  ForEachCommandAndSample([](const Sample& sample, const DispatchedCommand& command, const Click&) {
    for (int period = 2; period <= 20; ++period) {
      const Click click(sample, command,
                        {Fault::Kind::kRaises,
                         [period](int call, std::string_view) { return call % period == 0; }});
      ASSERT_EQ(click.Complaint(), "") << "every call number " << period;
    }
  });
}

TEST(FaultSweep, AnOperationThatNeverWorksLeavesTheRestOfTheDesktopAsItWas) {
  ForEachCommandAndSample(
      [](const Sample& sample, const DispatchedCommand& command, const Click& unharmed) {
        const std::set<std::string_view> operations(unharmed.Operations().begin(),
                                                    unharmed.Operations().end());
        for (const std::string_view broken : operations) {
          Click click(sample, command,
                      {Fault::Kind::kRaises,
                       [broken](int, std::string_view operation) { return operation == broken; }});
          ASSERT_EQ(click.Complaint(), "") << broken;
          ASSERT_EQ(click.LockComplaint(), "") << broken;
          if (broken != "Screen.SetMousePointer") {
            ASSERT_EQ(click.PointerComplaint(), "") << broken;
          }
          if (broken != "Clipboard.SetText") {
            ASSERT_EQ(click.ClipboardComplaint(), "") << broken;
          }
        }
      });
}

/// Objects that are gone and a registry that refuses: from the n-th call on, and for that one call.
TEST(FaultSweep, AnObjectThatIsNotThereLeavesTheDesktopAsItWasAndLosesNoLine) {
  ForEachCommandAndSample([](const Sample& sample, const DispatchedCommand& command,
                             const Click& unharmed) {
    const auto& operations = unharmed.Operations();
    for (int first = 1; first <= static_cast<int>(operations.size()); ++first) {
      if (!FaultyEnvironment::CanAnswerNothing(operations[static_cast<std::size_t>(first - 1)])) {
        continue;
      }
      for (const bool forGood : {false, true}) {
        Click click(sample, command,
                    {Fault::Kind::kAnswersNothing, [=](int call, std::string_view) {
                       return forGood ? call >= first : call == first;
                     }});
        ASSERT_EQ(click.ComplaintWithDesktop(), "")
            << (forGood ? "from " : "at ") << CallTitle(operations, first);
      }
    }
  });
}

}  // namespace fault_sweep_test
}  // namespace brimwork
