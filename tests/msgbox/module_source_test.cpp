// The Visual Basic source of modCustomMsgBox: its form, and that it says what the add-in's own code
// says. That both do the same is tested where they are run.
#include "msgbox/module_source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "core/modButtonClicked.h"
#include "environment/dialog_windows.h"
#include "environment/native_windows.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "msgbox/modCustomMsgBox.h"
#include "settings/setting_defaults.h"
#include "support/basic_program.h"

namespace brimwork {
namespace module_source_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

BasicProgram Program() { return ReadBasicProgram(kModCustomMsgBoxSource); }

std::string Text() { return std::string(kModCustomMsgBoxSource); }

TEST(ModuleSource, IsTheFileWithoutItsLastLineEnd) {
  std::ifstream file(std::string(BRIMWORK_SOURCE_DIR) + "/resources/modCustomMsgBox.bas",
                     std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(Text() + "\r\n", bytes);
}

TEST(ModuleSource, HasLinesThatEndInCrLfAndAreAscii) {
  EXPECT_EQ(Replace(Text(), "\r\n", "").find_first_of("\r\n"), std::string::npos);
  EXPECT_TRUE(std::ranges::all_of(Text(), [](unsigned char c) { return c < 0x7F; }));
  EXPECT_FALSE(Text().ends_with("\r\n"));
}

TEST(ModuleSource, HasNoAttributes) {
  for (const auto line : SplitLines(kModCustomMsgBoxSource)) {
    EXPECT_FALSE(line.starts_with("Attribute ")) << line;
  }
}

TEST(ModuleSource, OpensWithAHeaderInTheFormOfAdaptedOnes) {
  const auto lines = SplitLines(kModCustomMsgBoxSource);
  const auto form = SplitLines(kAdaptedHeaderTemplate);
  ASSERT_GT(lines.size(), form.size());
  for (std::size_t i = 0; i < form.size(); ++i) {
    const auto label = form[i].substr(0, form[i].find(": ") + 1);
    if (form[i] == kSeparatorLine) {
      EXPECT_EQ(lines[i], kSeparatorLine);
    } else {
      EXPECT_THAT(std::string(lines[i]), StartsWith(label.empty() ? "'  " : std::string(label)));
    }
  }
  EXPECT_EQ(lines[1], "'  modCustomMsgBox");
  EXPECT_THAT(std::string(lines[8]), HasSubstr("Brimwork"));
  EXPECT_EQ(lines[form.size()], "Option Explicit");
}

TEST(ModuleSource, HasTheVariablesOfTheAddIn) {
  std::vector<std::string> variables;
  for (const auto& variable : Program().variables) {
    variables.push_back(variable.name + " As " + variable.type);
  }
  EXPECT_THAT(variables, UnorderedElementsAre(
                             "MsgBoxTitle As String", "MsgBoxText As String", "MsgBoxX As Long",
                             "MsgBoxY As Long", "MsgBoxTimeOut As Integer", "MsgBoxHWND As Long",
                             "MsgBoxButtons As Long", "MsgBoxCheckBoxText As String",
                             "MsgBoxCheckBoxHWND As Long", "MsgBoxCheckBoxValue As Boolean",
                             "MsgBoxButtonCount As Integer", "MsgBoxButtonText As String()",
                             "MsgBoxOriginalButtonText As String()"));
}

TEST(ModuleSource, GivesTheConstantsTheValuesThatTheyHaveInTheAddIn) {
  const std::map<std::string, std::int64_t> numbers = {
      {"MB_CLOSEMSGBOX", MB_CLOSEMSGBOX},
      {"MB_MOVEMSGBOX", MB_MOVEMSGBOX},
      {"MB_CHANGEBUTTONTEXT", MB_CHANGEBUTTONTEXT},
      {"MB_CHECK_CHECKBOXVALUE", MB_CHECK_CHECKBOXVALUE},
      {"MB_ADDCHECKBOX", MB_ADDCHECKBOX},
      {"SWP_NOSIZE", window_position_flag::kNoSize},
      {"WS_CHILD", window_style::kChild},
      {"WS_VISIBLE", window_style::kVisible},
      {"WS_TABSTOP", window_style::kTabStop},
      {"WM_SETFONT", window_message::kSetFont},
      {"WM_GETFONT", window_message::kGetFont},
      {"BS_AUTOCHECKBOX", window_style::kAutoCheckBox},
      {"HWND_TOPMOST", window_order::kTopMost},
      {"BM_GETSTATE", window_message::kGetButtonState}};
  const std::map<std::string, std::string_view> texts = {{"DIALOG_CLASS", window_class::kDialog},
                                                         {"STATIC_CLASS", window_class::kStatic},
                                                         {"BUTTON_CLASS", window_class::kButton}};
  const auto constants = Program().constants;
  EXPECT_EQ(constants.size(), numbers.size() + texts.size());
  for (const auto& constant : constants) {
    if (constant.type == "String") {
      EXPECT_EQ(AsText(constant.value), texts.at(constant.name)) << constant.name;
    } else {
      EXPECT_EQ(constant.type, "Long") << constant.name;
      EXPECT_EQ(AsLong(constant.value), numbers.at(constant.name)) << constant.name;
    }
  }
}

TEST(ModuleSource, NumbersTheTimersFrom0x5000) {
  EXPECT_THAT((std::vector<TimerId>{MB_CLOSEMSGBOX, MB_MOVEMSGBOX, MB_CHANGEBUTTONTEXT,
                                    MB_CHECK_CHECKBOXVALUE, MB_ADDCHECKBOX}),
              ElementsAre(0x5000, 0x5001, 0x5002, 0x5003, 0x5004));
}

TEST(ModuleSource, DeclaresFunctionsOfUser32InTheirAnsiForm) {
  const std::map<std::string, std::size_t> parameters = {
      {"SetTimer", 4},      {"KillTimer", 2},        {"MessageBoxA", 4},
      {"FindWindowA", 2},   {"FindWindowExA", 4},    {"SetForegroundWindow", 1},
      {"GetFocus", 0},      {"GetWindowRect", 2},    {"SetWindowPos", 7},
      {"MoveWindow", 6},    {"CreateWindowExA", 12}, {"SendMessageA", 4},
      {"SetWindowTextA", 2}};
  const auto declares = Program().declares;
  EXPECT_EQ(declares.size(), parameters.size());
  for (const auto& declare : declares) {
    const std::string& function = declare.alias.empty() ? declare.name : declare.alias;
    EXPECT_EQ(declare.library, "user32") << function;
    ASSERT_TRUE(parameters.contains(function)) << function;
    EXPECT_EQ(declare.parameters.size(), parameters.at(function)) << function;
  }
}

TEST(ModuleSource, PassesEverythingByValueThatIsNoRecordAndOfNoOpenType) {
  for (const auto& declare : Program().declares) {
    for (const auto& parameter : declare.parameters) {
      const bool isByRef = parameter.type == "RECT" || parameter.type == "Any";
      EXPECT_EQ(parameter.isByRef, isByRef) << declare.name << ' ' << parameter.name;
    }
  }
}

TEST(ModuleSource, LaysOutTheRectangleAsTheSystemDoes) {
  const BasicProgram program = Program();
  std::vector<std::string> members;
  for (const auto& member : program.types.at("RECT")) {
    members.push_back(member.name + " As " + member.type);
  }
  EXPECT_THAT(members,
              ElementsAre("Left As Long", "Top As Long", "Right As Long", "Bottom As Long"));
}

/// How a type of the add-in's signature is written in Visual Basic.
template <class T>
constexpr const char* kBasicParameter = nullptr;
template <>
constexpr const char* kBasicParameter<std::string_view> = "ByVal String";
template <>
constexpr const char* kBasicParameter<std::int16_t> = "ByVal Integer";
template <>
constexpr const char* kBasicParameter<std::int32_t> = "ByVal Long";
template <>
constexpr const char* kBasicParameter<bool*> = "ByRef Boolean";

template <class... Parameters>
std::vector<std::string> BasicParametersOf(int (CustomMsgBox::*)(Parameters...)) {
  return {kBasicParameter<Parameters>...};
}

TEST(ModuleSource, TakesTheArgumentsThatTheAddInTakes) {
  const auto program = Program();
  const auto* routine = NamedIn(program.procedures, "CreateSpecialMsgbox");
  ASSERT_NE(routine, nullptr);
  EXPECT_TRUE(routine->isPublic);
  EXPECT_EQ(routine->returnType, "Long");
  std::vector<std::string> types;
  std::vector<std::string> names;
  for (const auto& parameter : routine->parameters) {
    types.push_back((parameter.isByRef ? "ByRef " : "ByVal ") + parameter.type);
    names.push_back(parameter.name);
  }
  EXPECT_EQ(types, BasicParametersOf(&CustomMsgBox::CreateSpecialMsgbox));
  EXPECT_THAT(names,
              ElementsAre("Text", "Buttons", "Title", "TimeOut", "X", "Y", "CheckBoxText",
                          "CheckBoxValue", "ButtonCount", "ButtonText", "OriginalButtonText"));
}

TEST(ModuleSource, LeavesAllButThreeArgumentsToDefaults) {
  const auto program = Program();
  const auto& parameters = NamedIn(program.procedures, "CreateSpecialMsgbox")->parameters;
  const std::set<std::string> required = {"Text", "Buttons", "Title"};
  for (const auto& parameter : parameters) {
    EXPECT_EQ(parameter.isOptional, !required.contains(parameter.name)) << parameter.name;
  }
  EXPECT_EQ(parameters[3].defaultValue, BasicValue(std::int16_t{-1}));
  EXPECT_EQ(parameters[4].defaultValue, BasicValue(std::int32_t{-1}));
  EXPECT_EQ(parameters[5].defaultValue, BasicValue(std::int32_t{-1}));
  EXPECT_EQ(parameters[6].defaultValue, BasicValue(std::string()));
}

TEST(ModuleSource, HasATimerProcedureThatTheSystemCanCall) {
  const auto program = Program();
  const auto* routine = NamedIn(program.procedures, "NewTimerProc");
  ASSERT_NE(routine, nullptr);
  EXPECT_TRUE(routine->isPublic);
  ASSERT_EQ(routine->parameters.size(), 4u);
  for (const auto& parameter : routine->parameters) {
    EXPECT_EQ(parameter.type, "Long");
    EXPECT_FALSE(parameter.isByRef);
  }
}

TEST(ModuleSource, ShowsTheUserTwoRoutinesOnly) {
  std::vector<std::string> shown;
  for (const auto& routine : Program().procedures) {
    if (routine.isPublic) shown.push_back(routine.name);
  }
  EXPECT_THAT(shown, ElementsAre("CreateSpecialMsgbox", "NewTimerProc"));
}

/// The order of the timers in the source of CreateSpecialMsgbox; the add-in's order is tested where
/// it runs.
TEST(ModuleSource, StartsTheTimersInTheAddInsOrder) {
  const auto program = Program();
  std::vector<std::string> started;
  for (const auto& line : NamedIn(program.procedures, "CreateSpecialMsgbox")->body) {
    if (line[0].Is("SetTimer")) started.push_back(line.at(3).text);
  }
  EXPECT_THAT(started, ElementsAre("MB_MOVEMSGBOX", "MB_CLOSEMSGBOX", "MB_CHANGEBUTTONTEXT",
                                   "MB_CHECK_CHECKBOXVALUE", "MB_ADDCHECKBOX"));
}

TEST(ModuleSource, PassesOverErrorsInEveryRoutine) {
  for (const auto& routine : Program().procedures) {
    const auto statement = std::ranges::find_if(
        routine.body, [](const BasicLine& line) { return !line[0].Is("Dim"); });
    ASSERT_NE(statement, routine.body.end());
    EXPECT_TRUE((*statement)[0].Is("On") && (*statement)[3].Is("Next")) << routine.name;
  }
}

/// Names that stand anywhere behind the declarations.
std::set<std::string> UsedNames(const BasicProgram& program) {
  std::set<std::string> used;
  for (const auto& routine : program.procedures) {
    for (const auto& line : routine.body) {
      for (const auto& token : line) used.insert(FoldName(token.text));
    }
  }
  return used;
}

TEST(ModuleSource, UsesAllThatItDeclares) {
  const auto program = Program();
  const auto used = UsedNames(program);
  for (const auto& declare : program.declares) {
    EXPECT_TRUE(used.contains(FoldName(declare.name))) << declare.name;
  }
  for (const auto& constant : program.constants) {
    EXPECT_TRUE(used.contains(FoldName(constant.name))) << constant.name;
  }
  for (const auto& variable : program.variables) {
    EXPECT_TRUE(used.contains(FoldName(variable.name))) << variable.name;
  }
}

TEST(ModuleSource, IsIndentedAsTheIndentCommandIndents) {
  MemoryEnvironment memory;
  const auto pane = memory.Open("modCustomMsgBox", ModuleText::FromText(Text() + "\r\n"));
  AddIn addIn(memory.Parts());
  ButtonClicked(addIn, "Indent All Procedures", true);
  EXPECT_EQ(pane->Module()->Lines(1, pane->Module()->CountOfLines()), Text());
}

TEST(ModuleSource, HasNoLineLongerThanAHundredCharacters) {
  for (const auto line : SplitLines(kModCustomMsgBoxSource)) EXPECT_LE(line.size(), 100u) << line;
}

}  // namespace module_source_test
}  // namespace brimwork
