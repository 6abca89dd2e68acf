#include "memory/usual_command_bars.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "memory/usual_entries.h"

namespace brimwork {
namespace {

using Entries = std::span<const usual::Entry>;

void Add(MemoryCommandBarControls& controls, const usual::Entry& entry) {
  const auto control = controls.AddBuiltIn(command::IdOf(entry.command), entry.caption);
  control->SetCommand(entry.command);
  control->SetBeginGroup(entry.beginsGroup);
  ControlDetails details = control->Details();
  details.shortcutText = entry.shortcut;
  if (control->Number() == command::kSharedId) details.faceId = 0;  // that would be one for all
  control->SetDetails(std::move(details));
}

void Fill(MemoryCommandBarControls& controls, Entries entries) {
  for (const usual::Entry& entry : entries) Add(controls, entry);
}

std::shared_ptr<MemoryCommandBar> AddPopup(const MemoryCommandBar& menu, std::string_view caption,
                                           Entries entries, bool beginsGroup) {
  const auto popup = menu.Entries()->AddBuiltInPopup(caption);
  popup->SetBeginGroup(beginsGroup);
  Fill(*popup->Entries(), entries);
  return popup->Menu();
}

class UsualBarBuilder {
 public:
  explicit UsualBarBuilder(MemoryVbe& vbe) : vbe_(vbe) {}

  UsualCommandBars Build() {
    AddMenus();
    AddToolbars();
    AddPopupMenus();
    // No program runs while the environment is plain data.
    vbe_.commandBars.SetEnabled(command::kBreak, false);
    vbe_.commandBars.SetEnabled(command::kEnd, false);
    return std::move(usual_);
  }

 private:
  void AddMenus() {
    usual_.menuBar = vbe_.commandBars.OfName(MemoryVbe::kMenuBarName);
    usual_.file = Menu("File", "&File", usual::kFile);
    usual_.editMenu = OwnMenu("&Edit", usual::kEditMenu);
    AddPopup(*usual_.editMenu, "&Bookmarks", usual::kBookmarks, true);
    usual_.view = Menu("View", "&View", usual::kView);
    usual_.toolbars = AddPopup(*usual_.view, "&Toolbars", usual::kToolbars, true);
    usual_.project = Menu("Project", "&Project", usual::kProject);
    usual_.format = Menu("Format", "F&ormat", usual::kFormat);
    usual_.debugMenu = OwnMenu("&Debug", usual::kDebugMenu);
    usual_.run = Menu("Run", "&Run", usual::kRun);
    usual_.addIns = Menu("Add-Ins", "&Add-Ins", usual::kAddIns);
    usual_.window = Menu("Window", "&Window", usual::kWindow, control_id::kWindowMenu);
    usual_.help = Menu("Help", "&Help", usual::kHelp);
  }

  void AddToolbars() {
    usual_.standard = Bar("Standard", usual::kStandard);
    usual_.edit = Bar("Edit", usual::kEdit);
    usual_.debug = Bar("Debug", usual::kDebug);
    usual_.debug->SetVisible(false);
  }

  void AddPopupMenus() {
    usual_.codeWindow = PopupMenu("Code Window", {});
    FillCodeWindowMenu(*usual_.codeWindow);
    usual_.codeWindowBreak = PopupMenu("Code Window (Break)", usual::kBreakOnly);
    FillCodeWindowMenu(*usual_.codeWindowBreak);
    usual_.immediateWindow = PopupMenu("Immediate Window", usual::kImmediatePopup);
    usual_.projectWindow = PopupMenu("Project Window", usual::kProjectPopup);
    AddPopup(*usual_.projectWindow, "&Add", usual::kProjectPopupAdd, true);
  }

  static void FillCodeWindowMenu(const MemoryCommandBar& menu) {
    Fill(*menu.Entries(), usual::kAboveToggle);
    AddPopup(menu, "To&ggle", usual::kToggle, false);
    Fill(*menu.Entries(), usual::kBelowToggle);
  }

  std::shared_ptr<MemoryCommandBar> Bar(std::string name, Entries entries) {
    auto bar = std::make_shared<MemoryCommandBar>(std::move(name));
    vbe_.AddCommandBar(bar);
    Fill(*bar->Entries(), entries);
    return bar;
  }

  std::shared_ptr<MemoryCommandBar> PopupMenu(std::string name, Entries entries) {
    auto bar = Bar(std::move(name), entries);
    bar->MakeMenu();
    return bar;
  }

  std::shared_ptr<MemoryCommandBar> Menu(std::string name, std::string_view caption,
                                         Entries entries, int id = control_id::kCustom) {
    auto bar = PopupMenu(std::move(name), entries);
    usual_.menuBar->Entries()->AddMenu(caption, bar, id);
    return bar;
  }

  std::shared_ptr<MemoryCommandBar> OwnMenu(std::string_view caption, Entries entries) {
    const auto popup = usual_.menuBar->Entries()->AddBuiltInPopup(caption);
    Fill(*popup->Entries(), entries);
    return popup->Menu();
  }

  MemoryVbe& vbe_;
  UsualCommandBars usual_;
};

}  // namespace

UsualCommandBars AddUsualCommandBars(MemoryVbe& vbe) { return UsualBarBuilder(vbe).Build(); }

}  // namespace brimwork
