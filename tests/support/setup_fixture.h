// The setup dialog on settings of plain data.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "memory/memory_environment.h"
#include "settings/frmSetup.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {

struct SetupFixture {
  void Store(std::string_view key, std::string_view value) { SaveSetting(parts, key, value); }

  /// Nothing for a key that is not stored.
  std::optional<std::string> Stored(std::string_view key) {
    const std::string asOne = GetSetting(parts, key, "one");
    const std::string asOther = GetSetting(parts, key, "other");
    if (asOne != asOther) return std::nullopt;
    return asOne;
  }

  void OpenTab(int tab) {
    form.Show();
    form.tabOptions.Choose(tab);
  }
  void OpenErrorHandling() { OpenTab(1); }
  void OpenHeaders() { OpenTab(2); }
  void OpenKeyWords() { OpenTab(3); }
  void OpenOther() { OpenTab(4); }

  MemoryEnvironment environment;
  Environment parts = environment.Parts();
  frmSetup form{parts};
};

/// Puts text in the place of the text of a box, as a user does.
inline void Retype(TextBox& box, std::string_view text) {
  box.SelectAll();
  box.Erase();
  box.Type(text);
}

}  // namespace brimwork
