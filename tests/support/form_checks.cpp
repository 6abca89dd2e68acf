#include "support/form_checks.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "environment/tab_strip.h"
#include "support/shown_control.h"

namespace brimwork {
namespace {

using Faults = std::vector<std::string>;

bool HoldsControls(const Control& control) {
  return control.Kind() == ControlKind::kFrame || control.Kind() == ControlKind::kPictureBox;
}

std::string NameOf(std::string_view name, int index) {
  std::string full(name);
  if (index != kNoIndex) full += '(' + std::to_string(index) + ')';
  return full;
}

const Control* FindControl(const Form& form, const ControlName& name) {
  for (const Control* control : form.Controls()) {
    if (ControlName{control->Name(), control->Index()} == name) return control;
  }
  return nullptr;
}

void CheckRowsFitControls(const Form& form, Faults& faults) {
  std::map<std::string, int> rows;
  for (const ControlLayout& row : form.Layout().controls) ++rows[NameOf(row.name, row.index)];
  for (const Control* control : form.Controls()) {
    const std::string name = NameOf(*control);
    if (rows[name] != 1) faults.push_back(name + " has " + std::to_string(rows[name]) + " rows");
    rows.erase(name);
  }
  for (const auto& [name, count] : rows) faults.push_back(name + " has a row but is no control");
}

void CheckContainers(const Form& form, Faults& faults) {
  for (const ControlLayout& row : form.Layout().controls) {
    if (row.container.name.empty()) continue;
    const Control* container = FindControl(form, row.container);
    if (container == nullptr || !HoldsControls(*container)) {
      faults.push_back(NameOf(row.name, row.index) + " lies in nothing that holds controls");
    }
  }
}

void CheckTabIndexes(const Form& form, Faults& faults) {
  std::map<int, std::string> names;
  for (const ControlLayout& row : form.Layout().controls) {
    const std::string name = NameOf(row.name, row.index);
    const Control* control = FindControl(form, {row.name, row.index});
    const bool isMissing = row.tabIndex == kNoTabIndex;
    if (control != nullptr && control->TakesFocus() && isMissing) {
      faults.push_back(name + " has no tab index");
    }
    if (isMissing) continue;
    const auto [other, isNew] = names.emplace(row.tabIndex, name);
    if (!isNew) faults.push_back(name + " has the tab index of " + other->second);
  }
}

void CheckMarkedButtons(const Form& form, Faults& faults) {
  const auto count = [&](bool ControlLayout::*mark) {
    const auto& rows = form.Layout().controls;
    return std::count_if(rows.begin(), rows.end(), [&](const auto& row) { return row.*mark; });
  };
  if (count(&ControlLayout::isDefault) > 1) faults.push_back("more than one default button");
  if (count(&ControlLayout::isCancel) > 1) faults.push_back("more than one cancel button");
}

std::vector<ShownControl> ShownControls(const Form& form) {
  std::vector<ShownControl> shown;
  for (const Control* control : form.Controls()) {
    if (control->IsShown() && HasPlace(*control)) shown.emplace_back(*control);
  }
  return shown;
}

void CheckInsideContainer(const Form& form, const ShownControl& control, Faults& faults) {
  const Control* container = control.Get().Container();
  const Area inside = container != nullptr ? ShownControl(*container).InnerArea()
                                           : Area{0, 0, form.ScaleWidth(), form.ScaleHeight()};
  if (!inside.Holds(control.OuterArea())) {
    faults.push_back(NameOf(control.Get()) + " does not lie inside its container");
  }
}

void CheckApart(const ShownControl& a, const ShownControl& b, Faults& faults) {
  const bool areSiblings = a.Get().Container() == b.Get().Container();
  if (!areSiblings || !a.OuterArea().Meets(b.OuterArea())) return;
  if (a.IsPageOf(b) || b.IsPageOf(a)) return;
  faults.push_back(NameOf(a.Get()) + " and " + NameOf(b.Get()) + " lie over each other");
}

void CheckAccessKeys(const std::vector<ShownControl>& controls, Faults& faults) {
  std::map<char, std::string> names;
  for (const ShownControl& control : controls) {
    for (const char key : control.Get().AccessKeys()) {
      const auto [other, isNew] = names.emplace(key, NameOf(control.Get()));
      if (isNew) continue;
      faults.push_back(NameOf(control.Get()) + " has the access key of " + other->second);
    }
  }
}

TabStrip* TabStripOf(const Form& form) {
  for (Control* control : form.Controls()) {
    if (control->Kind() == ControlKind::kTabStrip) return static_cast<TabStrip*>(control);
  }
  return nullptr;
}

void Append(Faults& faults, const Faults& more, const std::string& where) {
  for (const std::string& fault : more) faults.push_back(fault + where);
}

}  // namespace

std::vector<std::string> TableFaults(const Form& form) {
  Faults faults;
  CheckRowsFitControls(form, faults);
  CheckContainers(form, faults);
  CheckTabIndexes(form, faults);
  CheckMarkedButtons(form, faults);
  return faults;
}

std::vector<std::string> PageFaults(const Form& form) {
  Faults faults;
  const std::vector<ShownControl> controls = ShownControls(form);
  for (auto control = controls.begin(); control != controls.end(); ++control) {
    CheckInsideContainer(form, *control, faults);
    for (auto other = control + 1; other != controls.end(); ++other) {
      CheckApart(*control, *other, faults);
    }
    if (!control->TextFits())
      faults.push_back(NameOf(control->Get()) + " has no room for its text");
  }
  CheckAccessKeys(controls, faults);
  return faults;
}

std::vector<std::string> LayoutFaults(Form& form) {
  Faults faults = TableFaults(form);
  if (!faults.empty()) return faults;  // the form may not even load
  form.Show();
  TabStrip* const tabs = TabStripOf(form);
  if (tabs == nullptr) return PageFaults(form);
  for (int tab = static_cast<int>(tabs->Tabs().size()); tab >= 1; --tab) {
    tabs->Choose(tab);
    Append(faults, PageFaults(form), " with tab " + std::to_string(tab) + " in front");
  }
  return faults;
}

}  // namespace brimwork
