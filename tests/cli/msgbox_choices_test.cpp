#include "cli/msgbox_choices.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "cli/command_request.h"
#include "msgbox/msgbox_styles.h"

namespace brimwork {
namespace msgbox_choices_test {

template <class Choice>
std::string ErrorOf(Choice choose) {
  try {
    choose();
  } catch (const UsageError& error) {
    return error.what();
  }
  return "no error";
}

TEST(ButtonsSetNames, AreShortOnesAndVisualBasics) {
  const std::pair<const char*, const char*> kNames[] = {
      {"ok-only", "vbOKOnly"},
      {"ok-cancel", "vbOKCancel"},
      {"yes-no", "vbYesNo"},
      {"yes-no-cancel", "vbYesNoCancel"},
      {"retry-cancel", "vbRetryCancel"},
      {"abort-retry-ignore", "vbAbortRetryIgnore"}};
  for (const auto& [name, constant] : kNames) {
    const int index = ButtonsSetNamed(name);
    EXPECT_EQ(kButtonsSets.at(static_cast<std::size_t>(index)).name, constant);
    EXPECT_EQ(ButtonsSetNamed(constant), index);
  }
}

TEST(ButtonsSetNames, IncludeVisualBasicsNameOfEverySet) {
  for (std::size_t i = 0; i < kButtonsSets.size(); ++i) {
    EXPECT_EQ(ButtonsSetNamed(kButtonsSets[i].name), static_cast<int>(i));
  }
}

TEST(ButtonsSetNames, MayBeInAnyLetterCase) {
  EXPECT_EQ(ButtonsSetNamed("VBYESNO"), ButtonsSetNamed("Yes-No"));
  EXPECT_EQ(ButtonsSetNamed("OK"), ButtonsSetNamed("ok-only"));
}

TEST(ButtonsSetNames, AreToldWhenOneIsUnknown) {
  EXPECT_EQ(ErrorOf([] { ButtonsSetNamed("yesno"); }),
            "--buttons: there is no set \"yesno\", did you mean \"yes-no\"?; the sets are ok-only, "
            "ok-cancel, yes-no, yes-no-cancel, retry-cancel and abort-retry-ignore");
  EXPECT_EQ(ErrorOf([] { ButtonsSetNamed(""); }),
            "--buttons: there is no set \"\", did you mean \"ok\"?; the sets are ok-only, "
            "ok-cancel, yes-no, yes-no-cancel, retry-cancel and abort-retry-ignore");
}

TEST(IconNames, StandForTheStyleOfTheirConstant) {
  const std::pair<const char*, int> kNames[] = {
      {"none", 0},         {"critical", 16},      {"vbCritical", 16}, {"error", 16},
      {"exclamation", 48}, {"vbExclamation", 48}, {"warning", 48},    {"information", 64},
      {"info", 64},        {"vbInformation", 64}, {"question", 32},   {"vbQuestion", 32},
      {"QUESTION", 32}};
  for (const auto& [name, style] : kNames) {
    EXPECT_EQ(kIconStyles.at(static_cast<std::size_t>(IconNamed(name))), style) << name;
  }
}

TEST(IconNames, AreToldWhenOneIsUnknown) {
  EXPECT_EQ(
      ErrorOf([] { IconNamed("questoin"); }),
      "--icon: there is no icon \"questoin\", did you mean \"question\"?; the icons are none, "
      "critical, exclamation, information and question");
}

TEST(ModalityNames, StandForTheStyleOfTheirConstant) {
  for (const char* name : {"application", "vbApplicationModal"}) {
    EXPECT_EQ(kModalityStyles.at(static_cast<std::size_t>(ModalityNamed(name))), 0) << name;
  }
  for (const char* name : {"system", "vbSystemModal", "System"}) {
    EXPECT_EQ(kModalityStyles.at(static_cast<std::size_t>(ModalityNamed(name))), 4096) << name;
  }
}

TEST(ModalityNames, AreToldWhenOneIsUnknown) {
  EXPECT_EQ(ErrorOf([] { ModalityNamed("task"); }),
            "--modal: there is no modality \"task\"; write application or system");
}

TEST(DefaultButtonNames, AreNumbersAndVisualBasicsNames) {
  const int three = ButtonsSetNamed("yes-no-cancel");
  EXPECT_EQ(DefaultButtonNamed("1", three), 0);
  EXPECT_EQ(DefaultButtonNamed("2", three), 1);
  EXPECT_EQ(DefaultButtonNamed("3", three), 2);
  EXPECT_EQ(DefaultButtonNamed("vbDefaultButton1", three), 0);
  EXPECT_EQ(DefaultButtonNamed("vbdefaultbutton2", three), 1);
  EXPECT_EQ(DefaultButtonNamed("vbDefaultButton3", three), 2);
}

TEST(DefaultButtonNames, AreThoseOfTheSetsButtons) {
  EXPECT_EQ(ErrorOf([] { DefaultButtonNamed("3", ButtonsSetNamed("yes-no")); }),
            "--default 3: vbYesNo has 2 buttons");
  EXPECT_EQ(ErrorOf([] { DefaultButtonNamed("2", ButtonsSetNamed("ok-only")); }),
            "--default 2: vbOKOnly has 1 button");
}

TEST(DefaultButtonNames, AreToldWhenOneIsUnknown) {
  for (const std::string name : {"0", "4", "-1", "two", ""}) {
    EXPECT_EQ(ErrorOf([&] { DefaultButtonNamed(name, ButtonsSetNamed("yes-no-cancel")); }),
              "--default " + name + ": write the number of a button, which is 1, 2 or 3");
  }
}

}  // namespace msgbox_choices_test
}  // namespace brimwork
