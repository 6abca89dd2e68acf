// Which lines belong to which procedure.
#include <gmock/gmock.h>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

constexpr auto kProcedure = ProcKind::kProcedure;

TEST_P(ProceduresContract, LinesBetweenTwoProceduresBelongToTheLaterOne) {
  const auto module =
      Open({"Sub A()", "End Sub", "", "' about B", "", "Function B()", "x = 1", "End Function"});
  for (const int line : {1, 2}) EXPECT_EQ(module->ProcOfLine(line).name, "A") << line;
  for (const int line : {3, 4, 5, 6, 8}) EXPECT_EQ(module->ProcOfLine(line).name, "B") << line;
  EXPECT_EQ(module->ProcStartLine("A", kProcedure), 1);
  EXPECT_EQ(module->ProcCountLines("A", kProcedure), 2);
  EXPECT_EQ(module->ProcStartLine("B", kProcedure), 3);
  EXPECT_EQ(module->ProcBodyLine("B", kProcedure), 6);
  EXPECT_EQ(module->ProcCountLines("B", kProcedure), 6);
}

TEST_P(ProceduresContract, TheFirstProcedureStartsBehindTheDeclarations) {
  const auto module = Open(
      {"Option Explicit", "Dim x", "", "' about A", "Sub A()", "End Sub", "Sub B()", "End Sub"});
  EXPECT_EQ(module->CountOfDeclarationLines(), 2);
  EXPECT_EQ(module->ProcOfLine(1).name, "");
  EXPECT_EQ(module->ProcOfLine(2).name, "");
  EXPECT_EQ(module->ProcOfLine(3).name, "A");
  EXPECT_EQ(module->ProcStartLine("A", kProcedure), 3);
  EXPECT_EQ(module->ProcBodyLine("A", kProcedure), 5);
  EXPECT_EQ(module->ProcCountLines("A", kProcedure), 4);
}

TEST_P(ProceduresContract, WithoutAProcedureAllLinesAreDeclarations) {
  const auto module = Open({"Option Explicit", "", "' a note"});
  EXPECT_EQ(module->CountOfDeclarationLines(), 3);
  for (const int line : {1, 2, 3}) EXPECT_EQ(module->ProcOfLine(line).name, "") << line;
}

TEST_P(ProceduresContract, NoLineBehindTheEndBelongsToAProcedure) {
  const auto module = Open({"Option Explicit"});
  EXPECT_EQ(module->ProcOfLine(2).name, "");
  EXPECT_EQ(module->ProcOfLine(99).name, "");
}

TEST_P(ProceduresContract, LinesBehindTheLastEndLine) {
  const auto module = Open({"Sub A()", "End Sub", "", "  "});
  const bool belong = TheEnvironment().LastProcedureHasTheLinesBelow();
  EXPECT_EQ(module->ProcOfLine(3).name, belong ? "A" : "");
  EXPECT_EQ(module->ProcOfLine(4).name, belong ? "A" : "");
  EXPECT_EQ(module->ProcCountLines("A", kProcedure), belong ? 4 : 2);
}

TEST_P(ProceduresContract, PropertiesOfOneNameAreToldApartByTheirKind) {
  const auto module = Open({"Property Get A()", "x = 1", "End Property", "Property Let A(v)",
                            "End Property", "Private Property Set A(v)", "End Property"});
  EXPECT_EQ(module->ProcOfLine(2).kind, ProcKind::kPropertyGet);
  EXPECT_EQ(module->ProcOfLine(4).kind, ProcKind::kPropertyLet);
  EXPECT_EQ(module->ProcOfLine(7).kind, ProcKind::kPropertySet);
  EXPECT_EQ(module->ProcBodyLine("A", ProcKind::kPropertyGet), 1);
  EXPECT_EQ(module->ProcBodyLine("A", ProcKind::kPropertyLet), 4);
  EXPECT_EQ(module->ProcBodyLine("A", ProcKind::kPropertySet), 6);
  EXPECT_EQ(module->ProcCountLines("A", ProcKind::kPropertyGet), 3);
}

TEST_P(ProceduresContract, SubAndFunctionAreOneKind) {
  const auto module = Open({"Sub A()", "End Sub", "Public Function B() As Long", "End Function"});
  EXPECT_EQ(module->ProcOfLine(1).kind, kProcedure);
  EXPECT_EQ(module->ProcOfLine(3).kind, kProcedure);
  EXPECT_EQ(module->ProcBodyLine("B", kProcedure), 3);
}

TEST_P(ProceduresContract, NamesAreLookedUpInAnyCase) {
  const auto module = Open({"Sub Total()", "End Sub"});
  EXPECT_EQ(module->ProcBodyLine("tOTAL", kProcedure), 1);
  EXPECT_EQ(module->ProcOfLine(2).name, "Total");
}

TEST_P(ProceduresContract, AnUnknownProcedureRaisesErrorThirtyFive) {
  const auto module = Open({"Sub A()", "End Sub"});
  EXPECT_EQ(NumberOfErrorIn([&] { module->ProcStartLine("B", kProcedure); }), 35);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ProcCountLines("A", ProcKind::kPropertyGet); }), 35);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ProcBodyLine("", kProcedure); }), 35);
}

TEST_P(ProceduresContract, ProceduresFollowEdits) {
  const auto module = Open({"Sub A()", "End Sub", "Sub B()", "End Sub"});
  module->InsertLines(1, "Dim x");
  EXPECT_EQ(module->CountOfDeclarationLines(), 1);
  EXPECT_EQ(module->ProcBodyLine("B", kProcedure), 4);
  module->DeleteLines(2, 2);
  EXPECT_EQ(NumberOfErrorIn([&] { module->ProcBodyLine("A", kProcedure); }), 35);
  EXPECT_EQ(module->ProcStartLine("B", kProcedure), 2);
  module->ReplaceLine(2, "Sub C()");
  EXPECT_EQ(module->ProcOfLine(3).name, "C");
}

}  // namespace brimwork::contract
