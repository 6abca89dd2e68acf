// The contract of the seam on the environment of plain data.
#include <utility>

#include "bench/contract/contract_environment.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_keyboard.h"
#include "memory/memory_vbe.h"
#include "memory/usual_windows.h"

namespace brimwork::contract {

class MemoryContractEnvironment : public ContractEnvironment {
 public:
  MemoryContractEnvironment() {
    AddUsualWindows(vbe_);
    vbe_.SetProject(project_);
  }

  VBE& Vbe() override { return vbe_; }

  std::shared_ptr<CodePane> Open(const std::string& name, const TextLines& lines) override {
    const auto component = project_->AddModule(name, JoinedLines(lines));
    const auto pane = std::make_shared<MemoryCodePane>(component->Code());
    vbe_.OpenPane(pane, name + " (Code)");
    return pane;
  }

  bool LastProcedureHasTheLinesBelow() const override { return false; }

 private:
  MemoryClipboard clipboard_;
  MemoryKeyboard keyboard_{clipboard_};
  MemoryVbe vbe_{keyboard_, clipboard_};
  std::shared_ptr<MemoryProject> project_ =
      std::make_shared<MemoryProject>([] { return std::string("Project1"); });
};

const ContractHost kPlainData{"PlainData",
                              [] { return std::make_unique<MemoryContractEnvironment>(); }};

RUN_CONTRACT_ON(kPlainData);

}  // namespace brimwork::contract
