#include "bench/automation/session.h"

#include <gmock/gmock.h>

#include "bench/automation/automation_fixture.h"

namespace brimwork::bench {
namespace session_test {

using ::testing::IsEmpty;
using ::testing::SizeIs;

class SessionOfAClient : public AutomationTest {
 protected:
  SessionOfAClient() { OpenModule("Sub First()\r\nEnd Sub\r\n"); }
};

TEST_F(SessionOfAClient, HoldsNothingAtFirstAndWhenAllIsReleased) {
  EXPECT_THAT(session->Held(), IsEmpty());
  Module().Number(L"CountOfLines");
  EXPECT_THAT(session->Held(), IsEmpty());
}

TEST_F(SessionOfAClient, CountsWhatAClientHolds) {
  const Client module = Module();
  const Client sameModule = module;
  const auto held = session->Held();
  ASSERT_THAT(held, SizeIs(1));
  EXPECT_EQ(held[0].name, "CodeModule");
  EXPECT_EQ(held[0].references, 2u);
}

TEST_F(SessionOfAClient, CountsItsOwnClientOnly) {
  const auto other = Session::Open(workbench, surface, addIns);
  const Client module = Module();
  EXPECT_THAT(other->Held(), IsEmpty());
  other->End();
}

TEST_F(SessionOfAClient, TakesObjectsOfAnotherSession) {
  const auto other = Session::Open(workbench, surface, addIns);
  const win32::Variant project(Client(other->Vbe()).Object(L"ActiveVBProject").Raw());
  EXPECT_EQ(Vbe().Put(L"ActiveVBProject", project).result, S_OK);
  other->End();
}

TEST_F(SessionOfAClient, LeavesObjectsToTheirHoldersWhenItEnds) {
  const Client module = Module();
  session->End();
  EXPECT_THAT(session->Held(), SizeIs(1));
}

}  // namespace session_test
}  // namespace brimwork::bench
