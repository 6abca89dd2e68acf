#include "bench/screen/project_tree.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "bench/screen/flag_scope.h"
#include "bench/screen/glyphs.h"
#include "bench/screen/picture_painter.h"
#include "environment/vbe.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr COLORREF kUnused = RGB(255, 0, 255);  // in no glyph: stands for see-through
constexpr int kProjectImage = 0;
constexpr int kFolderImage = 1;

struct Folder {
  const char* title;
  bool (*holds)(int componentType);
};

bool IsForm(int type) { return type == component_type::kForm || type == component_type::kMdiForm; }
bool IsModule(int type) { return type == component_type::kStandardModule; }
bool IsClass(int type) { return type == component_type::kClassModule; }
bool IsUserControl(int type) { return type == component_type::kUserControl; }
bool IsPropertyPage(int type) { return type == component_type::kPropertyPage; }
bool IsUserDocument(int type) { return type == component_type::kUserDocument; }
bool IsDesigner(int type) { return type == component_type::kDesigner; }
bool IsDocument(int type) {
  return type == component_type::kResourceFile || type == component_type::kRelatedDocument;
}

constexpr Folder kFolders[] = {{"Forms", IsForm},
                               {"Modules", IsModule},
                               {"Class Modules", IsClass},
                               {"User Controls", IsUserControl},
                               {"Property Pages", IsPropertyPage},
                               {"User Documents", IsUserDocument},
                               {"Designers", IsDesigner},
                               {"Related Documents", IsDocument}};

std::string FileNameOf(const std::filesystem::path& path) {
  const auto name = path.filename().u8string();
  return std::string(name.begin(), name.end());
}

std::string Labelled(const std::string& name, const std::filesystem::path& path) {
  const std::string file = path.empty() ? name : FileNameOf(path);
  return name + " (" + file + ")";
}

int AddImage(HIMAGELIST images, Glyph glyph) {
  return ImageList_AddMasked(images, BitmapOf(Drawn(glyph), kUnused).get(), kUnused);
}

std::string Outline(const Workbench& bench) {
  std::string outline;
  for (const auto& project : bench.Projects()) {
    outline += Labelled(project->Name(), project->Path()) + "\n";
    for (const auto& component : project->Components()) {
      outline += "  " + Labelled(component->LastName(), component->Path()) + "\n";
    }
  }
  return outline;
}

}  // namespace

ProjectTree::ProjectTree(const ScreenParts& parts, const ToolWindow& owner)
    : parts_(parts), images_(ImageList_Create(16, 16, ILC_COLOR24 | ILC_MASK, 8, 8)) {
  Create(
      owner.Handle(), WC_TREEVIEWW,
      WS_VISIBLE | WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS,
      0, parts.fonts.Plain());
  AddImage(images_, ProjectGlyph());
  AddImage(images_, FolderGlyph());
  SendMessageW(Handle(), TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_));
}

ProjectTree::~ProjectTree() { ImageList_Destroy(images_); }

void ProjectTree::Refresh() {
  if (isFilled_ && revision_ == parts_.bench.Revision()) return;
  revision_ = parts_.bench.Revision();
  const FlagScope filling(isFilling_);
  std::string outline = Outline(parts_.bench);
  if (!isFilled_ || outline != shown_) Rebuild();
  shown_ = std::move(outline);
  isFilled_ = true;
  SelectChosen();
}

void ProjectTree::Rebuild() {
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  SendMessageW(Handle(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  entries_.clear();
  for (const auto& project : parts_.bench.Projects()) AddProject(project);
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ProjectTree::AddProject(const std::shared_ptr<WorkProject>& project) {
  const auto expand = [this](HTREEITEM item) {
    SendMessageW(Handle(), TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
  };
  const HTREEITEM root = Add(TVI_ROOT, Labelled(project->Name(), project->Path()), kProjectImage,
                             {.project = project});
  for (const Folder& folder : kFolders) {
    HTREEITEM within = nullptr;
    for (const auto& component : project->Components()) {
      if (!folder.holds(component->Kind())) continue;
      if (within == nullptr) within = Add(root, folder.title, kFolderImage, {.project = project});
      Add(within, Labelled(component->LastName(), component->Path()), ImageOf(component->Kind()),
          {.project = project, .component = component});
    }
    if (within != nullptr) expand(within);
  }
  expand(root);
}

HTREEITEM ProjectTree::Add(HTREEITEM parent, const std::string& text, int image,
                           const Entry& entry) {
  std::wstring wide = win32::Wide(text);
  TVINSERTSTRUCTW inserted{};
  inserted.hParent = parent;
  inserted.hInsertAfter = TVI_LAST;
  inserted.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
  inserted.item.pszText = wide.data();
  inserted.item.iImage = image;
  inserted.item.iSelectedImage = image;
  inserted.item.lParam = static_cast<LPARAM>(entries_.size());
  entries_.push_back(entry);
  entries_.back().item = reinterpret_cast<HTREEITEM>(
      SendMessageW(Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&inserted)));
  return entries_.back().item;
}

int ProjectTree::ImageOf(int componentType) {
  const auto known = imageOfType_.find(componentType);
  if (known != imageOfType_.end()) return known->second;
  return imageOfType_[componentType] = AddImage(images_, ComponentGlyph(componentType));
}

std::optional<LRESULT> ProjectTree::OnNotify(const NMHDR& note) {
  if (note.hwndFrom != Handle()) return std::nullopt;
  if (note.code == static_cast<UINT>(TVN_SELCHANGEDW) && !isFilling_) {
    const Entry* chosen = Chosen();
    if (chosen != nullptr) {
      parts_.host.Do([&bench = parts_.bench, entry = *chosen] {
        if (entry.component) return bench.Select(entry.component);
        bench.SetActiveProject(entry.project);
      });
    }
  }
  if (note.code == static_cast<UINT>(NM_DBLCLK)) OpenChosen();
  return std::nullopt;
}

LRESULT ProjectTree::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  if (message == WM_KEYDOWN && wide == VK_RETURN) {
    OpenChosen();
    return 0;
  }
  if (message == WM_CONTEXTMENU) {
    OpenMenu(longer);
    return 0;
  }
  if (message == WM_CHAR && wide == VK_RETURN) return 0;  // the tree would beep
  return Default(message, wide, longer);
}

// A click with the right button chooses what it is on; the keyboard's key for the menu gives no
// place.
void ProjectTree::OpenMenu(LPARAM longer) {
  POINT place{GET_X_LPARAM(longer), GET_Y_LPARAM(longer)};
  if (longer == -1) {
    place = {0, 0};
    ClientToScreen(Handle(), &place);
  } else {
    TVHITTESTINFO hit{place, 0, nullptr};
    ScreenToClient(Handle(), &hit.pt);
    SendMessageW(Handle(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (hit.hItem != nullptr) {
      SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
    }
  }
  parts_.host.OpenMenu(parts_.bench.bars.projectWindow->Entries(), place);
}

void ProjectTree::OpenChosen() {
  const Entry* chosen = Chosen();
  if (chosen == nullptr || chosen->component == nullptr) return;
  parts_.host.Do([&bench = parts_.bench, component = chosen->component] {
    if (const auto designer = bench.DesignerOf(component)) {
      designer->SetFocus();
    } else if (const auto pane = bench.PaneOf(component)) {
      pane->ContainingWindow()->SetFocus();
    }
  });
}

const ProjectTree::Entry* ProjectTree::Chosen() const {
  TVITEMW item{};
  item.mask = TVIF_PARAM;
  item.hItem = reinterpret_cast<HTREEITEM>(SendMessageW(Handle(), TVM_GETNEXTITEM, TVGN_CARET, 0));
  if (item.hItem == nullptr) return nullptr;
  SendMessageW(Handle(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  return &entries_[static_cast<std::size_t>(item.lParam)];
}

/// Marks what is selected in the workbench.
void ProjectTree::SelectChosen() {
  const auto selected = parts_.bench.SelectedComponent();
  const Entry* chosen = Chosen();
  if (selected == nullptr || (chosen != nullptr && chosen->component == selected)) return;
  const auto entry = std::ranges::find(entries_, selected, &Entry::component);
  if (entry == entries_.end()) return;
  SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(entry->item));
}

}  // namespace brimwork::bench
