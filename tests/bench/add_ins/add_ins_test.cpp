#include "bench/add_ins/add_ins.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "bench/add_ins/report.h"
#include "bench/add_ins/test_add_in.h"
#include "bench/automation/automation_fixture.h"

namespace brimwork::bench {
namespace add_ins_test {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using win32::ComPointer;

class AddInsOfTheBench : public ::testing::Test {
 protected:
  std::shared_ptr<AddIn> Known(const AddIns& all, const std::string& progId) {
    for (const auto& addIn : all.All()) {
      if (addIn->ProgId() == progId) return addIn;
    }
    ADD_FAILURE() << progId << " is not known";
    return nullptr;
  }

  const Apartment apartment;
  Workbench workbench;
  BareSurface surface;
  TestAddIn quiet;
  RegisteredTestAddIn quietClass{"BenchTests.Quiet", load_behavior::kAtStartup, quiet};
};

TEST_F(AddInsOfTheBench, AreFoundInTheRegistry) {
  const AddIns addIns(workbench, surface);
  const auto addIn = Known(addIns, "BenchTests.Quiet");
  EXPECT_EQ(addIn->Registered().friendlyName, "Friendly BenchTests.Quiet");
  EXPECT_EQ(addIn->Description(), "Description of BenchTests.Quiet");
  EXPECT_EQ(addIn->Registered().loadBehavior, 1u);
  EXPECT_THAT(addIn->Guid(), HasSubstr("{"));
  EXPECT_FALSE(addIn->IsConnected());
}

TEST_F(AddInsOfTheBench, AreToldOfStartAndShutdownInOrder) {
  AddIns addIns(workbench, surface);
  addIns.Start();
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 1"));
  addIns.CompleteStart();
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 1", "OnStartupComplete"));
  quiet.calls.clear();
  addIns.Shutdown();
  EXPECT_THAT(quiet.calls, ElementsAre("OnBeginShutdown", "OnDisconnection 0", "released"));
}

TEST_F(AddInsOfTheBench, StartLaterWithoutStartupComplete) {
  AddIns addIns(workbench, surface);
  addIns.Connect(*Known(addIns, "BenchTests.Quiet"), ConnectMode::kAfterStartup);
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 0", "OnAddInsUpdate"));
  quiet.calls.clear();
  addIns.Disconnect(*Known(addIns, "BenchTests.Quiet"), DisconnectMode::kUserClosed);
  EXPECT_THAT(quiet.calls, ElementsAre("OnDisconnection 1", "released"));
}

TEST_F(AddInsOfTheBench, AreNotStartedThatAreNotToBe) {
  TestAddIn manual;
  const RegisteredTestAddIn manualClass("BenchTests.Manual", 0, manual);
  AddIns addIns(workbench, surface);
  addIns.Start();
  EXPECT_THAT(manual.calls, IsEmpty());
  addIns.Shutdown();
}

TEST_F(AddInsOfTheBench, ConnectSeveralTimesInOneRun) {
  AddIns addIns(workbench, surface);
  const auto addIn = Known(addIns, "BenchTests.Quiet");
  for (int time = 0; time < 10; ++time) {
    addIns.Connect(*addIn, ConnectMode::kAfterStartup);
    addIns.Disconnect(*addIn, DisconnectMode::kUserClosed);
  }
  EXPECT_THAT(addIns.Records(), SizeIs(10));
}

TEST_F(AddInsOfTheBench, ThatHoldNothingAreReportedSo) {
  AddIns addIns(workbench, surface);
  addIns.Start();
  addIns.Shutdown();
  const auto report = nlohmann::json::parse(ReportOf(addIns.Records()));
  ASSERT_EQ(report["connections"].size(), 1u);
  const auto& connection = report["connections"][0];
  EXPECT_EQ(connection["progId"], "BenchTests.Quiet");
  EXPECT_EQ(connection["mode"], "Startup");
  EXPECT_EQ(connection["connected"], true);
  EXPECT_EQ(connection["ended"], true);
  EXPECT_EQ(connection["disconnectMode"], "HostShutdown");
  EXPECT_EQ(connection["heldReferences"], 0);
}

TEST_F(AddInsOfTheBench, ThatKeepObjectsAreReportedWithThem) {
  ComPointer<IDispatch> kept;
  ComPointer<IDispatch> keptWindow;
  quiet.onConnection = [&](IDispatch* application, IDispatch*) {
    kept = ComPointer<IDispatch>(application);
    keptWindow = Client(kept).Call(L"MainWindow").value.ToObject();
    return S_OK;
  };
  AddIns addIns(workbench, surface);
  addIns.Start();
  addIns.Shutdown();
  const auto report = nlohmann::json::parse(ReportOf(addIns.Records()));
  EXPECT_EQ(report["connections"][0]["heldReferences"], 2);
  EXPECT_EQ(report["connections"][0]["held"][0]["object"], "VBE");
  EXPECT_EQ(report["connections"][0]["held"][1]["object"], "Window");
}

TEST_F(AddInsOfTheBench, ThatRefuseSayWhyAndAreLeftAlone) {
  quiet.onConnection = [](IDispatch*, IDispatch*) { return E_FAIL; };
  AddIns addIns(workbench, surface);
  addIns.Start();
  const auto addIn = Known(addIns, "BenchTests.Quiet");
  EXPECT_FALSE(addIn->IsConnected());
  EXPECT_THAT(addIn->LastFailure(), HasSubstr("80004005"));
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 1", "released"));
  addIns.Shutdown();
  EXPECT_THAT(ReportOf(addIns.Records()), HasSubstr("refuses the connection"));
}

TEST_F(AddInsOfTheBench, ThatAreNotInstalledSayWhy) {
  auto key = win32::RegistryKey::Make(
      HKEY_CURRENT_USER, "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\BenchTests.Gone");
  key.SetNumber("LoadBehavior", 1);
  AddIns addIns(workbench, surface);
  addIns.Start();
  EXPECT_THAT(Known(addIns, "BenchTests.Gone")->LastFailure(), HasSubstr("not registered"));
  EXPECT_TRUE(Known(addIns, "BenchTests.Quiet")->IsConnected());
  addIns.Shutdown();
  win32::RemoveKey(HKEY_CURRENT_USER,
                   "Software\\Microsoft\\Visual Basic\\6.0\\Addins\\BenchTests.Gone");
}

TEST_F(AddInsOfTheBench, MayBeConnectedByAnotherProgram) {
  AddIns addIns(workbench, surface);
  const auto session = Session::Open(workbench, surface, addIns);
  const Client entry =
      Client(session->Vbe()).Object(L"Addins", {win32::Variant("BenchTests.Quiet")});
  EXPECT_EQ(entry.Put(L"Connect", win32::Variant(true)).result, S_OK);
  EXPECT_EQ(entry.Number(L"Connect"), -1);
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 2", "OnAddInsUpdate"));
  EXPECT_EQ(entry.Put(L"Connect", win32::Variant(false)).result, S_OK);
  EXPECT_EQ(entry.Number(L"Connect"), 0);
  session->End();
}

TEST_F(AddInsOfTheBench, MayAskForTheConnectionThatIsUnderWay) {
  AddIns addIns(workbench, surface);
  quiet.onConnection = [&](IDispatch*, IDispatch* addIn) {
    EXPECT_EQ(Client(ComPointer<IDispatch>(addIn)).Put(L"Connect", win32::Variant(true)).result,
              S_OK);
    return S_OK;
  };
  addIns.Start();
  EXPECT_THAT(quiet.calls, ElementsAre("OnConnection 1"));
  addIns.Shutdown();
}

TEST_F(AddInsOfTheBench, GetAnErrorWhenAnotherProgramCannotConnectThem) {
  quiet.onConnection = [](IDispatch*, IDispatch*) { return E_FAIL; };
  AddIns addIns(workbench, surface);
  const auto session = Session::Open(workbench, surface, addIns);
  const Client entry =
      Client(session->Vbe()).Object(L"Addins", {win32::Variant("BenchTests.Quiet")});
  constexpr int kCannotCreateObject = 429;
  EXPECT_EQ(entry.Put(L"Connect", win32::Variant(true)).ErrorNumber(), kCannotCreateObject);
  session->End();
}

TEST_F(AddInsOfTheBench, ComplainOfADisconnectionAndGoAllTheSame) {
  quiet.onDisconnection = E_UNEXPECTED;
  AddIns addIns(workbench, surface);
  addIns.Start();
  addIns.Shutdown();
  ASSERT_THAT(addIns.Records(), SizeIs(1));
  EXPECT_THAT(addIns.Records().front().complaints, ElementsAre(HasSubstr("OnDisconnection")));
  EXPECT_EQ(quiet.calls.back(), "released");
}

TEST_F(AddInsOfTheBench, ReachTheirOwnEntryOfTheList) {
  std::string progId;
  quiet.onConnection = [&](IDispatch*, IDispatch* addIn) {
    progId = Client(ComPointer<IDispatch>(addIn)).Text(L"ProgId");
    return S_OK;
  };
  AddIns addIns(workbench, surface);
  addIns.Start();
  addIns.Shutdown();
  EXPECT_EQ(progId, "BenchTests.Quiet");
}

TEST_F(AddInsOfTheBench, KeepWhatTheUserChoseForTheirLoading) {
  AddIns addIns(workbench, surface);
  Known(addIns, "BenchTests.Quiet")->SetLoadBehavior(0);
  AddIns later(workbench, surface);
  EXPECT_EQ(Known(later, "BenchTests.Quiet")->Registered().loadBehavior, 0u);
}

}  // namespace add_ins_test
}  // namespace brimwork::bench
