#include "core/toolbar_place.h"

#include <string>
#include <string_view>

#include "environment/resume_next.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

/// A number of the toolbar's place: the key that it is saved under, and the bar's property.
struct PlaceNumber {
  std::string_view key;
  int (CommandBar::*read)();
  void (CommandBar::*write)(int);
};

// In the order in which they are set: what a bar's row and place mean depends on its side.
constexpr PlaceNumber kPlaceNumbers[] = {
    {setting::kToolbarPosition, &CommandBar::Position, &CommandBar::SetPosition},
    {setting::kToolbarIndex, &CommandBar::RowIndex, &CommandBar::SetRowIndex},
    {setting::kToolbarLeft, &CommandBar::Left, &CommandBar::SetLeft},
    {setting::kToolbarTop, &CommandBar::Top, &CommandBar::SetTop},
};

std::string SavedText(Environment& environment, std::string_view key) {
  std::string text(FindSettingKey(key)->commandDefault.text);
  ResumeNext([&] { text = GetCommandSetting(environment, key); });
  return text;
}

int SavedNumber(Environment& environment, std::string_view key) {
  int number = ToInteger(FindSettingKey(key)->commandDefault.text);
  ResumeNext([&] { number = ToInteger(SavedText(environment, key)); });
  return number;
}

}  // namespace

void RestoreToolbarPlace(Environment& environment, CommandBar& toolbar) {
  for (const PlaceNumber& number : kPlaceNumbers) {
    ResumeNext([&] { (toolbar.*number.write)(SavedNumber(environment, number.key)); });
  }
  // A toolbar is hidden only where that was saved: the user would look for it in vain.
  if (SavedText(environment, setting::kToolbarVisible) == "False") return;
  ResumeNext([&] { toolbar.SetVisible(true); });
}

void SaveToolbarPlace(Environment& environment, CommandBar& toolbar) {
  for (const PlaceNumber& number : kPlaceNumbers) {
    ResumeNext(
        [&] { SaveSetting(environment, number.key, std::to_string((toolbar.*number.read)())); });
  }
  ResumeNext([&] {
    SaveSetting(environment, setting::kToolbarVisible, toolbar.Visible() ? "True" : "False");
  });
}

}  // namespace brimwork
