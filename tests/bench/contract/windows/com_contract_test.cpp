// The contract of the seam on the object model over COM, with the stand-in environment's objects
// behind it.
#include <windows.h>

#include <map>

#include "bench/automation/session.h"
#include "bench/contract/contract_environment.h"
#include "support/temporary_folder.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::contract {

/// A workbench without a screen.
class NoSurface : public bench::Surface {
 public:
  void TakeInput() override {}
  void ShowChanges() override {}
  std::intptr_t HandleOf(const MemoryWindow&) override { return 0; }
  bench::Bounds BoundsOf(const MemoryWindow&) override { return {}; }
  void SetBoundsOf(const MemoryWindow&, const bench::Bounds&) override {}
  bench::WindowState StateOf(const MemoryWindow&) override { return bench::WindowState::kNormal; }
  void SetStateOf(const MemoryWindow&, bench::WindowState) override {}
  int TopLineOf(const MemoryCodePane&) override { return 1; }
  void SetTopLineOf(const MemoryCodePane&, int) override {}
  int VisibleLinesOf(const MemoryCodePane&) override { return 20; }
  bench::Bounds BoundsOf(const MemoryCommandBar&) override { return {}; }
  bench::Bounds BoundsOf(const MemoryCommandBarControl&) override { return {}; }
  std::string FaceFromClipboard() override { return ""; }
  void FaceToClipboard(const MemoryCommandBarControl&) override {}
  void ShowPopup(MemoryCommandBar&) override {}
  void Quit() override {}
};

class NoAddIns : public bench::AddInList {
 public:
  std::vector<std::shared_ptr<bench::AddInEntry>> Entries() override { return {}; }
  void Update() override {}
};

class ComContractEnvironment : public ContractEnvironment {
 public:
  ComContractEnvironment() {
    WriteBytes(folder_ / "Project1.vbp", "Type=Exe\r\nName=\"Project1\"\r\n");
    workbench_.Open(folder_ / "Project1.vbp");
    session_ = bench::Session::Open(workbench_, surface_, addIns_);
    vbe_ = std::make_unique<windows::ComVbe>(session_->Vbe());
  }
  /// What the client held has been released by now.
  ~ComContractEnvironment() override {
    vbe_.reset();
    for (const bench::HeldObject& held : session_->Held()) {
      ADD_FAILURE() << held.references << " references to " << held.name << " are left";
    }
    session_->End();
  }

  VBE& Vbe() override { return *vbe_; }

  std::shared_ptr<CodePane> Open(const std::string& name, const TextLines& lines) override {
    const auto project = workbench_.ActiveProject();
    project->AddModule(name, JoinedLines(lines));
    workbench_.PaneOf(project->Components().back());
    return vbe_->ActiveCodePane();
  }

  bool LastProcedureHasTheLinesBelow() const override { return true; }

 private:
  TemporaryFolder folder_;
  bench::Workbench workbench_;
  NoSurface surface_;
  NoAddIns addIns_;
  std::shared_ptr<bench::Session> session_;
  std::unique_ptr<windows::ComVbe> vbe_;
};

const ContractHost kComponents{"Components",
                               [] { return std::make_unique<ComContractEnvironment>(); }};

RUN_CONTRACT_ON(kComponents);

}  // namespace brimwork::contract
