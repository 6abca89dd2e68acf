// Connection, start-up, clicks and disconnection over an environment in which one call after the
// other fails. Whatever fails, nothing is raised, and nothing of the add-in is left behind.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "support/connected_add_in.h"
#include "support/entry_tree.h"

namespace brimwork {
namespace connect_fault_sweep_test {

using testing::IsSupersetOf;

/// One life of the add-in, from connection to disconnection.
class Life : public ConnectedAddIn {
 public:
  /// isDisconnecting becomes true when disconnection begins.
  explicit Life(Fault fault, bool* isDisconnecting = nullptr) {
    bars.file->Entries()->All()[14]->action = [this] { ++reopened_; };
    Set("AutoLoad", "True");
    SetOption("PromptForProjectOnStartup", "0");
    SetOption("TemplatesDirectory", "C:\\Program Files\\Microsoft Visual Studio\\VB98\\Template");
    before_ = AllBars(memory.vbe.commandBars);
    Live(std::move(fault), isDisconnecting);
  }

  const std::vector<std::string_view>& Operations() const { return faulty->Operations(); }
  /// The number of the last call before the disconnection.
  int LastCallConnected() const { return lastCallConnected_; }

  /// What must hold whatever fails; "" when it does.
  std::string Complaint() {
    if (!raised_.empty()) return "raised an error: " + raised_;
    if (faulty->RanAway()) return "does not come to an end";
    if (connect.IsConnected()) return "is still connected";
    if (!memory.formHost.LoadedForms().empty()) return "leaves a form";
    if (reopened_ > 1) return "reopens the project twice";
    return "";
  }

  std::string ComplaintWithBars() {
    const std::string complaint = Complaint();
    if (!complaint.empty()) return complaint;
    return AllBars(memory.vbe.commandBars) == before_ ? "" : "leaves entries:" + LeftEntries();
  }

  int MessageCount() const { return static_cast<int>(memory.dialogs.Messages().size()); }

 private:
  void SetOption(const char* name, const std::string& value) {
    memory.registry.SetValue(kHiveCurrentUser, "Software\\Microsoft\\Visual Basic\\6.0", name,
                             kRegistrySz, value + '\0');
  }

  void Live(Fault fault, bool* isDisconnecting) {
    try {
      ConnectIt(std::move(fault));
      connect.AddinInstance_OnStartupComplete();
      OpenForms();
      lastCallConnected_ = static_cast<int>(faulty->Operations().size());
      if (isDisconnecting != nullptr) *isDisconnecting = true;
      Disconnect();
    } catch (const std::exception& error) {
      raised_ = error.what();
    }
  }

  /// With the entries of the menu, as far as they have been built.
  void OpenForms() {
    for (const auto& control : AllControls(AddInsMenu())) {
      const std::string caption(control->LastCaption());
      if (caption == "MsgBox Creator" || caption == "Configure Brimwork") control->Execute();
    }
  }

  std::string LeftEntries() {
    std::string left;
    for (const std::string& line : AllBars(memory.vbe.commandBars)) {
      if (std::ranges::find(before_, line) == before_.end()) left += " \"" + line + '"';
    }
    return left;
  }

  std::vector<std::string> before_;
  std::string raised_;
  int lastCallConnected_ = 0;
  int reopened_ = 0;
};

Fault FailingAt(int failing, Fault::Kind kind) {
  return {kind, [failing](int call, std::string_view) { return call == failing; }};
}

std::string CallTitle(const Life& life, int call) {
  return "call " + std::to_string(call) + ", " +
         std::string(life.Operations()[static_cast<std::size_t>(call - 1)]);
}

TEST(ConnectFaultSweep, WithoutFaultsNothingIsToldOrLeft) {
  Life life({});
  EXPECT_EQ(life.ComplaintWithBars(), "");
  EXPECT_EQ(life.MessageCount(), 0);
  EXPECT_GT(life.LastCallConnected(), 500);
  EXPECT_THAT(life.memory.formHost.events,
              IsSupersetOf({"show frmSplash", "show frmMsgBox", "show frmSetup"}));
}

TEST(ConnectFaultSweep, OneFailingCallWhileConnectingLeavesNothingBehind) {
  const Life unharmed({});
  for (int call = 1; call <= unharmed.LastCallConnected(); ++call) {
    Life life(FailingAt(call, Fault::Kind::kRaises));
    ASSERT_EQ(life.ComplaintWithBars(), "") << CallTitle(unharmed, call);
    ASSERT_LE(life.MessageCount(), 1) << CallTitle(unharmed, call);
  }
}

TEST(ConnectFaultSweep, OneFailingCallWhileDisconnectingLeavesNothingBehindEither) {
  const Life unharmed({});
  const int calls = static_cast<int>(unharmed.Operations().size());
  for (int call = unharmed.LastCallConnected() + 1; call <= calls; ++call) {
    Life life(FailingAt(call, Fault::Kind::kRaises));
    ASSERT_EQ(life.ComplaintWithBars(), "") << CallTitle(unharmed, call);
    ASSERT_LE(life.MessageCount(), 1) << CallTitle(unharmed, call);
  }
}

/// A call that adds something and fails behind that leaves what nobody was handed.
TEST(ConnectFaultSweep, OneCallThatFailsBehindItsWorkLeavesAtMostWhatNobodyWasHanded) {
  const Life unharmed({});
  const int calls = static_cast<int>(unharmed.Operations().size());
  for (int call = 1; call <= calls; ++call) {
    Life life(FailingAt(call, Fault::Kind::kRaisesBehind));
    const bool isAdding =
        unharmed.Operations()[static_cast<std::size_t>(call - 1)] == "CommandBarControls.Add";
    ASSERT_EQ(isAdding ? life.Complaint() : life.ComplaintWithBars(), "")
        << CallTitle(unharmed, call);
  }
}

TEST(ConnectFaultSweep, AnEnvironmentThatWorksAgainForTheDisconnectionKeepsNothing) {
  const Life unharmed({});
  for (int first = 1; first <= unharmed.LastCallConnected(); ++first) {
    bool isDisconnecting = false;
    Life life({Fault::Kind::kRaises,
               [&](int call, std::string_view) { return !isDisconnecting && call >= first; }},
              &isDisconnecting);
    ASSERT_EQ(life.ComplaintWithBars(), "") << "from " << CallTitle(unharmed, first);
  }
}

TEST(ConnectFaultSweep, AnEnvironmentThatStopsWorkingForGoodEndsTheAddInWithoutAnError) {
  const Life unharmed({});
  const int calls = static_cast<int>(unharmed.Operations().size());
  for (int first = 1; first <= calls; first += 3) {
    Life life(
        {Fault::Kind::kRaises, [first](int call, std::string_view) { return call >= first; }});
    ASSERT_EQ(life.Complaint(), "") << "from " << CallTitle(unharmed, first);
  }
}

TEST(ConnectFaultSweep, AnObjectThatIsNotThereLeavesNothingBehind) {
  const Life unharmed({});
  const int calls = static_cast<int>(unharmed.Operations().size());
  for (int call = 1; call <= calls; ++call) {
    const auto operation = unharmed.Operations()[static_cast<std::size_t>(call - 1)];
    if (!FaultyEnvironment::CanAnswerNothing(operation)) continue;
    Life life(FailingAt(call, Fault::Kind::kAnswersNothing));
    ASSERT_EQ(life.ComplaintWithBars(), "") << CallTitle(unharmed, call);
  }
}

TEST(ConnectFaultSweep, AnOperationThatNeverWorksEndsTheAddInWithoutAnError) {
  const Life unharmed({});
  const std::set<std::string_view> operations(unharmed.Operations().begin(),
                                              unharmed.Operations().end());
  for (const std::string_view broken : operations) {
    Life life({Fault::Kind::kRaises,
               [broken](int, std::string_view operation) { return operation == broken; }});
    ASSERT_EQ(life.Complaint(), "") << broken;
    const bool isNeededToRemove = broken.ends_with(".Delete");
    if (isNeededToRemove) continue;
    ASSERT_EQ(life.ComplaintWithBars(), "") << broken;
  }
}

}  // namespace connect_fault_sweep_test
}  // namespace brimwork
