// What the lists above a module's text offer.
#include "bench/screen/procedure_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_code_module.h"

namespace brimwork::bench {
namespace procedure_lists_test {

using testing::ElementsAre;
using testing::IsEmpty;

MemoryCodeModule Module(const char* text) {
  return MemoryCodeModule("Form1", ModuleText::FromText(text));
}

constexpr const char* kForm =
    "Option Explicit\r\n"
    "\r\n"
    "' Starts\r\n"
    "Private Sub Form_Load()\r\n"
    "End Sub\r\n"
    "Public Property Get Size() As Long\r\n"
    "End Property\r\n"
    "Public Property Let Size(ByVal n As Long)\r\n"
    "End Property\r\n"
    "Private Sub cmdAdd_Click()\r\n"
    "End Sub\r\n"
    "\r\n";

TEST(ProcedureLists, GiveEventsToTheirObjects) {
  MemoryCodeModule module = Module(kForm);
  module.GiveLinesBelowToTheLastProcedure();
  EXPECT_THAT(ListProcedures(module, true),
              ElementsAre(ListedProcedure{"Form", "Load", 2, 4, 5},
                          ListedProcedure{"", "Size [PropertyGet]", 6, 6, 7},
                          ListedProcedure{"", "Size [PropertyLet]", 8, 8, 9},
                          ListedProcedure{"cmdAdd", "Click", 10, 10, 12}));
}

TEST(ProcedureLists, TakeNamesAsTheyAreWhereNoEventsAreHandled) {
  MemoryCodeModule module = Module("Sub Form_Load()\r\nEnd Sub\r\n");
  EXPECT_THAT(ListProcedures(module, false),
              ElementsAre(ListedProcedure{"", "Form_Load", 1, 1, 2}));
}

TEST(ProcedureLists, TakeALineAtANamesEndAsPartOfIt) {
  MemoryCodeModule module = Module("Sub Load_()\r\nEnd Sub\r\nSub x()\r\nEnd Sub\r\n");
  const auto procedures = ListProcedures(module, true);
  ASSERT_EQ(procedures.size(), 2U);
  EXPECT_EQ(procedures[0].label, "Load_");
  EXPECT_EQ(procedures[0].object, "");
}

TEST(ProcedureLists, HoldANameThatIsThereTwiceTwice) {
  MemoryCodeModule module =
      Module("Sub a()\r\nEnd Sub\r\nSub a()\r\nEnd Sub\r\nSub b()\r\nEnd Sub");
  const auto procedures = ListProcedures(module, false);
  ASSERT_EQ(procedures.size(), 3U);
  EXPECT_EQ(procedures[1].body, 3);
  EXPECT_EQ(procedures[2].body, 5);
}

TEST(ProcedureLists, AreEmptyForAModuleWithoutProcedures) {
  MemoryCodeModule module = Module("Option Explicit\r\n");
  EXPECT_THAT(ListProcedures(module, true), IsEmpty());
  MemoryCodeModule empty = Module("");
  EXPECT_THAT(ListProcedures(empty, true), IsEmpty());
}

TEST(ProcedureLists, NameEachObjectOnceInOrder) {
  EXPECT_THAT(ObjectsOf({{"b", "x"}, {"", "y"}, {"a", "z"}, {"b", "w"}}), ElementsAre("a", "b"));
}

TEST(ProcedureLists, KnowTheProcedureOfALine) {
  MemoryCodeModule module = Module(kForm);
  module.GiveLinesBelowToTheLastProcedure();
  const auto procedures = ListProcedures(module, true);
  EXPECT_EQ(ProcedureAt(procedures, 1), nullptr);
  EXPECT_EQ(ProcedureAt(procedures, 3), &procedures[0]);
  EXPECT_EQ(ProcedureAt(procedures, 12), &procedures[3]);
  EXPECT_EQ(ProcedureAt(procedures, 99), nullptr);
}

}  // namespace procedure_lists_test
}  // namespace brimwork::bench
