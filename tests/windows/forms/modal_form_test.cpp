// Forms that are shown modal.
#include <gmock/gmock.h>

#include <thread>

#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace modal_form_test {

/// A form whose timer plays the user as soon as messages are handled.
struct ModalSample : NativeForms {
  void ShowModal(std::function<void()> user) {
    form.onLoad = [this] {
      form.tmrClock.Interval = 10;
      form.tmrClock.Enabled = true;
    };
    form.onTimer = [this, user] {
      form.tmrClock.Enabled = false;
      user();
    };
    form.Show(ShowMode::kModal);
  }

  frmSample form{host};
};

TEST(ModalForm, NoOtherWindowCanBeUsedUntilItIsHidden) {
  ModalSample sample;
  frmSample other(sample.host);
  other.Show();
  bool wasOwnerUsable = true, wasOtherUsable = true, wasUsable = false;
  sample.ShowModal([&] {
    wasOwnerUsable = IsWindowEnabled(sample.owner);
    wasOtherUsable = IsWindowEnabled(sample.WindowOf(other));
    wasUsable = IsWindowEnabled(sample.WindowOf(sample.form));
    sample.form.Hide();
  });
  EXPECT_FALSE(wasOwnerUsable);
  EXPECT_FALSE(wasOtherUsable);
  EXPECT_TRUE(wasUsable);
  EXPECT_TRUE(IsWindowEnabled(sample.owner));
  EXPECT_TRUE(IsWindowEnabled(sample.WindowOf(other)));
  EXPECT_TRUE(sample.form.IsLoaded());
  EXPECT_FALSE(IsWindowVisible(sample.WindowOf(sample.form)));
}

TEST(ModalForm, AWindowThatWasDisabledBeforeStaysSo) {
  ModalSample sample;
  EnableWindow(sample.owner, FALSE);
  sample.ShowModal([&] { sample.form.Hide(); });
  EXPECT_FALSE(IsWindowEnabled(sample.owner));
}

TEST(ModalForm, EndsWhenItIsUnloaded) {
  ModalSample sample;
  HWND window = nullptr;
  sample.ShowModal([&] {
    window = sample.WindowOf(sample.form);
    sample.form.Unload();
  });
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(IsWindowEnabled(sample.owner));
}

TEST(ModalForm, EndsWhenItUnloadsItselfInAClick) {
  ModalSample sample;
  sample.form.cmdOk.OnClick = [&] { sample.form.Unload(); };
  sample.ShowModal([&] { PostMessageW(sample.WindowOf(sample.form.cmdOk), BM_CLICK, 0, 0); });
  EXPECT_FALSE(sample.form.IsLoaded());
}

TEST(ModalForm, EndsWhenItIsClosed) {
  ModalSample sample;
  sample.ShowModal([&] { PostMessageW(sample.WindowOf(sample.form), WM_CLOSE, 0, 0); });
  EXPECT_FALSE(sample.form.IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(sample.owner));
}

TEST(ModalForm, OneOverAnotherGivesItBack) {
  ModalSample sample;
  ModalSample upper;
  bool wasUsable = true;
  sample.ShowModal([&] {
    upper.ShowModal([&] {
      wasUsable = IsWindowEnabled(sample.WindowOf(sample.form));
      upper.form.Unload();
    });
    EXPECT_TRUE(IsWindowEnabled(sample.WindowOf(sample.form)));
    EXPECT_FALSE(IsWindowEnabled(sample.owner));
    sample.form.Unload();
  });
  EXPECT_FALSE(wasUsable);
  EXPECT_TRUE(IsWindowEnabled(sample.owner));
}

TEST(ModalForm, TheEndOfTheProgramHidesItAndIsPassedOn) {
  ModalSample sample;
  sample.ShowModal([] { PostQuitMessage(7); });
  EXPECT_FALSE(sample.form.Visible());
  EXPECT_TRUE(IsWindowEnabled(sample.owner));
  MSG message = {};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7u);
}

TEST(ModalForm, EndsWhenAMessageFromAnotherThreadUnloadsIt) {
  ModalSample sample;
  std::thread other;
  sample.ShowModal([&] {
    other = std::thread([window = sample.WindowOf(sample.form)] {
      Sleep(50);
      SendMessageW(window, WM_CLOSE, 0, 0);
    });
  });
  EXPECT_FALSE(sample.form.IsLoaded());
  other.join();
}

}  // namespace modal_form_test
}  // namespace brimwork::windows
