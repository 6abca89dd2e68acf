#include "bench/model/work_project.h"

#include <algorithm>
#include <array>
#include <utility>

#include "bench/model/component_kind.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "memory/listed_path.h"
#include "memory/project_lines.h"
#include "memory/source_error.h"
#include "memory/utf8_path.h"

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

/// What the file of a new component is called.
std::string NewFileName(const WorkComponent& component) {
  return component.LastName() + std::string(KindOfType(component.Kind()).extension);
}

std::string NameOf(const ProjectDocument& document) {
  const std::string name = document.Value("Name");
  return name.empty() ? document.Path().stem().string() : name;
}

}  // namespace

WorkProject::WorkProject(std::string name)
    : MemoryProject([this] { return projectName_; }), projectName_(std::move(name)) {}

WorkProject::WorkProject(ProjectDocument document) : WorkProject(NameOf(document)) {
  document_ = std::make_unique<ProjectDocument>(std::move(document));
  type_ = TypeOf(document_->Value("Type"));
  description = document_->Value("Description");
  helpFile = document_->Value("HelpFile");
}

std::shared_ptr<WorkProject> WorkProject::Read(const fs::path& path) {
  auto project = std::make_shared<WorkProject>(ProjectDocument::Read(path));
  for (const ProjectEntry& entry : project->document_->Entries()) project->AddListed(entry);
  return project;
}

std::shared_ptr<WorkProject> WorkProject::OfFile(const fs::path& path) {
  auto project = std::make_shared<WorkProject>(kUsualName);
  project->AddFile(path);
  return project;
}

void WorkProject::SetName(std::string_view name) {
  if (!IsComponentName(name)) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       '"' + std::string(name) + "\" is no name for a project");
  }
  projectName_ = name;
  if (onChange) onChange();
}

fs::path WorkProject::Path() const { return document_ ? document_->Path() : fs::path(); }

bool WorkProject::IsDirty() const {
  return IsFileDirty() || std::ranges::any_of(components_, [](const auto& component) {
           return component->IsDirty();
         });
}

void WorkProject::Save() {
  const auto components = components_;
  for (const auto& component : components) Save(*component);
  if (IsFileDirty()) SaveFile();
  if (onChange) onChange();
}

void WorkProject::Save(WorkComponent& component) {
  if (component.Code() == nullptr) return;
  if (!component.Path().empty()) return component.Save();
  component.SaveAsNew(Folder() / PathOf(NewFileName(component)));
}

std::shared_ptr<WorkComponent> WorkProject::AddFile(const fs::path& path) {
  const ComponentKind* kind = KindOfExtension(path.extension().string());
  if (kind == nullptr) {
    throw SourceError(path.string(),
                      "this is no source file; name a .bas, .cls, .frm, .ctl, .pag, .dob or .dsr "
                      "file");
  }
  auto component = ComponentIn(ComponentFile::Read(path), kind->type);
  if (ComponentOfName(component->LastName()) != nullptr) {
    throw RunTimeError(error_number::kNameConflict,
                       "another component has the name \"" + component->LastName() + '"');
  }
  Add(component);
  return component;
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

void WorkProject::AddListed(const ProjectEntry& entry) {
  auto component = HasCode(entry.type) ? CodeListed(entry) : FileListed(entry);
  component->SetListed({component->LastName(), entry.file});
  Add(std::move(component));
}

std::shared_ptr<WorkComponent> WorkProject::CodeListed(const ProjectEntry& entry) const {
  auto component = ComponentIn(ComponentFile::Read(document_->FileOf(entry)), entry.type);
  if (ComponentOfName(component->LastName()) == nullptr) return component;
  throw SourceError(Path().string(), entry.line, 1,
                    "another component has the name \"" + component->LastName() + '"');
}

/// A file that the project only lists need not be there.
std::shared_ptr<WorkComponent> WorkProject::FileListed(const ProjectEntry& entry) const {
  return std::make_shared<WorkComponent>(entry.type, std::string(ListedFileName(entry.file)),
                                         ResolveListedPath(Folder(), entry.file).path);
}

void WorkProject::Refresh() {
  components_.clear();
  for (const auto& component : All()) {
    components_.push_back(std::static_pointer_cast<WorkComponent>(component));
  }
  if (onChange) onChange();
}

/// Where new files go.
fs::path WorkProject::Folder() const {
  if (document_) return document_->Path().parent_path();
  for (const auto& component : components_) {
    if (!component->Path().empty()) return component->Path().parent_path();
  }
  return fs::current_path();
}

std::vector<ComponentListing> WorkProject::Listings() const {
  std::vector<ComponentListing> listings;
  const fs::path folder = Folder();
  for (const auto& component : components_) {
    listings.push_back({component->Kind(), component->Listed(), component->ListingIn(folder)});
  }
  return listings;
}

bool WorkProject::IsFileDirty() const {
  if (!document_) return false;
  const std::vector<ComponentListing> listings = Listings();
  return projectName_ != NameOf(*document_) || description != document_->Value("Description") ||
         helpFile != document_->Value("HelpFile") ||
         listings.size() != document_->Entries().size() ||
         std::ranges::any_of(listings, [](const ComponentListing& listing) {
           return listing.before != listing.now;
         });
}

std::string WorkProject::FileText(const std::vector<ComponentListing>& listings) const {
  std::string text = WithListings(document_->Text(), listings);
  const auto put = [&](std::string_view key, const std::string& before, const std::string& now) {
    if (before != now) text = WithProjectValue(text, key, now);
  };
  put("Name", NameOf(*document_), projectName_);
  put("Description", document_->Value("Description"), description);
  put("HelpFile", document_->Value("HelpFile"), helpFile);
  return text;
}

void WorkProject::SaveFile() {
  const std::vector<ComponentListing> listings = Listings();
  document_->Write(FileText(listings));
  for (std::size_t i = 0; i < listings.size(); ++i) components_[i]->SetListed(listings[i].now);
}

}  // namespace brimwork::bench
