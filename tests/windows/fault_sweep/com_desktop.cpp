#include "windows/fault_sweep/com_desktop.h"

#include "support/temporary_folder.h"

namespace brimwork::windows {
namespace {

Patience WithoutPauses() {
  return {{0}, [](unsigned) {}};
}

/// On the disk once for the thousands of desktops of a sweep.
struct EmptyProject {
  EmptyProject() { WriteBytes(path, "Type=Exe\r\nName=\"Project1\"\r\n"); }

  TemporaryFolder folder;
  std::filesystem::path path = folder / "Project1.vbp";
};

}  // namespace

ComDesktop::ComDesktop(DispatchFault fault) : calls(std::move(fault)) {
  session_ = bench::Session::Open(workbench, surface_, addIns_);
  vbe_ = std::make_unique<ComVbe>(InFrontOf(session_->Vbe(), calls), WithoutPauses());
  surface_.faceOnClipboard = "faces/indent";  // so that pasting one works
  workbench.clipboard.SetText(kUsersClipboard);
}

std::shared_ptr<MemoryCodePane> ComDesktop::Open(const std::string& text) {
  static const EmptyProject project1;
  workbench.Open(project1.path);
  const auto project = workbench.ActiveProject();
  project->AddModule("Module1", text);
  return workbench.PaneOf(project->Components().back());
}

Environment ComDesktop::Parts() {
  const Environment around = desktop.Parts();
  return {*vbe_,
          around.screen,
          workbench.clipboard,
          workbench.keyboard,
          around.dialogs,
          around.messageLoop,
          around.registry,
          around.settingsArea,
          around.shellFolders,
          around.clock,
          around.app,
          around.nativeWindows,
          around.dialogWindows,
          around.windowTimers,
          around.messageBoxes,
          around.formScreen,
          around.richTextBoxes,
          around.textFiles,
          wordProcessors_,
          around.shell,
          around.helpViewer,
          around.formHost};
}

std::string ComDesktop::Complaint() {
  if (calls.RanAway()) return "does not come to an end";
  if (desktop.screen.MousePointer() != mouse_pointer::kDefault) return "leaves the hourglass";
  if (desktop.screen.LockedWindow() != 0) return "leaves the window frozen";
  if (workbench.clipboard.GetText() != kUsersClipboard) return "lost the clipboard's text";
  return "";
}

}  // namespace brimwork::windows
