// Connection, start-up, opened forms and disconnection over COM, where one call after the other
// fails. Whatever fails, nothing is raised, and nothing of the add-in is left.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <exception>

#include "core/Connect.h"
#include "support/entry_tree.h"
#include "windows/fault_sweep/com_desktop.h"

namespace brimwork::windows {
namespace connection_fault_sweep_test {

/// One life of the add-in, from connection to disconnection.
class Life {
 public:
  explicit Life(DispatchFault fault) : com_(std::move(fault)) {
    before_ = AllBars(com_.workbench.vbe.commandBars);
    try {
      connect_.AddinInstance_OnConnection(com_.Parts());
      connect_.AddinInstance_OnStartupComplete();
      OpenForms();
      lastCallConnected_ = static_cast<int>(com_.calls.Members().size());
      connect_.AddinInstance_OnDisconnection();
    } catch (const std::exception& error) {
      raised_ = error.what();
    }
    com_.CloseConnection();
  }

  const std::vector<std::string>& Calls() const { return com_.calls.Members(); }
  int LastCallConnected() const { return lastCallConnected_; }

  /// What must hold whatever fails.
  std::string Complaint() {
    if (!raised_.empty()) return "raised an error: " + raised_;
    if (connect_.IsConnected()) return "is still connected";
    if (!com_.desktop.formHost.LoadedForms().empty()) return "leaves a form";
    if (!com_.Held().empty()) return "holds " + com_.Held().front().name;
    return com_.calls.RanAway() ? "does not come to an end" : "";
  }

  /// What holds when calls work again that failed once.
  std::string ComplaintWithBars() {
    const std::string complaint = Complaint();
    if (!complaint.empty()) return complaint;
    return AllBars(com_.workbench.vbe.commandBars) == before_ ? "" : "leaves entries";
  }

  std::size_t Forms() {
    return static_cast<std::size_t>(
        std::ranges::count_if(com_.desktop.formHost.events, [](const std::string& event) {
          return event == "show frmMsgBox" || event == "show frmSetup";
        }));
  }

 private:
  void OpenForms() {
    for (const auto& control : AllControls(*com_.workbench.bars.addIns->Entries())) {
      const std::string caption(control->LastCaption());
      if (caption == "MsgBox Creator" || caption == "Configure Brimwork") control->Execute();
    }
  }

  ComDesktop com_;
  Connect connect_;
  std::vector<std::string> before_;
  std::string raised_;
  int lastCallConnected_ = 0;
};

void Sweep(HRESULT answer) {
  const Life unharmed({});
  for (int call = 1; call <= static_cast<int>(unharmed.Calls().size()); ++call) {
    Life life({answer, [call](int at) { return at == call; }});
    const bool isConnecting = call <= unharmed.LastCallConnected();
    ASSERT_EQ(isConnecting ? life.ComplaintWithBars() : life.Complaint(), "")
        << "call " << call << ", " << unharmed.Calls()[static_cast<std::size_t>(call - 1)];
  }
}

TEST(ComConnectionFaultSweep, WithoutFaultsNothingIsLeft) {
  Life life({});
  EXPECT_EQ(life.ComplaintWithBars(), "");
  EXPECT_GT(life.LastCallConnected(), 500);
  EXPECT_EQ(life.Forms(), 2u);
}

TEST(ComConnectionFaultSweep, OneCallThatFailsLeavesNothingBehind) { Sweep(E_FAIL); }

TEST(ComConnectionFaultSweep, OneCallThatIsRejectedLeavesNothingBehind) {
  Sweep(RPC_E_CALL_REJECTED);
}

TEST(ComConnectionFaultSweep, OneMemberThatIsNotThereLeavesNothingBehind) {
  Sweep(DISP_E_MEMBERNOTFOUND);
}

TEST(ComConnectionFaultSweep, OneObjectThatIsNotThereLeavesNothingBehind) { Sweep(S_OK); }

}  // namespace connection_fault_sweep_test
}  // namespace brimwork::windows
