#include "transform/procedure_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"

namespace brimwork {
namespace procedure_walk_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// Walks over a module and notes what it is told.
struct WalkedModule : OpenedModule {
  using OpenedModule::OpenedModule;

  void Walk(const std::function<void(const CurrentProcedure&)>& step = [](const auto&) {}) {
    WalkActions actions;
    actions.transform = [&] {
      const CurrentProcedure& record = Commands().procedure;
      visited.push_back(record.CurrentProcName);
      caretLines.push_back(CaretLine());
      step(record);
    };
    actions.report = [&](int current, int total) { reports.emplace_back(current, total); };
    WalkProcedures(Commands(), Pane(), Module(), actions);
  }

  TextLines visited;
  std::vector<int> caretLines;
  std::vector<std::pair<int, int>> reports;
};

const TextLines kThree{"Option Explicit", "",        "Sub A()", "End Sub", "",       "Sub B()",
                       "x = 1",           "End Sub", "Sub C()", "End Sub", "' rest", ""};

TEST(ProcedureWalk, VisitsEachProcedureOnceFromTheTopDown) {
  WalkedModule module(kThree);
  module.Walk();
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
}

TEST(ProcedureWalk, PutsTheCaretOnTheFirstLineOfEachProcedure) {
  WalkedModule module(kThree);
  module.Walk();
  EXPECT_THAT(module.caretLines, ElementsAre(2, 5, 9));
}

TEST(ProcedureWalk, ReportsTheStepsFirstLineOfAllLinesLessTheDeclarations) {
  WalkedModule module(kThree);
  module.Walk();
  EXPECT_THAT(module.reports, ElementsAre(Pair(1, 11), Pair(4, 11), Pair(8, 11)));
}

TEST(ProcedureWalk, ReportsTheLinesThatAreThereAfterTheStep) {
  WalkedModule module({"Sub A()", "End Sub", "Sub B()", "End Sub"});
  module.Walk([&](const CurrentProcedure& record) {
    module.Module().InsertLines(record.FirstBodyLine, "x = 1\r\ny = 1");
  });
  EXPECT_THAT(module.reports, ElementsAre(Pair(1, 6), Pair(5, 8)));
}

TEST(ProcedureWalk, VisitsNothingInAModuleOfDeclarationsOnly) {
  WalkedModule module({"Option Explicit", "Dim x As Long", "' note"});
  module.Walk();
  EXPECT_THAT(module.visited, IsEmpty());
  EXPECT_THAT(module.reports, IsEmpty());
  EXPECT_THAT(module.Lines(), ElementsAre("Option Explicit", "Dim x As Long", "' note"));
}

TEST(ProcedureWalk, VisitsNothingInAnEmptyModule) {
  WalkedModule module(TextLines{});
  module.Walk();
  EXPECT_THAT(module.visited, IsEmpty());
}

TEST(ProcedureWalk, VisitsEachProcedureOnceWhenStepsAddLinesInIt) {
  WalkedModule module(kThree);
  module.Walk([&](const CurrentProcedure& record) {
    module.Module().InsertLines(record.FirstBodyLine, "1\r\n2\r\n3\r\n4\r\n5");
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
}

TEST(ProcedureWalk, VisitsEachProcedureOnceWhenStepsAddLinesAboveIt) {
  WalkedModule module(kThree);
  module.Walk([&](const CurrentProcedure& record) {
    module.Module().InsertLines(record.CurrentProcStart, "' 1\r\n' 2\r\n' 3");
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
}

TEST(ProcedureWalk, VisitsEachProcedureOnceWhenStepsAddLinesBehindIt) {
  WalkedModule module(kThree);
  module.Walk([&](const CurrentProcedure& record) {
    module.Module().InsertLines(record.CurrentProcEnd + 1, "' 1\r\n' 2\r\n' 3");
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
}

TEST(ProcedureWalk, VisitsEachProcedureOnceWhenStepsRemoveLines) {
  WalkedModule module({"", "", "Sub A()", "1", "2", "End Sub", "", "", "Sub B()", "3", "End Sub",
                       "Sub C()", "End Sub"});
  module.Walk([&](const CurrentProcedure& record) {
    if (record.LastBodyLine >= record.FirstBodyLine)
      module.Module().DeleteLines(record.FirstBodyLine,
                                  record.LastBodyLine - record.FirstBodyLine + 1);
    if (module.Module().Lines(record.CurrentProcStart, 1).empty())
      module.Module().DeleteLines(record.CurrentProcStart, 2);
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
  EXPECT_THAT(module.Lines(),
              ElementsAre("Sub A()", "End Sub", "Sub B()", "End Sub", "Sub C()", "End Sub"));
}

TEST(ProcedureWalk, VisitsSeveralProceduresOfOneNameEachInItsTurn) {
  WalkedModule module(
      {"Sub A()", "1", "End Sub", "Sub a()", "2", "End Sub", "Sub A()", "3", "End Sub"});
  std::vector<int> firstLines;
  module.Walk([&](const CurrentProcedure& record) {
    firstLines.push_back(record.FirstBodyLine);
    module.Module().InsertLines(record.FirstBodyLine, "new");
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "a", "A"));
  EXPECT_THAT(firstLines, ElementsAre(2, 6, 10));
}

TEST(ProcedureWalk, VisitsOneLineAndUnclosedProceduresToo) {
  WalkedModule module(
      {"Sub A(): End Sub", "Sub B()", "x = 1", "", "Sub C()", "End Sub", "Sub D()"});
  module.Walk();
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C", "D"));
}

TEST(ProcedureWalk, EndsWhenAStepDeletesItsProcedure) {
  WalkedModule module({"Sub A()", "End Sub", "Sub B()", "End Sub", "Sub C()", "End Sub"});
  module.Walk([&](const CurrentProcedure& record) {
    if (record.CurrentProcName != "C") return;
    module.Module().DeleteLines(record.CurrentProcStart, 2);
  });
  EXPECT_THAT(module.visited, ElementsAre("A", "B", "C"));
}

TEST(ProcedureWalk, DoesNotActOnTheRecordOfAnEarlierQuery) {
  WalkedModule module({"Sub A()", "End Sub", "' rest", "' more", ""});
  module.Walk();
  EXPECT_THAT(module.visited, ElementsAre("A"));
  EXPECT_THAT(module.reports, ElementsAre(Pair(1, 5)));
}

}  // namespace procedure_walk_test
}  // namespace brimwork
