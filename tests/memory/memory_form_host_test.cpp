#include "memory/memory_form_host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/memory_environment.h"
#include "support/faulty_environment.h"
#include "support/sample_form.h"

namespace brimwork {
namespace memory_form_host_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

TEST(MemoryFormHost, KnowsWhichFormsAreLoadedAndVisible) {
  MemoryEnvironment environment;
  MemoryFormHost& host = environment.formHost;
  frmSample first(host), second(host);
  first.Load();
  second.Show();
  EXPECT_THAT(host.LoadedForms(), ElementsAre(&first, &second));
  EXPECT_FALSE(host.IsVisible(first));
  EXPECT_TRUE(host.IsVisible(second));
  EXPECT_FALSE(host.IsModal(second));
  second.Hide();
  EXPECT_FALSE(host.IsVisible(second));
  second.Unload();
  EXPECT_FALSE(host.IsLoaded(second));
  EXPECT_TRUE(host.IsLoaded(first));
}

TEST(MemoryFormHost, GivesEachFormAWindowWithACloseButton) {
  MemoryEnvironment environment;
  frmSample first(environment.formHost), second(environment.formHost);
  environment.nativeWindows.windows[0x10000] = {};
  first.Load();
  second.Load();
  EXPECT_NE(first.hWnd(), second.hWnd());
  EXPECT_THAT(environment.nativeWindows.windows, SizeIs(3));
  MenuItemInfo info{.mask = menu_item_mask::kState, .state = 99};
  const MenuHandle menu = environment.nativeWindows.GetSystemMenu(first.hWnd(), false);
  EXPECT_TRUE(environment.nativeWindows.GetMenuItemInfo(menu, MemoryFormHost::kCloseCommand, info));
  EXPECT_EQ(info.state, 0u);
}

TEST(MemoryFormHost, LetsATestPlayTheUserOfAModalForm) {
  MemoryEnvironment environment;
  frmSample form(environment.formHost);
  bool wasModal = false;
  environment.formHost.playModalUser = [&](Form& shown) {
    wasModal = environment.formHost.IsModal(shown) && &shown == &form;
    form.Close();
  };
  form.Show(ShowMode::kModal);
  EXPECT_TRUE(wasModal);
  EXPECT_FALSE(form.IsLoaded());
}

TEST(MemoryFormHost, TicksEachTimerAfterItsInterval) {
  ShownSample sample;
  sample.form.tmrClock.Enabled = true;
  sample.host.Elapse(99);
  EXPECT_THAT(sample.form.events, IsEmpty());
  sample.host.Elapse(1);
  EXPECT_THAT(sample.form.events, SizeIs(1));
  sample.host.Elapse(250);
  EXPECT_THAT(sample.form.events, SizeIs(3));
}

TEST(MemoryFormHost, LeavesATimerThatIsDisabledAlone) {
  ShownSample sample;
  sample.host.Elapse(500);
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(MemoryFormHost, LetsATimerThatIsSetAnewWaitAWholeInterval) {
  ShownSample sample;
  sample.form.tmrClock.Enabled = true;
  sample.host.Elapse(90);
  sample.form.tmrClock.Enabled = false;
  sample.form.tmrClock.Enabled = true;
  sample.host.Elapse(90);
  EXPECT_THAT(sample.form.events, IsEmpty());
  sample.host.Elapse(10);
  EXPECT_THAT(sample.form.events, SizeIs(1));
}

TEST(MemoryFormHost, StopsTheTimersOfAFormThatOneOfThemUnloads) {
  ShownSample sample;
  sample.form.tmrClock.Enabled = true;
  sample.form.onTimer = [&] { sample.form.Unload(); };
  sample.host.Elapse(500);
  EXPECT_THAT(sample.form.events, ElementsAre("tmrClock Timer", "Form_Unload"));
}

TEST(MemoryFormHost, TellsOfEachChange) {
  ShownSample sample;
  std::vector<std::pair<Control*, PropertyId>> changes;
  sample.host.onChange = [&](Form&, Control* control, PropertyId property) {
    changes.emplace_back(control, property);
  };
  sample.form.lblName.Caption = "Who:";
  sample.form.Caption = "Other";
  EXPECT_THAT(changes, ElementsAre(std::pair<Control*, PropertyId>(&sample.form.lblName,
                                                                   PropertyId::kCaption),
                                   std::pair<Control*, PropertyId>(nullptr, PropertyId::kCaption)));
}

TEST(MemoryFormHost, MeasuresTextByItsCharacters) {
  ShownSample sample;
  EXPECT_EQ(sample.host.Measure("Zoë", {}).width, 3 * MemoryFormHost::kCharacterWidth);
}

/// A form on a host whose call fails so.
void ExpectNothingLeftWhenItFails(std::string_view operation, Fault::Kind kind) {
  MemoryEnvironment environment;
  FaultyEnvironment faulty(
      environment.Parts(),
      {.kind = kind, .hits = [&](int, std::string_view called) { return called == operation; }});
  {
    frmSample form(faulty.Parts().formHost);
    EXPECT_THROW(form.Show(), RunTimeError);
    EXPECT_FALSE(form.Visible());
    EXPECT_FALSE(environment.formHost.IsVisible(form));
  }
  EXPECT_THAT(environment.formHost.LoadedForms(), IsEmpty());
}

TEST(MemoryFormHost, KeepsNoFormWhoseWindowCouldNotBeMadeOrShown) {
  for (const std::string_view operation : {"FormHost.Load", "FormHost.Show"}) {
    ExpectNothingLeftWhenItFails(operation, Fault::Kind::kRaises);
    ExpectNothingLeftWhenItFails(operation, Fault::Kind::kRaisesBehind);
  }
}

}  // namespace memory_form_host_test
}  // namespace brimwork
