// A code window: a module's text under the lists of its procedures.
#pragma once

#include <optional>

#include "bench/screen/mdi_child.h"
#include "bench/screen/procedure_boxes.h"
#include "bench/screen/text_view.h"

namespace brimwork::bench {

class CodeWindow : public MdiChild {
 public:
  CodeWindow(const ScreenParts& parts, HWND client, std::shared_ptr<MemoryWindow> window,
             MemoryCodePane& pane);
  ~CodeWindow() override { Close(); }

  MemoryCodePane& Pane() { return pane_; }
  TextView& Text() { return *text_; }

  HWND FocusTarget() const override { return text_ ? text_->Handle() : Handle(); }
  void TakeInput() override { text_->TakeInput(); }
  void Refresh() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  void Arrange();
  void GoTo(const ListedProcedure& procedure);
  bool HandlesEvents() const;

  MemoryCodePane& pane_;                 // the window's model holds it
  std::optional<ProcedureBoxes> boxes_;  // there once the window is
  std::optional<TextView> text_;
};

}  // namespace brimwork::bench
