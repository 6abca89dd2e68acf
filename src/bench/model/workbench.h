// The stand-in environment as plain data: the projects that are open, with the files that they came
// from, and the windows, command bars and code panes around them. It knows of no screen and no COM.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/model/recent_projects.h"
#include "bench/model/work_project.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_keyboard.h"
#include "memory/memory_vbe.h"
#include "memory/usual_command_bars.h"
#include "memory/usual_windows.h"

namespace brimwork::bench {

class Workbench {
 public:
  /// Starts with the usual windows and command bars and no project.
  Workbench();
  /// What somebody still holds of its projects is on its own then.
  ~Workbench();
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  /// Opens a project (.vbp), each project of a group (.vbg) or a single source file in a project of
  /// its own, in the place of what is open, and makes it the first recent project. Throws
  /// SourceError, naming file and line, for what cannot be opened; what was open stays open then.
  void Open(const std::filesystem::path& path);

  /// The same beside what is open; the answer is what was added.
  std::vector<std::shared_ptr<WorkProject>> OpenBeside(const std::filesystem::path& path);

  /// Writes every component that was changed, each file in one step, with every byte that the
  /// editor does not show as it was. Throws SourceError for the first that cannot be written; those
  /// behind it stay changed.
  void SaveAll();

  bool HasUnsavedChanges() const;

  const std::vector<std::shared_ptr<WorkProject>>& Projects() const { return projects_; }

  /// Null while none is open.
  std::shared_ptr<WorkProject> ActiveProject() const { return activeProject_; }
  void SetActiveProject(const std::shared_ptr<WorkProject>& project);

  /// The component that the user works on; null for none.
  std::shared_ptr<WorkComponent> SelectedComponent() const { return selected_; }
  /// Makes its project the active one.
  void Select(const std::shared_ptr<WorkComponent>& component);

  /// The component of an open project with that module; null for none.
  std::shared_ptr<WorkComponent> ComponentOf(const CodeModule& module) const;
  /// Null for a component of none.
  std::shared_ptr<WorkProject> ProjectOf(const WorkComponent& component) const;

  /// The component's code window's pane: the one that is open, else a new one, whose window is
  /// opened and gets the focus. Null for a component without code.
  std::shared_ptr<MemoryCodePane> PaneOf(const std::shared_ptr<WorkComponent>& component);

  /// The component's designer: the one that is open, else a new one, which gets the focus. Null for
  /// a component that has none.
  std::shared_ptr<MemoryWindow> DesignerOf(const std::shared_ptr<WorkComponent>& component);

  /// The same without opening anything: null while none is open.
  std::shared_ptr<MemoryCodePane> OpenPaneOf(const WorkComponent& component) const;
  std::shared_ptr<MemoryWindow> OpenDesignerOf(const WorkComponent& component) const;

  /// The component whose designer the window is; null for another window.
  std::shared_ptr<WorkComponent> ComponentOfDesigner(const MemoryWindow& window) const;

  /// Paths, the latest first, at most four; what File's entries from 15 on show.
  const std::vector<std::string>& RecentProjects() const { return recent_.Paths(); }
  void SetRecentProjects(const std::vector<std::string>& paths) { recent_.Set(paths); }

  /// What picking a recent project does: Open, until the program puts something in its place that
  /// asks the user about unsaved changes first.
  std::function<void(const std::filesystem::path&)> openRecent;

  /// Ticks the toolbars' commands where their bars are shown; to be called before a menu opens.
  void TickShownToolbars();

  /// Goes up with each change of what the project window shows: projects, components, names, what
  /// is active and selected.
  std::uint64_t Revision() const { return revision_; }

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryVbe vbe{keyboard, clipboard};
  UsualWindows windows;
  UsualCommandBars& bars = windows.bars;

  /// The folder that was used last, for whoever asks the user for a file.
  std::string lastUsedPath;

 private:
  /// A designer that was opened; it may have been closed since.
  struct Designer {
    std::weak_ptr<MemoryWindow> window;
    std::shared_ptr<WorkComponent> component;
  };

  void LetProjectsGo();
  void Adopt(std::vector<std::shared_ptr<WorkProject>> projects);
  void WatchOver(WorkProject& project);
  void CloseWindowsOf(const WorkComponent& component);
  void NoteActivation(MemoryWindow& window);
  void NoteRemoval(const MemoryWindow& window);
  void NoteComponentRemoved(const WorkComponent& component);
  void OpenRecent(const std::string& path);
  void ShowCaptions();
  void ShowWindowCaptions();

  std::vector<std::shared_ptr<WorkProject>> projects_;
  std::shared_ptr<WorkProject> activeProject_;
  std::shared_ptr<WorkComponent> selected_;
  std::vector<Designer> designers_;
  bench::RecentProjects recent_;
  std::uint64_t revision_ = 0;
};

}  // namespace brimwork::bench
