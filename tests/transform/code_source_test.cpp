#include "transform/code_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/desktop_fixture.h"
#include "support/opened_module.h"
#include "transform/modCleanUp.h"
#include "transform/modCommentCode.h"
#include "transform/modErrorHandling.h"
#include "transform/modIndentCode.h"
#include "transform/modLineNumbers.h"

namespace brimwork {
namespace code_source_test {

using testing::ElementsAre;
using testing::IsEmpty;

const ShownMessage kNeedsCodeSource{
    "Please pick a valid code source to work with\r\n"
    "You need to set the focus on a valid code source to execute this command",
    64, "Need Valid Code Source"};

/// No pane can be had, as in an environment that is busy.
class BusyVbe : public EmptyVbe {
 public:
  std::shared_ptr<CodePane> ActiveCodePane() override {
    throw RunTimeError(error_number::kInvalidProcedureCall, "busy");
  }
};

TEST(CodeSource, IsTheModuleOfTheActivePane) {
  OpenedModule opened({"x"});
  EXPECT_EQ(ActiveCodeModule(opened.addIn.environment)->Identity(), opened.Module().Identity());
}

TEST(CodeSource, IsNothingWithoutAnActivePane) {
  OpenedModule opened({"x"});
  opened.Close();
  EXPECT_EQ(ActiveCodeModule(opened.addIn.environment), nullptr);
}

TEST(CodeSource, IsNothingWhenThePaneCannotBeHad) {
  MemoryEnvironment memory;
  BusyVbe busy;
  Environment environment = memory.Parts({.vbe = &busy});
  EXPECT_EQ(ActiveCodeModule(environment), nullptr);
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST(CodeSource, IsValidWhenThereIsAModule) {
  OpenedModule opened({"x"});
  Environment& environment = opened.addIn.environment;
  EXPECT_TRUE(IsValidCodeSource(environment, ActiveCodeModule(environment)));
  EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty());
}

TEST(CodeSource, TheUserIsToldWhenThereIsNone) {
  OpenedModule opened({"x"});
  EXPECT_FALSE(IsValidCodeSource(opened.addIn.environment, nullptr));
  EXPECT_THAT(opened.environment.dialogs.Messages(), ElementsAre(kNeedsCodeSource));
}

struct Transformation {
  const char* name;
  std::function<void(Context&)> run;
};

const std::vector<Transformation>& Transformations() {
  static const std::vector<Transformation> all{
      {"indent", [](Context& context) { IndentCode(context, 2, 2); }},
      {"number", [](Context& context) { AddLineNumbers(context, 2, 2); }},
      {"unnumber", [](Context& context) { RemoveLineNumbers(context, 2, 2); }},
      {"handle errors",
       [](Context& context) {
         int first = 2;
         int last = 2;
         InsertErrorHandling(context, true, first, last, "A", ProcKind::kProcedure, "Sub");
       }},
      {"comment",
       [](Context& context) { CommentProcedure(context, "A", ProcKind::kProcedure, "A()"); }},
      {"header", [](Context& context) { InsertHeader(context, header_kind::kStandard); }},
      {"clean up", [](Context& context) { CleanUpCode(context, [](std::string_view, bool) {}); }}};
  return all;
}

/// Notes every pointer that was shown.
class NotingScreen : public MemoryScreen {
 public:
  void SetMousePointer(int pointer) override {
    shown.push_back(pointer);
    MemoryScreen::SetMousePointer(pointer);
  }
  std::vector<int> shown;
};

TEST(CodeSource, EveryTransformationTellsTheUserOnceAndDoesNothingWithoutOne) {
  for (const Transformation& transformation : Transformations()) {
    SCOPED_TRACE(transformation.name);
    OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
    opened.Close();
    transformation.run(opened.Commands());
    EXPECT_THAT(opened.environment.dialogs.Messages(), ElementsAre(kNeedsCodeSource));
    EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "x = 1", "End Sub"));
  }
}

TEST(CodeSource, EveryTransformationShowsTheHourglassAndThenTheDefaultPointer) {
  for (const Transformation& transformation : Transformations()) {
    SCOPED_TRACE(transformation.name);
    OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
    NotingScreen screen;
    Environment noting = opened.environment.Parts({.screen = &screen});
    Context context{noting};
    transformation.run(context);
    EXPECT_THAT(screen.shown, ElementsAre(mouse_pointer::kHourglass, mouse_pointer::kDefault));
  }
}

TEST(CodeSource, ThePointerIsRestoredWhenATransformationFails) {
  OpenedModule opened({"Sub A()", "End If", "End Sub"});
  EXPECT_THROW(IndentCode(opened.Commands(), 2, 99), RunTimeError);
  EXPECT_EQ(opened.environment.screen.MousePointer(), mouse_pointer::kDefault);
}

}  // namespace code_source_test
}  // namespace brimwork
