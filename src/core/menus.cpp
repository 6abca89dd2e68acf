#include "core/menus.h"

#include <string_view>

#include "core/entry_builder.h"
#include "core/toolbar_place.h"
#include "environment/resume_next.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

constexpr bool kBeginGroup = true;

void RemoveLeftToolbar(VBE& vbe) {
  ResumeNext([&] {
    if (const auto toolbar = vbe.CommandBarOfName(kApplicationTitle)) toolbar->Delete();
  });
}

}  // namespace

template <class Build>
void Menus::BuildOrTell(std::string_view failure, Build build) {
  if (!ResumeNext(build)) return;
  ResumeNext([&] {
    addIn_->environment.dialogs.MsgBox(failure, message_box::kCritical, kApplicationTitle);
  });
}

void Menus::BuildToolbar() {
  BuildOrTell("Unable to create necessary toolbar items", [&] {
    Environment& environment = addIn_->environment;
    RemoveLeftToolbar(environment.vbe);
    toolbar_ = environment.vbe.AddCommandBar(
        {.name = kApplicationTitle, .position = bar_position::kFloating});
    EntryBuilder(addIn_, toolbarEntries_).Build(*toolbar_->Controls(), EntryPlace::kToolbar);
    RestoreToolbarPlace(environment, *toolbar_);
    isToolbarInPlace_ = true;
  });
}

void Menus::BuildAddInsMenu() {
  BuildOrTell("Unable to create necessary menu items", [&] {
    const auto menu = BarOfName(addIn_->environment.vbe, "Add-Ins")->Controls();
    RemoveLeftovers(*menu);
    EntryBuilder builder(addIn_, addInsMenu_);
    const auto submenu = builder.AddSubmenu(*menu, kApplicationTitle, "AddIns", kBeginGroup);
    builder.Build(*submenu, EntryPlace::kAddInsMenu);
  });
}

void Menus::BuildPopups() {
  BuildOrTell("Unable to create necessary popupmenu items", [&] {
    EntryBuilder builder(addIn_, popups_);
    const auto codeWindow = BarOfName(addIn_->environment.vbe, "Code Window")->Controls();
    RemoveLeftovers(*codeWindow);
    const int toggle = codeWindow->Item("Toggle")->Index();
    const auto submenu =
        builder.AddSubmenu(*codeWindow, kApplicationTitle, "CodeWindow", kBeginGroup, toggle);
    builder.Build(*submenu, EntryPlace::kCodeWindowPopup);

    const auto immediateWindow = BarOfName(addIn_->environment.vbe, "Immediate Window")->Controls();
    RemoveLeftovers(*immediateWindow);
    builder.Build(*immediateWindow, EntryPlace::kImmediateWindowPopup);
  });
}

void Menus::RemoveToolbar() {
  const auto toolbar = FindToolbar();
  if (toolbar && isToolbarInPlace_) SaveToolbarPlace(addIn_->environment, *toolbar);
  toolbarEntries_.Remove();
  if (toolbar) Insist([&] { toolbar->Delete(); });
  toolbar_ = nullptr;
  isToolbarInPlace_ = false;
}

/// By its name, under which it also stands there when adding it failed late; or the one that was
/// added, should the user have renamed it.
std::shared_ptr<CommandBar> Menus::FindToolbar() {
  std::shared_ptr<CommandBar> toolbar;
  Insist([&] { toolbar = addIn_->environment.vbe.CommandBarOfName(kApplicationTitle); });
  return toolbar ? toolbar : toolbar_;
}

void Menus::RemoveAddInsMenu() { addInsMenu_.Remove(); }

void Menus::RemovePopups() { popups_.Remove(); }

}  // namespace brimwork
