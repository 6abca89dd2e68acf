#include "windows/end_to_end/entry_clicks.h"

#include <stdexcept>

#include "environment/command_bar.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"

namespace brimwork {
namespace {

using bench::Client;
using win32::Variant;

std::string Plain(std::string caption) {
  std::erase(caption, '&');
  return caption;
}

/// An entry and how many entries that are shown stand above it.
struct Found {
  Client entry;
  int place;
};

Found Find(const Client& controls, const std::string& caption) {
  int place = 0;
  const long count = controls.Number(L"Count");
  for (long i = 1; i <= count; ++i) {
    const Client control = controls.Object(L"Item", {Variant(i)});
    if (Plain(control.Text(L"Caption")) == caption) return {control, place};
    if (control.Call(L"Visible").value.ToBool()) ++place;
  }
  throw std::runtime_error("there is no entry \"" + caption + "\"");
}

Client ControlsOf(const Client& vbe, const std::string& bar) {
  return vbe.Object(L"CommandBars").Object(L"Item", {Variant(bar)}).Object(L"Controls");
}

bool IsMenuOpen() { return FindWindowW(L"#32768", nullptr) != nullptr; }

void RequireOpenMenu() {
  if (!WaitUntil(IsMenuOpen)) throw std::runtime_error("the menu does not open");
}

/// Another window that goes at the same moment may take the menu along: then it is opened again.
void OpenAddInsMenu() {
  PressKey('A', {VK_MENU});
  if (WaitUntil(IsMenuOpen)) return;
  PressKey(VK_ESCAPE);
  PressKey('A', {VK_MENU});
}

/// Walks an open menu with the arrow keys and presses Enter at the last caption.
void PickInMenu(Client controls, const std::vector<std::string>& captions) {
  RequireOpenMenu();
  for (std::size_t i = 0; i < captions.size(); ++i) {
    const Found found = Find(controls, captions[i]);
    PressKey(VK_HOME);
    PressKeys(VK_DOWN, found.place);
    if (i + 1 == captions.size()) return PressKey(VK_RETURN);
    PressKey(VK_RIGHT);
    controls = found.entry.Object(L"Controls");
  }
}

POINT MiddleOf(const RunningBench& bench, const Client& bar, const Client& control) {
  POINT place = {control.Number(L"Left") + control.Number(L"Width") / 2,
                 control.Number(L"Top") + control.Number(L"Height") / 2};
  if (bar.Number(L"Position") != bar_position::kFloating) {
    ClientToScreen(bench.MainWindow(), &place);
  }
  return place;
}

void ClickOnToolbar(const RunningBench& bench, std::vector<std::string> captions) {
  const Client bar = bench.Vbe().Object(L"CommandBars").Object(L"Item", {Variant("Brimwork")});
  const Client control = Find(bar.Object(L"Controls"), captions.front()).entry;
  ClickAt(MiddleOf(bench, bar, control));
  captions.erase(captions.begin());
  if (!captions.empty()) PickInMenu(control.Object(L"Controls"), captions);
}

}  // namespace

std::string BarOf(EntryPlace place) {
  switch (place) {
    case EntryPlace::kAddInsMenu:
      return "Add-Ins";
    case EntryPlace::kCodeWindowPopup:
      return "Code Window";
    case EntryPlace::kImmediateWindowPopup:
      return "Immediate Window";
    default:
      return "Brimwork";
  }
}

std::vector<std::string> PathTo(const CatalogueEntry& entry) {
  std::vector<std::string> path;
  const bool isInSubmenu =
      entry.place == EntryPlace::kAddInsMenu || entry.place == EntryPlace::kCodeWindowPopup;
  if (isInSubmenu) path.emplace_back("Brimwork");
  if (!entry.submenu.empty()) path.emplace_back(entry.submenu);
  path.emplace_back(entry.caption);
  return path;
}

const CatalogueEntry& EntryOfHandler(int handler) {
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.handler == handler) return entry;
  }
  throw std::out_of_range("no entry has the handler " + std::to_string(handler));
}

void ClickEntry(const RunningBench& bench, int handler) {
  ClickEntry(bench, EntryOfHandler(handler));
}

void ClickEntry(const RunningBench& bench, const CatalogueEntry& entry) {
  if (entry.place == EntryPlace::kToolbar) return ClickOnToolbar(bench, PathTo(entry));
  if (entry.place == EntryPlace::kAddInsMenu) {
    OpenAddInsMenu();
  } else {
    PressKey(VK_F10, {VK_SHIFT});
  }
  PickInMenu(ControlsOf(bench.Vbe(), BarOf(entry.place)), PathTo(entry));
}

namespace {

void Append(const Client& controls, const std::string& indentation,
            std::vector<std::string>& lines) {
  const long count = controls.Number(L"Count");
  for (long i = 1; i <= count; ++i) {
    const Client control = controls.Object(L"Item", {Variant(i)});
    const bool isPopup = control.Number(L"Type") == control_type::kPopup;
    const bool begins = control.Call(L"BeginGroup").value.ToBool();
    lines.push_back(indentation + (begins ? "-- " : "") + control.Text(L"Caption") +
                    (isPopup ? " >" : ""));
    if (isPopup) Append(control.Object(L"Controls"), indentation + "  ", lines);
  }
}

}  // namespace

std::vector<std::string> EntriesOf(const Client& vbe, const std::string& bar) {
  std::vector<std::string> lines;
  Append(ControlsOf(vbe, bar), "", lines);
  return lines;
}

}  // namespace brimwork
