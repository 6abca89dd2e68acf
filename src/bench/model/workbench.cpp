#include "bench/model/workbench.h"

#include <algorithm>
#include <utility>

#include "bench/model/opened_projects.h"
#include "bench/model/window_captions.h"
#include "bench/model/workbench_commands.h"
#include "environment/run_time_error.h"
#include "memory/source_error.h"
#include "memory/utf8_path.h"

namespace brimwork::bench {

namespace fs = std::filesystem;

Workbench::Workbench()
    : windows(AddUsualWindows(vbe)),
      recent_(bars.file, [this](const std::string& path) { OpenRecent(path); }) {
  vbe.windows.OnActivate([this](MemoryWindow& window) { NoteActivation(window); });
  vbe.windows.OnRemove([this](MemoryWindow& window) { NoteRemoval(window); });
  SetUsualActions(*this);
  ShowCaptions();
}

Workbench::~Workbench() { LetProjectsGo(); }

void Workbench::Open(const fs::path& path) {
  const fs::path whole = fs::absolute(path).lexically_normal();
  Adopt(ReadProjects(whole));
  recent_.PutFirst(whole.string());
}

std::vector<std::shared_ptr<WorkProject>> Workbench::OpenBeside(const fs::path& path) {
  auto added = ReadProjects(fs::absolute(path).lexically_normal());
  if (projects_.empty()) {
    Adopt(added);
    return added;
  }
  for (const auto& project : added) WatchOver(*project);
  projects_.insert(projects_.end(), added.begin(), added.end());
  ShowCaptions();
  return added;
}

void Workbench::SaveAll() {
  for (const auto& project : projects_) project->Save();
}

bool Workbench::HasUnsavedChanges() const {
  return std::ranges::any_of(projects_, [](const auto& project) { return project->IsDirty(); });
}

void Workbench::SetActiveProject(const std::shared_ptr<WorkProject>& project) {
  if (activeProject_ == project) return;
  activeProject_ = project;
  vbe.SetProject(project);
  ShowCaptions();
}

void Workbench::Select(const std::shared_ptr<WorkComponent>& component) {
  selected_ = component;
  if (component != nullptr) SetActiveProject(ProjectOf(*component));
  ShowCaptions();
}

std::shared_ptr<WorkComponent> Workbench::ComponentOf(const CodeModule& module) const {
  for (const auto& project : projects_) {
    for (const auto& component : project->Components()) {
      if (component->Code().get() == &module) return component;
    }
  }
  return nullptr;
}

std::shared_ptr<WorkProject> Workbench::ProjectOf(const WorkComponent& component) const {
  const auto found = std::ranges::find_if(
      projects_, [&](const auto& project) { return project.get() == component.Project(); });
  return found == projects_.end() ? nullptr : *found;
}

std::shared_ptr<MemoryCodePane> Workbench::PaneOf(const std::shared_ptr<WorkComponent>& component) {
  if (component->Code() == nullptr) return nullptr;
  if (auto open = OpenPaneOf(*component)) return open;
  auto pane = std::make_shared<MemoryCodePane>(component->Code());
  vbe.OpenPane(pane, CodeCaption(component->Project(), *component));
  return pane;
}

std::shared_ptr<MemoryWindow> Workbench::DesignerOf(
    const std::shared_ptr<WorkComponent>& component) {
  if (!component->HasDesigner()) return nullptr;
  if (auto open = OpenDesignerOf(*component)) return open;
  auto window =
      vbe.windows.Add(DesignerCaption(component->Project(), *component), window_type::kDesigner);
  designers_.push_back({window, component});
  window->SetFocus();
  return window;
}

std::shared_ptr<MemoryCodePane> Workbench::OpenPaneOf(const WorkComponent& component) const {
  const auto found = std::ranges::find_if(
      vbe.Panes(), [&](const auto& pane) { return pane->Code() == component.Code(); });
  return found == vbe.Panes().end() ? nullptr : *found;
}

std::shared_ptr<MemoryWindow> Workbench::OpenDesignerOf(const WorkComponent& component) const {
  const auto found = std::ranges::find_if(
      designers_, [&](const Designer& each) { return each.component.get() == &component; });
  return found == designers_.end() ? nullptr : found->window.lock();
}

std::shared_ptr<WorkComponent> Workbench::ComponentOfDesigner(const MemoryWindow& window) const {
  const auto found = std::ranges::find_if(
      designers_, [&](const Designer& each) { return each.window.lock().get() == &window; });
  return found == designers_.end() ? nullptr : found->component;
}

void Workbench::TickShownToolbars() {
  const auto tick = [this](int command, MemoryCommandBar& bar) {
    vbe.commandBars.SetState(command, bar.Visible() ? button_state::kDown : button_state::kUp);
  };
  tick(command::kShowStandard, *bars.standard);
  tick(command::kShowEdit, *bars.edit);
  tick(command::kShowDebug, *bars.debug);
}

void Workbench::LetProjectsGo() {
  for (const auto& project : projects_) {
    project->onChange = nullptr;
    project->onRemove = nullptr;
  }
}

void Workbench::Adopt(std::vector<std::shared_ptr<WorkProject>> projects) {
  for (const auto& project : projects_) {
    for (const auto& component : project->Components()) CloseWindowsOf(*component);
  }
  LetProjectsGo();
  projects_ = std::move(projects);
  for (const auto& project : projects_) WatchOver(*project);
  selected_ = nullptr;
  SetActiveProject(projects_.front());
  if (!activeProject_->Components().empty()) Select(activeProject_->Components().front());
}

void Workbench::WatchOver(WorkProject& project) {
  project.onChange = [this] { ShowCaptions(); };
  project.onRemove = [this](const WorkComponent& gone) { NoteComponentRemoved(gone); };
}

void Workbench::CloseWindowsOf(const WorkComponent& component) {
  if (const auto pane = OpenPaneOf(component)) pane->ContainingWindow()->Close();
  if (const auto designer = OpenDesignerOf(component)) designer->Close();
}

void Workbench::NoteActivation(MemoryWindow& window) {
  if (const auto component = ComponentOfDesigner(window)) return Select(component);
  const auto pane = vbe.ActivePane();
  if (pane != nullptr && pane.get() == window.Keys()) Select(ComponentOf(*pane->Code()));
}

void Workbench::NoteRemoval(const MemoryWindow& window) {
  std::erase_if(designers_,
                [&](const Designer& each) { return each.window.lock().get() == &window; });
}

void Workbench::NoteComponentRemoved(const WorkComponent& component) {
  CloseWindowsOf(component);
  if (selected_.get() == &component) selected_ = nullptr;
  ShowCaptions();
}

void Workbench::OpenRecent(const std::string& path) {
  if (openRecent) return openRecent(PathOf(path));
  try {
    Open(PathOf(path));
  } catch (const SourceError& error) {
    throw RunTimeError(error_number::kPathFileAccess, error.what());
  }
}

void Workbench::ShowCaptions() {
  ++revision_;
  ShowNamesInMenus(*this, activeProject_ != nullptr ? activeProject_->Name() : "Project1",
                   selected_ != nullptr ? selected_->LastName() : "Module1");
  vbe.SetCaption(MainCaption(activeProject_.get()));
  windows.project->SetCaption(ProjectCaption(activeProject_.get()));
  windows.properties->SetCaption(PropertiesCaption(selected_.get()));
  ShowWindowCaptions();
}

void Workbench::ShowWindowCaptions() {
  for (const auto& pane : vbe.Panes()) {
    const auto component = ComponentOf(*pane->Code());
    const auto window = std::static_pointer_cast<MemoryWindow>(pane->ContainingWindow());
    if (component != nullptr) window->SetCaption(CodeCaption(component->Project(), *component));
  }
  for (const Designer& each : designers_) {
    each.window.lock()->SetCaption(DesignerCaption(each.component->Project(), *each.component));
  }
}

}  // namespace brimwork::bench
