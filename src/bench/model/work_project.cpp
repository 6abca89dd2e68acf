#include "bench/model/work_project.h"

#include <algorithm>
#include <array>
#include <utility>

#include "bench/model/component_kind.h"
#include "bench/model/project_document.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/source_error.h"

namespace brimwork::bench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kUsualName = "Project1";
constexpr std::array<std::string_view, 4> kTypes{"Exe", "OleExe", "OleDll", "Control"};

int TypeOf(std::string_view name) {
  const auto found =
      std::ranges::find_if(kTypes, [&](std::string_view type) { return EqualNames(type, name); });
  return found == kTypes.end() ? 0 : static_cast<int>(found - kTypes.begin());
}

int TypeIn(ComponentFile& file, int type) {
  const bool isMdi = EqualNames(file.Source().ObjectClass(), "VB.MDIForm");
  return type == component_type::kForm && isMdi ? component_type::kMdiForm : type;
}

std::shared_ptr<WorkComponent> ComponentIn(ComponentFile file, int type) {
  auto module =
      std::make_shared<MemoryCodeModule>(file.Source().ModuleName(), file.Source().TakeText());
  const int ownType = TypeIn(file, type);
  return std::make_shared<WorkComponent>(ownType, std::move(module), std::move(file));
}

std::string NameOf(const ProjectDocument& document) {
  const std::string name = document.Value("Name");
  return name.empty() ? document.Path().stem().string() : name;
}

}  // namespace

WorkProject::WorkProject(std::string name)
    : MemoryProject([this] { return projectName_; }), projectName_(std::move(name)) {}

std::shared_ptr<WorkProject> WorkProject::Read(const fs::path& path) {
  const ProjectDocument document = ProjectDocument::Read(path);
  auto project = std::make_shared<WorkProject>(NameOf(document));
  project->path_ = path;
  project->type_ = TypeOf(document.Value("Type"));
  project->description = document.Value("Description");
  project->helpFile = document.Value("HelpFile");
  for (const ProjectEntry& entry : document.Entries()) {
    if (HasCode(entry.type)) {
      project->Add(ComponentIn(ComponentFile::Read(document.FileOf(entry)), entry.type));
    } else {
      project->Add(std::make_shared<WorkComponent>(entry.type, entry.file));
    }
  }
  return project;
}

std::shared_ptr<WorkProject> WorkProject::OfFile(const fs::path& path) {
  const ComponentKind* kind = KindOfExtension(path.extension().string());
  if (kind == nullptr) {
    throw SourceError(path.string(),
                      "this is no project and no source file; name a .vbp, .vbg, .bas, .cls, .frm, "
                      ".ctl, .pag, .dob or .dsr file");
  }
  auto project = std::make_shared<WorkProject>(kUsualName);
  project->Add(ComponentIn(ComponentFile::Read(path), kind->type));
  return project;
}

void WorkProject::SetName(std::string_view name) {
  projectName_ = name;
  if (onChange) onChange();
}

bool WorkProject::IsDirty() const {
  return std::ranges::any_of(components_,
                             [](const auto& component) { return component->IsDirty(); });
}

void WorkProject::Save() {
  for (const auto& component : components_) component->Save();
}

std::shared_ptr<MemoryComponent> WorkProject::Make(std::string name, int type,
                                                   std::string_view text) {
  auto component = ComponentIn(ComponentFile::ForNew(type, name), type);
  if (text.ends_with("\r\n")) text.remove_suffix(2);  // which would be a line more
  if (!text.empty()) component->Code()->InsertLines(1, text);
  return component;
}

void WorkProject::NoteAdded() { Refresh(); }

void WorkProject::NoteRemoved(MemoryComponent& component) {
  Refresh();
  if (onRemove) onRemove(static_cast<WorkComponent&>(component));
}

void WorkProject::NoteRenamed(MemoryComponent&) {
  if (onChange) onChange();
}

void WorkProject::Refresh() {
  components_.clear();
  for (const auto& component : All()) {
    components_.push_back(std::static_pointer_cast<WorkComponent>(component));
  }
  if (onChange) onChange();
}

}  // namespace brimwork::bench
