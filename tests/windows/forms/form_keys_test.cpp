// Keys, which work although the message loop knows nothing of forms.
#include <gmock/gmock.h>

#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace form_keys_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

TEST(FormKeys, TheFirstControlHasTheFocusAndTabMovesItOn) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
  sample.Type("{TAB}");
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtNotes);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtNotes);
  sample.Type("+{TAB}");
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
}

TEST(FormKeys, TabVisitsEveryStopInOrder) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  std::vector<std::string> visited;
  for (int i = 0; i < 9; ++i) {
    sample.Type("{TAB}");
    const Control* const control = sample.Focused(sample.form);
    visited.emplace_back(control != nullptr ? control->Name() : "nothing");
  }
  EXPECT_THAT(visited, ElementsAre("txtNotes", "chkReady", "optColor", "lstWords", "cmbWords",
                                   "tabPages", "cmdOk", "cmdLeave", "txtName"));
  EXPECT_EQ(sample.form.txtNotes.Text, "One\r\nTwo");
}

TEST(FormKeys, AFocusThatValidationKeepsStays) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.refusesName = true;
  sample.Type("{TAB}");
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Validate"));
}

TEST(FormKeys, EnterClicksTheDefaultButtonAndEscapeTheCancelButton) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("{ENTER}{ESC}");
  EXPECT_THAT(sample.form.events, ElementsAre("cmdOk Click", "cmdLeave Click"));
  EXPECT_EQ(sample.form.txtName.Text, "Anne");
}

TEST(FormKeys, EnterAndSpaceClickTheButtonWithTheFocus) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.cmdLeave.SetFocus();
  sample.form.events.clear();
  sample.Type("{ENTER} ");
  EXPECT_THAT(sample.form.events, ElementsAre("cmdLeave Click", "cmdLeave Click"));
}

TEST(FormKeys, SpaceTurnsACheckBoxOver) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.chkReady.SetFocus();
  sample.Type(" ");
  EXPECT_TRUE(sample.form.chkReady.Value);
  EXPECT_EQ(SendMessageW(sample.WindowOf(sample.form.chkReady), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST(FormKeys, AltWithALetterReachesItsControl) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("%r");
  EXPECT_TRUE(sample.form.chkReady.Value);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.chkReady);
  sample.Type("%n");
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
  sample.Type("%c");
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  EXPECT_THAT(sample.form.events, Contains("tabPages Click"));
}

TEST(FormKeys, ArrowsChooseWithinAGroupOfOptions) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.optColor(0).SetFocus();
  sample.Type("{DOWN}");
  EXPECT_TRUE(sample.form.optColor(1).Value);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.optColor(1));
  EXPECT_EQ(SendMessageW(sample.WindowOf(sample.form.optColor(0)), BM_GETCHECK, 0, 0),
            BST_UNCHECKED);
  sample.Type("{RIGHT}");
  EXPECT_TRUE(sample.form.optColor(0).Value);
  sample.Type("{UP}");
  EXPECT_TRUE(sample.form.optColor(1).Value);
}

/// Clicks a window whenever it is given the focus, as some systems do with an option button.
class ClickOnFocus {
 public:
  explicit ClickOnFocus(HWND window)
      : hook_(SetWindowsHookExW(WH_CBT, Click, nullptr, GetCurrentThreadId())) {
    clicked_ = window;
  }
  ~ClickOnFocus() { UnhookWindowsHookEx(hook_); }

 private:
  static LRESULT CALLBACK Click(int code, WPARAM window, LPARAM longer) {
    if (code == HCBT_SETFOCUS && reinterpret_cast<HWND>(window) == clicked_) {
      SendMessageW(GetParent(clicked_), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED),
                   reinterpret_cast<LPARAM>(clicked_));
    }
    return CallNextHookEx(nullptr, code, window, longer);
  }

  static inline HWND clicked_ = nullptr;
  HHOOK hook_;
};

TEST(FormKeys, AnOptionIsNotChosenByTheFocusAlone) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.optColor(0).Value = false;
  const ClickOnFocus clicks(sample.WindowOf(sample.form.optColor(1)));
  sample.form.optColor(1).SetFocus();
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.optColor(1));
  EXPECT_FALSE(sample.form.optColor(1).Value);
  EXPECT_THAT(sample.form.events, Not(Contains("optColor Click 1")));
}

TEST(FormKeys, ArrowsMoveAlongTabsAndLists) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.tabPages.SetFocus();
  sample.Type("{RIGHT}");
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  sample.form.lstWords.SetFocus();
  sample.Type("{DOWN}{DOWN}");
  EXPECT_GE(sample.form.lstWords.ListIndex, 1);
  sample.form.cmbWords.SetFocus();
  sample.Type("{DOWN}");
  EXPECT_EQ(sample.form.cmbWords.Text(), "Red");
}

TEST(FormKeys, EnterAndEscapeCloseAnOpenListFirst) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.cmbWords.SetFocus();
  sample.form.events.clear();
  const HWND list = sample.WindowOf(sample.form.cmbWords);
  SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  sample.Type("{DOWN}{ENTER}");
  EXPECT_FALSE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
  EXPECT_EQ(sample.form.cmbWords.Text(), "Red");
  SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  sample.Type("{ESC}");
  EXPECT_FALSE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
  EXPECT_THAT(sample.form.events, ElementsAre("cmbWords Click"));
  sample.Type("{ESC}");
  EXPECT_THAT(sample.form.events, Contains("cmdLeave Click"));
}

TEST(FormKeys, AltAndF4CloseTheForm) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("%{F4}");
  EXPECT_FALSE(sample.form.IsLoaded());
}

TEST(FormKeys, AFormWithoutAnythingToFocusHasItsKeys) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  for (Control* control : sample.form.Controls()) {
    if (control->TakesFocus() && control != &sample.form.cmdLeave) control->Enabled = false;
  }
  sample.form.events.clear();
  sample.form.cmdLeave.Visible = false;
  EXPECT_EQ(GetFocus(), sample.WindowOf(sample.form));
  sample.form.cmdLeave.Visible = true;
  sample.Type("{ESC}");
  EXPECT_THAT(sample.form.events, Contains("cmdLeave Click"));
}

TEST(FormKeys, TheFocusLeavesAControlThatIsDisabled) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.txtName.Enabled = false;
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtNotes);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtNotes);
}

TEST(FormKeys, AFormThatComesBackHasItsFocusWhereItWas) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.lstWords.SetFocus();
  SetForegroundWindow(sample.owner);
  sample.messages.DoEvents();
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.lstWords);
  SetForegroundWindow(sample.WindowOf(sample.form));
  sample.messages.DoEvents();
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.lstWords);
}

TEST(FormKeys, AFocusThatTheSystemGivesIsTakenOrGoesBack) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  SetFocus(sample.WindowOf(sample.form.lstWords));
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.lstWords);
  sample.form.txtName.SetFocus();
  sample.form.refusesName = true;
  SetFocus(sample.WindowOf(sample.form.lstWords));
  sample.messages.DoEvents();
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtName);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
}

}  // namespace form_keys_test
}  // namespace brimwork::windows
