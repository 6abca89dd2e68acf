// The add-in's own forms in windows: whether their texts fit there, and how they are used.
#include <gmock/gmock.h>

#include "core/add_in_forms.h"
#include "core/frmInfo.h"
#include "memory/memory_environment.h"
#include "support/form_checks.h"
#include "windows/forms/native_form_screen.h"
#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace project_forms_test {

using ::testing::IsEmpty;

Environment With(MemoryEnvironment& memory, FormHost& host, FormScreen& screen) {
  const Environment parts = memory.Parts();
  return {parts.vbe,
          parts.screen,
          parts.clipboard,
          parts.keyboard,
          parts.dialogs,
          parts.messageLoop,
          parts.registry,
          parts.settingsArea,
          parts.shellFolders,
          parts.clock,
          parts.app,
          parts.nativeWindows,
          parts.dialogWindows,
          parts.windowTimers,
          parts.messageBoxes,
          screen,
          parts.richTextBoxes,
          parts.textFiles,
          parts.wordProcessors,
          parts.shell,
          parts.helpViewer,
          host};
}

struct ProjectForms : NativeForms {
  MemoryEnvironment memory;
  NativeFormScreen screen{host};
  Environment environment = With(memory, host, screen);
  frmInfo info{environment};
  AddInForms forms{environment};
};

/// What a control needs beside and above its text.
SIZE MarginsOf(ControlKind kind) {
  switch (kind) {
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      return {17, 2};
    case ControlKind::kCommandButton:
      return {10, 8};
    case ControlKind::kFrame:
      return {20, 0};
    default:
      return {0, 0};
  }
}

bool HasCaption(ControlKind kind) { return kind == ControlKind::kLabel || MarginsOf(kind).cx > 0; }

/// The size of a caption within a width, in its own font. Only a label's text is wrapped.
SIZE CaptionSize(ProjectForms& forms, const CaptionedControl& control, LONG width) {
  const std::wstring text = win32::Wide(control.Caption.Get());
  const HDC context = GetDC(forms.WindowOf(control));
  FormFonts fonts(forms.host.Scale());
  const HGDIOBJ before = SelectObject(context, fonts.Font(control.Font));
  RECT area = {0, 0, width, 0};
  const UINT wraps = control.Kind() == ControlKind::kLabel ? DT_WORDBREAK : DT_SINGLELINE;
  DrawTextW(context, text.c_str(), -1, &area, DT_CALCRECT | wraps);
  SelectObject(context, before);
  ReleaseDC(forms.WindowOf(control), context);
  return {area.right, area.bottom};
}

std::vector<std::string> CutCaptions(ProjectForms& forms, const Form& form) {
  std::vector<std::string> cut;
  for (const Control* control : form.Controls()) {
    if (!HasCaption(control->Kind()) || !control->IsShown()) continue;
    const auto& captioned = static_cast<const CaptionedControl&>(*control);
    RECT inside;
    GetClientRect(forms.WindowOf(*control), &inside);
    const SIZE margins = MarginsOf(control->Kind());
    const SIZE size = CaptionSize(forms, captioned, inside.right - margins.cx);
    const bool fits = size.cx <= inside.right - margins.cx && size.cy <= inside.bottom - margins.cy;
    if (!fits) cut.push_back(captioned.Caption.Get());
  }
  return cut;
}

TEST(ProjectForms, EveryLayoutIsSoundInItsWindow) {
  ProjectForms forms;
  for (Form* form : {static_cast<Form*>(&forms.info), static_cast<Form*>(&forms.forms.splash),
                     static_cast<Form*>(&forms.forms.setupDialog),
                     static_cast<Form*>(&forms.forms.messageBoxDesigner),
                     static_cast<Form*>(&forms.forms.codeViewer)}) {
    EXPECT_THAT(LayoutFaults(*form), IsEmpty()) << form->Layout().name;
    form->Unload();
  }
}

TEST(ProjectForms, NoCaptionIsCut) {
  ProjectForms forms;
  forms.info.ProgressMessage("Now inserting error handling in all procedures", "Working");
  forms.info.Show();
  EXPECT_THAT(CutCaptions(forms, forms.info), IsEmpty());
  forms.forms.splash.Show();
  EXPECT_THAT(CutCaptions(forms, forms.forms.splash), IsEmpty());
  frmSetup& setup = forms.forms.setupDialog;
  setup.Show();
  for (int tab = 1; tab <= frmSetup::kTabCount; ++tab) {
    setup.tabOptions.Choose(tab);
    EXPECT_THAT(CutCaptions(forms, setup), IsEmpty()) << "tab " << tab;
  }
  frmMsgBox& designer = forms.forms.messageBoxDesigner;
  designer.Show();
  for (int set = 0; set < designer.cmbButtons.ListCount(); ++set) {
    designer.cmbButtons.Choose(set);
    EXPECT_THAT(CutCaptions(forms, designer), IsEmpty()) << designer.cmbButtons.Text();
  }
}

TEST(ProjectForms, TheProgressBarInvertsTheTextThatItCovers) {
  ProjectForms forms;
  forms.info.ResetProgressBar();
  forms.info.Show();
  forms.info.UpdateProgressBar(60, 100);
  const PictureBox& bar = forms.info.picProgress;
  EXPECT_EQ(forms.PixelOf(bar, 5, 5), RGB(0, 0, 0));
  EXPECT_EQ(forms.PixelOf(bar, bar.ScaleWidth() - 5, 5), RGB(255, 255, 255));
  int whiteOnBar = 0;
  for (int x = bar.ScaleWidth() / 2 - 20; x < bar.ScaleWidth() / 2 + 10; ++x) {
    for (int y = 0; y < bar.ScaleHeight(); ++y) whiteOnBar += forms.PixelOf(bar, x, y) != 0;
  }
  EXPECT_GT(whiteOnBar, 10);
}

TEST(ProjectForms, TheSplashFormClosesWithAClickOnItsPicture) {
  ProjectForms forms;
  forms.forms.splash.Show();
  if (GetForegroundWindow() != forms.WindowOf(forms.forms.splash)) {
    GTEST_SKIP() << "this desktop gives a window no focus";
  }
  forms.ClickInside(forms.forms.splash.picLogo, 5, 5);
  EXPECT_FALSE(forms.forms.splash.IsLoaded());
}

TEST(ProjectForms, TheSetupDialogShowsThePageOfTheTab) {
  ProjectForms forms;
  frmSetup& setup = forms.forms.setupDialog;
  setup.Show();
  setup.tabOptions.Choose(3);
  EXPECT_FALSE(IsWindowVisible(forms.WindowOf(setup.txtErrorHandling)));
  EXPECT_TRUE(IsWindowVisible(forms.WindowOf(setup.lstKeyWord)));
  const auto items = SendMessageW(forms.WindowOf(setup.lstKeyWord), LB_GETCOUNT, 0, 0);
  EXPECT_EQ(items, setup.lstKeyWord.ListCount());
}

TEST(ProjectForms, AKeyWordIsAddedByTyping) {
  ProjectForms forms;
  frmSetup& setup = forms.forms.setupDialog;
  setup.Show();
  if (GetForegroundWindow() != forms.WindowOf(setup)) {
    GTEST_SKIP() << "this desktop gives a window no focus";
  }
  const int count = setup.lstKeyWord.ListCount();
  forms.Type("%k%dWithEvents%a");
  EXPECT_EQ(setup.lstKeyWord.ListCount(), count + 1);
  EXPECT_EQ(setup.lstKeyWord.List(count), "WithEvents");
  EXPECT_EQ(forms.TextOf(setup.txtAdd), "");
  forms.Type("{ESC}");
  EXPECT_FALSE(setup.IsLoaded());
}

TEST(ProjectForms, TheDesignerKeepsTheFocusInACaptionThatIsMissing) {
  ProjectForms forms;
  frmMsgBox& designer = forms.forms.messageBoxDesigner;
  designer.Show();
  if (GetForegroundWindow() != forms.WindowOf(designer)) {
    GTEST_SKIP() << "this desktop gives a window no focus";
  }
  forms.Click(designer.chkViewSpecial);
  forms.Click(designer.chkButtonCaption(0));
  EXPECT_EQ(forms.Focused(designer), &designer.txtButtonCaption(0));
  forms.Type("{DEL}{TAB}");
  EXPECT_EQ(forms.Focused(designer), &designer.txtButtonCaption(0));
  forms.Click(designer.cmdCode);
  EXPECT_EQ(forms.Focused(designer), &designer.txtButtonCaption(0));
  forms.Type("Yep{TAB}");
  EXPECT_EQ(forms.TextOf(designer.MsgBoxButtons(0)), "Yep");
  EXPECT_NE(forms.Focused(designer), &designer.txtButtonCaption(0));
}

TEST(ProjectForms, TheCodeFillsItsWindow) {
  ProjectForms forms;
  frmCode& viewer = forms.forms.codeViewer;
  viewer.Show();
  SetWindowPos(forms.WindowOf(viewer), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  RECT inside, code;
  GetClientRect(forms.WindowOf(viewer), &inside);
  GetWindowRect(forms.WindowOf(viewer.txtCode), &code);
  EXPECT_EQ(code.right - code.left, inside.right - 20);
  EXPECT_EQ(code.bottom - code.top, inside.bottom - 20);
}

}  // namespace project_forms_test
}  // namespace brimwork::windows
