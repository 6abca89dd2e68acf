// The screen as forms see it, in memory.
#include "memory/memory_form_screen.h"

#include <gtest/gtest.h>

#include "environment/form.h"

namespace brimwork {
namespace memory_form_screen_test {

constexpr FormLayout kLayout{.name = "frmAny"};

struct MemoryFormScreenTest : testing::Test {
  MemoryNativeWindows windows;
  MemoryFormHost host{windows};
  MemoryFormScreen screen{host};
};

TEST_F(MemoryFormScreenTest, IsAThousandPixelsWide) {
  EXPECT_EQ(screen.Width() / screen.TwipsPerPixelX(), 1024);
  EXPECT_EQ(screen.Height() / screen.TwipsPerPixelY(), 768);
}

TEST_F(MemoryFormScreenTest, HasNoActiveFormWhileNoneIsVisible) {
  EXPECT_EQ(screen.ActiveForm(), nullptr);
  Form form(host, kLayout);
  form.Load();
  EXPECT_EQ(screen.ActiveForm(), nullptr);
}

TEST_F(MemoryFormScreenTest, HasTheVisibleFormThatWasLoadedLast) {
  Form first(host, kLayout);
  Form second(host, kLayout);
  first.Show();
  second.Show();
  EXPECT_EQ(screen.ActiveForm()->hWnd(), second.hWnd());
  second.Hide();
  EXPECT_EQ(screen.ActiveForm()->hWnd(), first.hWnd());
}

TEST_F(MemoryFormScreenTest, HasTheFormThatATestSets) {
  Form form(host, kLayout);
  form.Show();
  screen.activeForm = std::make_shared<MemoryScreenForm>(7);
  EXPECT_EQ(screen.ActiveForm()->hWnd(), 7u);
}

TEST(MemoryScreenForm, MeasuresTextAsTheFormsInMemoryDo) {
  MemoryScreenForm form(7);
  MemoryNativeWindows windows;
  MemoryFormHost host(windows);
  const TextExtent extent = host.Measure("Größe", {});
  EXPECT_EQ(form.TextWidth("Größe"), extent.width * 15);
  EXPECT_EQ(form.TextHeight("Größe"), extent.height * 15);
}

TEST(MemoryScreenForm, MeasuresTheLongestOfSeveralLines) {
  MemoryScreenForm form(7);
  EXPECT_EQ(form.TextWidth("one\r\nthree\r\ntwo"), 5 * form.characterWidth);
  EXPECT_EQ(form.TextHeight("one\r\nthree\r\ntwo"), 3 * form.textHeight);
}

}  // namespace memory_form_screen_test
}  // namespace brimwork
