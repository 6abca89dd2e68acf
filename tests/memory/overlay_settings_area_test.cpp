#include "memory/overlay_settings_area.h"

#include <gtest/gtest.h>

#include "memory/memory_settings_area.h"

namespace brimwork {
namespace overlay_settings_area_test {

struct OverlaySettingsAreaTest : testing::Test {
  OverlaySettingsAreaTest() { behind.SaveSetting("Brimwork", "Settings", "Separator", "'stored"); }

  OverlaySettingsArea Overlay() {
    return {behind, "Brimwork", "Settings", behind.AllSettings("Brimwork", "Settings")};
  }

  static std::string Get(SettingsArea& area, std::string_view key) {
    return area.GetSetting("Brimwork", "Settings", key, "default");
  }

  MemorySettingsArea behind;
};

TEST_F(OverlaySettingsAreaTest, GivesTheStoredValueWhereTheRunHasNone) {
  OverlaySettingsArea overlay = Overlay();
  EXPECT_EQ(Get(overlay, "Separator"), "'stored");
  EXPECT_EQ(Get(overlay, "Header"), "default");
}

TEST_F(OverlaySettingsAreaTest, AValueForThisRunComesFirstAndIsNeverStored) {
  OverlaySettingsArea overlay = Overlay();
  overlay.SetForThisRun("Separator", "'run");
  EXPECT_EQ(Get(overlay, "Separator"), "'run");
  EXPECT_EQ(Get(behind, "Separator"), "'stored");
}

TEST_F(OverlaySettingsAreaTest, AnEmptyValueForThisRunIsAValue) {
  OverlaySettingsArea overlay = Overlay();
  overlay.SetForThisRun("Separator", "");
  EXPECT_EQ(Get(overlay, "Separator"), "");
}

TEST_F(OverlaySettingsAreaTest, AChangeBehindDuringTheRunIsNotSeen) {
  OverlaySettingsArea overlay = Overlay();
  behind.SaveSetting("Brimwork", "Settings", "Separator", "'changed");
  EXPECT_EQ(Get(overlay, "Separator"), "'stored");
}

TEST_F(OverlaySettingsAreaTest, AValueSavedIsStoredAndSeenByTheNextRead) {
  OverlaySettingsArea overlay = Overlay();
  overlay.SetForThisRun("Separator", "'run");
  overlay.SaveSetting("Brimwork", "Settings", "Separator", "'saved");
  EXPECT_EQ(Get(overlay, "Separator"), "'saved");
  EXPECT_EQ(Get(behind, "Separator"), "'saved");
}

TEST_F(OverlaySettingsAreaTest, OtherSectionsAreHandedThrough) {
  behind.SaveSetting("Brimwork", "Windows", "Left", "10");
  OverlaySettingsArea overlay = Overlay();
  overlay.SetForThisRun("Left", "20");
  EXPECT_EQ(overlay.GetSetting("Brimwork", "Windows", "Left", ""), "10");
  overlay.SaveSetting("Other", "Settings", "Separator", "'other");
  EXPECT_EQ(Get(overlay, "Separator"), "'stored");
  EXPECT_EQ(behind.GetSetting("Other", "Settings", "Separator", ""), "'other");
}

}  // namespace overlay_settings_area_test
}  // namespace brimwork
