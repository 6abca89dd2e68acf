#include "core/entry_builder.h"

#include <string>

#include "core/button_faces.h"
#include "core/modButtonClicked.h"
#include "environment/run_time_error.h"

namespace brimwork {
namespace {

std::string_view NameOf(EntryPlace place) {
  switch (place) {
    case EntryPlace::kAddInsMenu:
      return "AddIns";
    case EntryPlace::kCodeWindowPopup:
      return "CodeWindow";
    case EntryPlace::kImmediateWindowPopup:
      return "ImmediateWindow";
    case EntryPlace::kToolbar:
      break;
  }
  return "Toolbar";
}

std::string SubmenuTag(EntryPlace place, std::string_view caption) {
  return std::string(NameOf(place)).append(".").append(caption);
}

std::shared_ptr<CommandBarControl> FindById(CommandBarControls& controls, int id) {
  for (int index = 1; index <= controls.Count(); ++index) {
    auto control = controls.Item(index);
    if (control->Id() == id) return control;
  }
  return nullptr;
}

/// The command's own number, as its button on the "Edit" toolbar bears it; users may have moved the
/// button to another bar.
int LookUpCommand(VBE& vbe, int id) {
  auto button = FindById(*BarOfName(vbe, "Edit")->Controls(), id);
  if (!button) button = vbe.FindControl(id);
  if (button) return button->Id();
  throw RunTimeError(error_number::kObjectNotSet,
                     "the environment has no command number " + std::to_string(id));
}

}  // namespace

void EntryBuilder::Build(CommandBarControls& parent, EntryPlace place) {
  std::string_view submenu;
  std::shared_ptr<CommandBarControls> submenuControls;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.place != place) continue;
    if (entry.submenu != submenu) {
      submenu = entry.submenu;
      submenuControls = submenu.empty() ? nullptr
                                        : AddSubmenu(parent, submenu, SubmenuTag(place, submenu),
                                                     OpensGroup(place, submenu));
    }
    CommandBarControls& target = submenuControls ? *submenuControls : parent;
    AddButton(target, entry);
    AddBuiltIns(target, entry.handler);
  }
}

std::shared_ptr<CommandBarControls> EntryBuilder::AddSubmenu(CommandBarControls& parent,
                                                             std::string_view caption,
                                                             std::string_view tag, bool beginGroup,
                                                             int before) {
  const auto submenu = entries_.Add(parent, {.type = control_type::kPopup, .before = before}, tag);
  submenu->SetCaption(caption);
  if (beginGroup) submenu->SetBeginGroup(true);
  return submenu->Controls();
}

void EntryBuilder::AddButton(CommandBarControls& parent, const CatalogueEntry& entry) {
  const auto button = entries_.Add(parent, {}, "ButtonHandler" + std::to_string(entry.handler));
  button->SetCaption(entry.caption);
  button->SetStyle(button_style::kIconAndCaption);
  if (!entry.faceKey.empty()) {
    PutFaceOnClipboard(addIn_->progressWindow, addIn_->environment.clipboard, entry.faceKey);
    button->PasteFace();
  }
  entries_.Bind(entry.handler, addIn_->environment.vbe.CommandBarEventsOf(
                                   button, [addIn = addIn_, &entry](CommandBarControl& clicked) {
                                     HandleClick(*addIn, entry, clicked);
                                   }));
  if (entry.beginGroup) button->SetBeginGroup(true);
}

void EntryBuilder::AddBuiltIns(CommandBarControls& parent, int behindHandler) {
  for (const BuiltInEntry& builtIn : BuiltInEntries()) {
    if (builtIn.behindHandler != behindHandler) continue;
    const int id = LookUpCommand(addIn_->environment.vbe, builtIn.id);
    entries_.Add(parent, {.id = id}, "Command" + std::to_string(id));
  }
}

std::shared_ptr<CommandBar> BarOfName(VBE& vbe, std::string_view name) {
  if (auto bar = vbe.CommandBarOfName(name)) return bar;
  throw RunTimeError(error_number::kObjectNotSet,
                     "there is no command bar \"" + std::string(name) + '"');
}

}  // namespace brimwork
