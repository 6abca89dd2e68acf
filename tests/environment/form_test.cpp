// The life of a form, from Load to Unload.
#include "environment/form.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace form_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct UnloadedSample {
  MemoryNativeWindows windows;
  MemoryFormHost host{windows};
  frmSample form{host};
};

void RaiseError() { throw RunTimeError(error_number::kInvalidProcedureCall, "refused"); }

TEST(Form, IsLoadedOnce) {
  UnloadedSample sample;
  sample.form.Load();
  sample.form.Load();
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Load"));
  EXPECT_TRUE(sample.form.IsLoaded());
  EXPECT_FALSE(sample.form.Visible());
  EXPECT_EQ(sample.form.Caption, "Sample");
}

TEST(Form, HasItsWindowWhenFormLoadRuns) {
  UnloadedSample sample;
  WindowHandle window = 0;
  sample.form.onLoad = [&] { window = sample.form.hWnd(); };
  EXPECT_EQ(sample.form.hWnd(), 0u);
  sample.form.Load();
  EXPECT_NE(window, 0u);
  EXPECT_TRUE(sample.windows.IsWindow(window));
}

TEST(Form, IsLoadedByShowAndGivesTheFirstControlTheFocus) {
  UnloadedSample sample;
  sample.form.Show();
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Load", "Form_Resize", "txtName GotFocus"));
  EXPECT_TRUE(sample.form.Visible());
}

TEST(Form, KeepsItsStateWhileItIsHidden) {
  ShownSample sample;
  sample.form.txtNotes.SelectAll();
  sample.form.txtNotes.Type("Kept");
  sample.form.events.clear();
  sample.form.Hide();
  sample.form.Show();
  EXPECT_EQ(sample.form.txtNotes.Text, "Kept");
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtNotes);
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(Form, LooksAsDesignedWhenItIsLoadedAgain) {
  ShownSample sample;
  frmSample& form = sample.form;
  form.Caption = "Changed";
  form.txtName.Text = "Changed";
  form.chkReady.Value = true;
  form.optColor(1).Value = true;
  form.lstWords.Clear();
  form.cmbWords.ListIndex = 1;
  form.tabPages.SelectedItem = 2;
  form.cmdOk.Enabled = false;
  form.picBar.Print(0, 0, "x");
  form.sbStatus.SimpleText = "Changed";
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Caption, "Sample");
  EXPECT_EQ(form.txtName.Text, "Anne");
  EXPECT_FALSE(form.chkReady.Value);
  EXPECT_TRUE(form.optColor(0).Value);
  EXPECT_FALSE(form.optColor(1).Value);
  EXPECT_EQ(form.lstWords.ListCount(), 3);
  EXPECT_EQ(form.cmbWords.ListIndex, -1);
  EXPECT_EQ(form.tabPages.SelectedItem, 1);
  EXPECT_TRUE(form.cmdOk.Enabled);
  EXPECT_THAT(form.picBar.Drawing(), IsEmpty());
  EXPECT_EQ(form.sbStatus.SimpleText, "Ready");
}

TEST(Form, RunsFormUnloadBeforeItGoes) {
  ShownSample sample;
  std::string text;
  sample.form.onUnload = [&] {
    text = sample.form.txtName.Text;
    sample.form.Unload();
  };
  sample.form.Unload();
  sample.form.Unload();
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Unload"));
  EXPECT_EQ(text, "Anne");
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_FALSE(sample.form.Visible());
  EXPECT_EQ(sample.form.hWnd(), 0u);
  EXPECT_THAT(sample.host.LoadedForms(), IsEmpty());
}

TEST(Form, GoesEvenWhenFormUnloadFails) {
  ShownSample sample;
  sample.form.onUnload = RaiseError;
  EXPECT_THROW(sample.form.Unload(), RunTimeError);
  EXPECT_FALSE(sample.form.IsLoaded());
}

TEST(Form, IsNotLoadedWhenFormLoadFails) {
  UnloadedSample sample;
  sample.form.onLoad = RaiseError;
  EXPECT_THROW(sample.form.Show(), RunTimeError);
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Load"));
  EXPECT_THAT(sample.host.LoadedForms(), IsEmpty());
}

TEST(Form, StaysAwayWhenFormLoadUnloadsIt) {
  UnloadedSample sample;
  sample.form.onLoad = [&] { sample.form.Unload(); };
  sample.form.Show();
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_FALSE(sample.form.Visible());
}

TEST(Form, RaisesNoEventsOfControlsWhileItIsNotLoaded) {
  UnloadedSample sample;
  sample.form.txtName.Text = "Early";
  sample.form.chkReady.Value = true;
  sample.form.chkReady.Click();
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(Form, IsClosedByTheUser) {
  ShownSample sample;
  sample.form.Close();
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Unload"));
}

TEST(Form, TellsItsNewSizeWhenTheUserDragsItsEdge) {
  ShownSample sample;
  sample.form.Resize(400, 300);
  EXPECT_EQ(sample.form.ScaleWidth(), 400);
  EXPECT_EQ(sample.form.ScaleHeight(), 300);
  EXPECT_THAT(sample.form.events, ElementsAre("Form_Resize"));
}

TEST(Form, MovesAControlInOneStep) {
  ShownSample sample;
  int changes = 0;
  sample.host.onChange = [&](Form&, Control*, PropertyId) { ++changes; };
  sample.form.txtNotes.Move(10, 11, 12, 13);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(sample.form.txtNotes.Top, 11);
  EXPECT_EQ(sample.form.txtNotes.Height, 13);
}

struct FixedForm : Form {
  explicit FixedForm(FormHost& host) : Form(host, kLayout) {}
  static constexpr FormLayout kLayout = {
      .name = "frmFixed", .width = 100, .height = 50, .hasControlBox = false};
};

TEST(Form, KeepsItsSizeAndStaysWhenItsBorderSaysSo) {
  UnloadedSample sample;
  FixedForm form(sample.host);
  form.Show();
  form.Resize(400, 300);
  form.Close();
  EXPECT_EQ(form.ScaleWidth(), 100);
  EXPECT_TRUE(form.Visible());
}

TEST(Form, TakesItsWindowAlongWhenItIsDestroyed) {
  UnloadedSample sample;
  {
    FixedForm form(sample.host);
    form.Show();
    EXPECT_EQ(sample.host.LoadedForms().size(), 1u);
  }
  EXPECT_THAT(sample.host.LoadedForms(), IsEmpty());
  EXPECT_THAT(sample.windows.windows, IsEmpty());
}

TEST(Form, RefusesATableThatNamesAControlItHasNot) {
  static constexpr ControlLayout kRows[] = {{.name = "cmdMissing"}};
  static constexpr FormLayout kLayout = {.name = "frmWrong", .controls = kRows};
  UnloadedSample sample;
  Form form(sample.host, kLayout);
  EXPECT_THROW(form.Load(), std::logic_error);
}

}  // namespace form_test
}  // namespace brimwork
