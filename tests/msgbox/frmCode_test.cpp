// The code viewer: how its text box fits the window, and the module that it carries.
#include "msgbox/frmCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_environment.h"
#include "msgbox/module_source.h"
#include "support/form_checks.h"

namespace brimwork {
namespace frmCode_test {

using testing::IsEmpty;

struct CodeViewer : testing::Test {
  Place PlaceOfCode() const {
    return {form.txtCode.Left, form.txtCode.Top, form.txtCode.Width, form.txtCode.Height};
  }

  MemoryEnvironment memory;
  frmCode form{memory.formHost};
};

TEST_F(CodeViewer, LeavesAMarginOfTenPixelsWhenItIsLoaded) {
  form.Load();
  EXPECT_EQ(PlaceOfCode(), (Place{10, 10, form.ScaleWidth() - 20, form.ScaleHeight() - 20}));
}

TEST_F(CodeViewer, KeepsTheMarginWhenItIsMadeLargerOrSmaller) {
  form.Show();
  form.Resize(700, 500);
  EXPECT_EQ(PlaceOfCode(), (Place{10, 10, 680, 480}));
  form.Resize(100, 60);
  EXPECT_EQ(PlaceOfCode(), (Place{10, 10, 80, 40}));
}

TEST_F(CodeViewer, MakesTheBoxNoSmallerThanNothing) {
  form.Show();
  form.Resize(15, 0);
  EXPECT_EQ(PlaceOfCode(), (Place{10, 10, 0, 0}));
}

TEST_F(CodeViewer, CarriesTheRequiredModuleOutOfSight) {
  form.Show();
  EXPECT_EQ(form.txtModule.Text, kModCustomMsgBoxSource);
  EXPECT_FALSE(form.txtModule.IsShown());
  EXPECT_EQ(form.ActiveControl(), &form.txtCode);
}

TEST_F(CodeViewer, ShowsCodeOfSeveralLines) {
  form.Show();
  EXPECT_TRUE(form.txtCode.MultiLine());
  EXPECT_FALSE(form.txtCode.Locked);
}

TEST_F(CodeViewer, IsClosedByTheEscapeKey) {
  form.Show();
  form.Press(Key::kEnter);
  EXPECT_TRUE(form.IsLoaded());
  form.Press(Key::kEscape);
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(CodeViewer, FitsItsControls) { EXPECT_THAT(LayoutFaults(form), IsEmpty()); }

}  // namespace frmCode_test
}  // namespace brimwork
