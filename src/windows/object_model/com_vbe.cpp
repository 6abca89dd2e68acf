#include "windows/object_model/com_vbe.h"

#include <algorithm>
#include <utility>

#include "environment/resume_next.h"
#include "environment/run_time_error.h"
#include "win32/module_path.h"
#include "windows/object_model/com_click_events.h"
#include "windows/object_model/com_code_pane.h"
#include "windows/object_model/com_command_bar.h"
#include "windows/object_model/com_command_bar_control.h"
#include "windows/object_model/com_project.h"
#include "windows/object_model/com_window.h"

namespace brimwork::windows {
namespace {

using win32::ComPointer;
using win32::Variant;

std::shared_ptr<Connection> NewConnection(Patience patience, std::shared_ptr<const void> inUse) {
  auto connection = std::make_shared<Connection>();
  connection->patience = std::move(patience);
  connection->inUse = std::move(inUse);
  return connection;
}

}  // namespace

ComVbe::ComVbe(ComPointer<IDispatch> vbe, Patience patience, std::shared_ptr<const void> inUse)
    : vbe_(std::move(vbe), NewConnection(std::move(patience), std::move(inUse)), ObjectKind::kVbe) {
}

void ComVbe::End() {
  vbe_.Connected()->hasEnded = true;
  vbe_.LetGo();
}

std::string ComVbe::FullName() {
  std::string name;
  const auto failure = ResumeNext([&] { name = ToText(vbe_.Get(L"FullName")); });
  if (!failure) return name;
  if (failure->Number() != error_number::kNotSupportedByObject) throw *failure;
  return win32::ModulePath(nullptr);
}

std::shared_ptr<CodePane> ComVbe::ActiveCodePane() {
  return vbe_.GetAs<ComCodePane>(L"ActiveCodePane");
}

std::shared_ptr<VBProject> ComVbe::ActiveVBProject() {
  return vbe_.GetAs<ComProject>(L"ActiveVBProject");
}

std::shared_ptr<Window> ComVbe::MainWindow() { return vbe_.GetAs<ComWindow>(L"MainWindow"); }

std::shared_ptr<Window> ComVbe::ActiveWindow() { return vbe_.GetAs<ComWindow>(L"ActiveWindow"); }

std::vector<std::shared_ptr<Window>> ComVbe::Windows() {
  return vbe_.Part(ObjectKind::kWindows, L"Windows").Items<ComWindow, Window>();
}

// The environment's own look-ups by caption and by name raise an error when there is none, and do
// not say whether they look at letter case.

std::shared_ptr<Window> ComVbe::WindowOfCaption(std::string_view caption) {
  const auto windows = Windows();
  const auto found =
      std::ranges::find_if(windows, [&](const auto& each) { return each->Caption() == caption; });
  return found == windows.end() ? nullptr : *found;
}

std::vector<std::shared_ptr<CommandBar>> ComVbe::CommandBars() {
  return Bars().Items<ComCommandBar, CommandBar>();
}

std::shared_ptr<CommandBar> ComVbe::CommandBarOfName(std::string_view name) {
  const auto bars = CommandBars();
  const auto found =
      std::ranges::find_if(bars, [&](const auto& each) { return each->Name() == name; });
  return found == bars.end() ? nullptr : *found;
}

std::shared_ptr<CommandBar> ComVbe::AddCommandBar(const NewCommandBar& bar) {
  constexpr bool kReplacesTheMenuBar = false;
  return Bars().CallExisting<ComCommandBar>(L"Add", bar.name, bar.position, kReplacesTheMenuBar,
                                            bar.isTemporary);
}

std::shared_ptr<CommandBarControl> ComVbe::FindControl(int id) {
  return Bars().CallAs<ComCommandBarControl>(L"FindControl", Variant::Missing(), id);
}

std::unique_ptr<CommandBarEvents> ComVbe::CommandBarEventsOf(
    const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) {
  auto own = std::dynamic_pointer_cast<ComCommandBarControl>(control);
  if (!own) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "the control is not of this environment");
  }
  return std::make_unique<ComClickEvents>(vbe_, std::move(own), std::move(onClick));
}

DispatchObject ComVbe::Bars() const { return vbe_.Part(ObjectKind::kCommandBars, L"CommandBars"); }

}  // namespace brimwork::windows
