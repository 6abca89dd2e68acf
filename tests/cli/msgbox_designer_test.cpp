#include "cli/msgbox_designer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "msgbox/code_generator.h"
#include "msgbox/module_source.h"

namespace brimwork {
namespace msgbox_designer_test {

constexpr int kYesNo = 4;
constexpr int kYesNoCancel = 5;
static_assert(kButtonsSets[kYesNo].name == "vbYesNo");
static_assert(kButtonsSets[kYesNoCancel].name == "vbYesNoCancel");

MsgBoxRequest Saying(std::string prompt) {
  MsgBoxRequest request;
  request.prompt = std::move(prompt);
  return request;
}

std::string CodeOf(const MsgBoxRequest& request) { return DesignMsgBox(request).code; }

TEST(DesignedMsgBox, IsAPlainOneWithoutAModule) {
  MsgBoxRequest request = Saying("Save it?");
  request.title = " Shop ";
  request.buttons = kYesNo;
  request.icon = 4;
  const DesignedMsgBox designed = DesignMsgBox(request);
  EXPECT_EQ(designed.code, "MsgBox \"Save it?\",36,\"Shop\"");
  EXPECT_EQ(designed.requiredModule, "");
}

TEST(DesignedMsgBox, HasThePromptsQuotesAndLinesAsTerms) {
  EXPECT_EQ(CodeOf(Saying("Say \"yes\"\n\nor no\n")),
            "MsgBox \"Say \" & chr(34) & \"yes\" & chr(34) & vbCrLf & vbCrLf & \"or no\",0,\"\"");
  EXPECT_EQ(CodeOf(Saying("a\r\nb")), CodeOf(Saying("a\nb")));
}

TEST(DesignedMsgBox, HasTheStyleOfEveryChoice) {
  for (std::size_t set = 0; set < kButtonsSets.size(); ++set) {
    for (std::size_t icon = 0; icon < kIconStyles.size(); ++icon) {
      for (int button = 0; button < kButtonsSets[set].buttonCount; ++button) {
        MsgBoxRequest request = Saying("x");
        request.buttons = static_cast<int>(set);
        request.icon = static_cast<int>(icon);
        request.defaultButton = button;
        request.modality = 1;
        MsgBoxDesign design;
        design.prompt = "x";
        design.buttonsSet = kButtonsSets[set].style;
        design.icon = kIconStyles[icon];
        design.defaultButton = kDefaultButtonStyles[static_cast<std::size_t>(button)];
        design.modality = kModalityStyles[1];
        EXPECT_EQ(CodeOf(request), PlainMsgBoxCode(design));
      }
    }
  }
}

TEST(DesignedMsgBox, HasTheStyleOfEveryOption) {
  for (std::size_t option = 0; option < kOptionStyles.size(); ++option) {
    MsgBoxRequest request = Saying("x");
    request.options[option] = true;
    EXPECT_EQ(CodeOf(request), "MsgBox \"x\"," + std::to_string(kOptionStyles[option]) + ",\"\"");
  }
  MsgBoxRequest request = Saying("x");
  request.options = {true, true, true, true};
  EXPECT_EQ(CodeOf(request), "MsgBox \"x\",1654784,\"\"");
}

TEST(DesignedMsgBox, BringsTheModuleOfACustomOne) {
  MsgBoxRequest request = Saying("Wait");
  request.timeOut = "5";
  const DesignedMsgBox designed = DesignMsgBox(request);
  EXPECT_EQ(designed.code, "CreateSpecialMsgBox \"Wait\",0,\"\",5,-1,-1,\"\",,1,\"\",\"OK\"");
  EXPECT_EQ(designed.requiredModule, kModCustomMsgBoxSource);
}

TEST(DesignedMsgBox, HasEveryCustomFeature) {
  MsgBoxRequest request = Saying("Go on?");
  request.buttons = kYesNo;
  request.timeOut = "5";
  request.position = {"10", "20"};
  request.checkBox = " Ask again ";
  request.captions = {"Sure"};
  EXPECT_EQ(CodeOf(request),
            "Dim CheckBoxValue As Boolean\r\n"
            "CreateSpecialMsgBox \"Go on?\",4,\"\",5,10,20,\"Ask again\", CheckBoxValue,2,"
            "\"Sure,&No\",\"&Yes,&No\"");
}

TEST(DesignedMsgBox, HasAPositionAlone) {
  MsgBoxRequest request = Saying("x");
  request.position = {"0", "-5"};
  EXPECT_EQ(CodeOf(request), "CreateSpecialMsgBox \"x\",0,\"\",-1,0,-5,\"\",,1,\"\",\"OK\"");
}

TEST(DesignedMsgBox, IsPlainWhenItsCustomFeaturesCountAsNotSet) {
  MsgBoxRequest request = Saying("x");
  request.timeOut = "ten";
  request.position = {"99999999999", "5"};
  request.checkBox = "  ";
  const DesignedMsgBox designed = DesignMsgBox(request);
  EXPECT_EQ(designed.code, "MsgBox \"x\",0,\"\"");
  EXPECT_EQ(designed.requiredModule, "");
}

TEST(DesignedMsgBox, KeepsTheUsualCaptionWhereTheNewOneIsBlank) {
  MsgBoxRequest request = Saying("x");
  request.buttons = kYesNoCancel;
  request.captions = {" ", "Never"};
  EXPECT_EQ(CodeOf(request),
            "CreateSpecialMsgBox \"x\",3,\"\",-1,-1,-1,\"\",,3,\"&Yes,Never,Cancel\","
            "\"&Yes,&No,Cancel\"");
}

TEST(DesignedMsgBox, CopiesTheQuotesOfATitle) {
  MsgBoxRequest request = Saying("x");
  request.title = "a \"b\"";
  EXPECT_EQ(CodeOf(request), "MsgBox \"x\",0,\"a \"b\"\"");
}

TEST(DesignedMsgBox, KeepsCharactersBeyondAscii) {
  EXPECT_EQ(CodeOf(Saying("Zur\xC3\xBC"
                          "ck?")),
            "MsgBox \"Zur\xC3\xBC"
            "ck?\",0,\"\"");
}

}  // namespace msgbox_designer_test
}  // namespace brimwork
