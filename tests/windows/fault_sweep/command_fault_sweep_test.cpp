// Every command on a module over COM, where one call after the other fails. Whatever fails, the
// command comes to its end, the desktop is the user's again, and no line of the user's is lost.
#include <windows.h>

#include <gtest/gtest.h>

#include <exception>
#include <set>

#include "environment/text.h"
#include "support/every_command.h"
#include "support/kept_lines.h"
#include "windows/fault_sweep/com_desktop.h"

namespace brimwork::windows {
namespace command_fault_sweep_test {

constexpr const char* kModule =
    "Option Explicit\r\n"
    "\r\n"
    "\r\n"
    "' counts the parts\r\n"
    "Private Sub Count(ByVal parts As Long)\r\n"
    "10:    For i = 1 To parts\r\n"
    "MsgBox \"Part\" & i\r\n"
    "Next i\r\n"
    "End Sub\r\n"
    "Function Half(ByVal a As Double) As Double\r\n"
    "Half = a / 2\r\n"
    "End Function\r\n";
constexpr int kCaretLine = 7;

/// One command over a module whose environment fails as told.
class Command {
 public:
  Command(const DispatchedCommand& command, DispatchFault fault) : com_(std::move(fault)) {
    pane_ = com_.Open(kModule);
    com_.desktop.settingsArea.SaveSetting("Brimwork", "Settings", "KeyWordList", "If,Sub,Long");
    com_.desktop.settingsArea.SaveSetting("Brimwork", "Settings", "ErrorHandling",
                                          "' in CURRENTFULLPROCEDUREPATH");
    com_.desktop.shellFolders.SetPath(0, "C:\\Desktop");
    com_.desktop.dialogs.SaveTo("C:\\Exported");
    const int lineEnd = CharacterCount(pane_->Module()->Lines(kCaretLine, 1)) + 1;
    pane_->SetSelection({kCaretLine, lineEnd, kCaretLine, lineEnd});
    try {
      AddIn addIn(com_.Parts());
      Run(addIn, command);
      leavesProgress_ = addIn.progressWindow.Visible();
    } catch (const std::exception& error) {
      raised_ = error.what();
    }
    com_.CloseConnection();
  }

  const std::vector<std::string>& Calls() const { return com_.calls.Members(); }

  std::string Complaint() {
    if (!raised_.empty()) return "raised an error: " + raised_;
    if (leavesProgress_) return "leaves the progress window";
    if (!com_.Held().empty()) return "holds " + com_.Held().front().name;
    const auto lost = FirstLostLine(kModule, Text());
    return lost ? "lost the line: " + *lost : com_.Complaint();
  }

 private:
  /// Without a time stamp that came behind the caret's line.
  std::string Text() {
    const auto module = pane_->Module();
    return Replace(module->Lines(1, module->CountOfLines()), " ' 11/21/2026 10:20:30 AM ", "");
  }

  ComDesktop com_;
  std::shared_ptr<MemoryCodePane> pane_;
  std::string raised_;
  bool leavesProgress_ = false;
};

/// The editors are of 32 bits; with 64 bits, which differ in little, some calls will do.
constexpr int kStep = sizeof(void*) == 4 ? 1 : 5;

/// Lets each call of each command fail in turn.
void Sweep(HRESULT answer) {
  for (const DispatchedCommand& command : EveryCommand()) {
    SCOPED_TRACE(command.Title());
    const Command unharmed(command, {});
    for (int call = 1; call <= static_cast<int>(unharmed.Calls().size()); call += kStep) {
      Command harmed(command, {answer, [call](int at) { return at == call; }});
      ASSERT_EQ(harmed.Complaint(), "")
          << "call " << call << ", " << unharmed.Calls()[static_cast<std::size_t>(call - 1)];
    }
  }
}

TEST(ComCommandFaultSweep, WithoutFaultsEveryCommandRunsUnharmed) {
  std::set<std::string> members;
  for (const DispatchedCommand& command : EveryCommand()) {
    Command unharmed(command, {});
    EXPECT_EQ(unharmed.Complaint(), "") << command.Title();
    members.insert(unharmed.Calls().begin(), unharmed.Calls().end());
  }
  // A sweep over commands that do next to nothing would find nothing.
  for (const char* member :
       {"ReplaceLine", "InsertLines", "DeleteLines", "SetSelection", "GetSelection", "Lines",
        "ProcOfLine", "Find", "ActiveVBProject", "Windows", "SetFocus"}) {
    EXPECT_TRUE(members.contains(member)) << member;
  }
}

TEST(ComCommandFaultSweep, OneCallThatFailsDoesNoHarm) { Sweep(E_FAIL); }

TEST(ComCommandFaultSweep, OneCallThatIsRejectedDoesNoHarm) { Sweep(RPC_E_CALL_REJECTED); }

TEST(ComCommandFaultSweep, OneMemberThatIsNotThereDoesNoHarm) { Sweep(DISP_E_MEMBERNOTFOUND); }

TEST(ComCommandFaultSweep, OneObjectThatIsNotThereDoesNoHarm) { Sweep(S_OK); }

/// As an editor that shuts down: from one call on it answers nothing any more.
TEST(ComCommandFaultSweep, AnEnvironmentThatGoesAwayEndsTheCommand) {
  for (const DispatchedCommand& command : EveryCommand()) {
    SCOPED_TRACE(command.Title());
    const Command unharmed(command, {});
    for (int call = 1; call <= static_cast<int>(unharmed.Calls().size()); call += 7) {
      Command harmed(command, {RPC_E_DISCONNECTED, [call](int at) { return at >= call; }});
      ASSERT_EQ(harmed.Complaint(), "") << "from call " << call;
    }
  }
}

}  // namespace command_fault_sweep_test
}  // namespace brimwork::windows
