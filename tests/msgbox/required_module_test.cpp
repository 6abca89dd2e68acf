// The module that a custom message box needs, brought into the user's project.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/message_boxes.h"
#include "environment/run_time_error.h"
#include "memory/memory_environment.h"
#include "msgbox/code_generator.h"
#include "msgbox/module_source.h"
#include "support/faulty_environment.h"

namespace brimwork {
namespace required_module_test {

using testing::ElementsAre;
using testing::IsEmpty;

const ShownMessage kQuestion{
    "You have selected to create a custom msgbox which requires additional code to work properly"
    "\r\nWould you like me to add the required module to your current project?",
    36, "Add Required Module"};
const ShownMessage kNote{"Added modCustomMsgBox to your project", 64, "Added Required Module"};

struct RequiredModule : testing::Test, MemoryEnvironment {
  RequiredModule() { vbe.SetProject(project); }

  void Add(std::string_view text = "Option Explicit\r\n' all of it") {
    Environment parts = Parts();
    AddRequiredModule(parts, text);
  }

  std::vector<std::string> ComponentNames() {
    std::vector<std::string> names;
    for (const auto& component : project->VBComponents()) names.push_back(component->Name());
    return names;
  }

  std::string TextOf(std::string_view name) {
    const auto module = project->ComponentOfName(name)->Module();
    return module->Lines(1, module->CountOfLines());
  }

  std::shared_ptr<MemoryProject> project =
      std::make_shared<MemoryProject>([] { return std::string("Stock"); });
};

TEST_F(RequiredModule, IsAddedOnYesAndTheUserIsTold) {
  dialogs.AnswerMessage(message_box_result::kYes);
  Add();
  EXPECT_THAT(dialogs.Messages(), ElementsAre(kQuestion, kNote));
  EXPECT_THAT(ComponentNames(), ElementsAre("modCustomMsgBox"));
  EXPECT_EQ(TextOf("modCustomMsgBox"), "Option Explicit\r\n' all of it");
  const auto added = project->ComponentOfName("modCustomMsgBox");
  EXPECT_EQ(added->Type(), component_type::kStandardModule);
  EXPECT_EQ(added->Module()->Name(), "modCustomMsgBox");
}

TEST_F(RequiredModule, TakesThePlaceOfTheLineThatTheEnvironmentWrites) {
  project->requiresDeclarations = true;
  dialogs.AnswerMessage(message_box_result::kYes);
  Add();
  EXPECT_EQ(TextOf("modCustomMsgBox"), "Option Explicit\r\n' all of it");
}

TEST_F(RequiredModule, IsNotAddedOnNo) {
  dialogs.AnswerMessage(message_box_result::kNo);
  Add();
  EXPECT_THAT(dialogs.Messages(), ElementsAre(kQuestion));
  EXPECT_THAT(ComponentNames(), IsEmpty());
}

TEST_F(RequiredModule, IsNotAskedForWhereItIsAlready) {
  project->AddModule("Module1", "");
  project->AddModule("modCustomMsgBox", "' the user's");
  Add();
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
  EXPECT_EQ(TextOf("modCustomMsgBox"), "' the user's");
}

TEST_F(RequiredModule, IsNotTheModuleThatIsWrittenInOtherCase) {
  project->AddModule("ModCustomMsgBox", "");
  dialogs.AnswerMessage(message_box_result::kNo);
  Add();
  EXPECT_THAT(dialogs.Messages(), ElementsAre(kQuestion));
}

TEST_F(RequiredModule, ComesBesideTheOthers) {
  project->AddModule("Module1", "x = 1");
  dialogs.AnswerMessage(message_box_result::kYes);
  Add(kModCustomMsgBoxSource);
  EXPECT_THAT(ComponentNames(), ElementsAre("Module1", "modCustomMsgBox"));
  EXPECT_EQ(TextOf("Module1"), "x = 1");
  EXPECT_EQ(TextOf("modCustomMsgBox"), kModCustomMsgBoxSource);
}

TEST_F(RequiredModule, NeedsAProject) {
  vbe.SetProject(nullptr);
  try {
    Add();
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kObjectNotSet);
  }
}

TEST_F(RequiredModule, HandsOnTheErrorsOfTheEnvironment) {
  for (const char* failing :
       {"VBE.ActiveVBProject", "VBProject.VBComponents", "VBComponent.Name", "Dialogs.MsgBox",
        "VBProject.AddVBComponent", "VBComponent.SetName", "VBComponent.Module",
        "CodeModule.DeleteLines", "CodeModule.InsertLines"}) {
    project->AddModule("Module1", "");
    dialogs.AnswerMessage(message_box_result::kYes);
    FaultyEnvironment faulty(Parts(), {Fault::Kind::kRaises, [&](int, std::string_view operation) {
                                         return operation == failing;
                                       }});
    Environment parts = faulty.Parts();
    EXPECT_THROW(AddRequiredModule(parts, "' all of it"), RunTimeError) << failing;
    project = std::make_shared<MemoryProject>([] { return std::string("Stock"); });
    vbe.SetProject(project);
  }
}

TEST_F(RequiredModule, RaisesAnErrorWhereTheNewComponentHasNoCode) {
  dialogs.AnswerMessage(message_box_result::kYes);
  FaultyEnvironment faulty(
      Parts(), {Fault::Kind::kAnswersNothing,
                [](int, std::string_view operation) { return operation == "VBComponent.Module"; }});
  Environment parts = faulty.Parts();
  EXPECT_THROW(AddRequiredModule(parts, "' all of it"), RunTimeError);
}

}  // namespace required_module_test
}  // namespace brimwork
