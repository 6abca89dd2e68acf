// A designer: the form as a dotted surface under its caption.
#pragma once

#include "bench/screen/mdi_child.h"

namespace brimwork::bench {

class DesignerWindow : public MdiChild {
 public:
  DesignerWindow(const ScreenParts& parts, HWND client, std::shared_ptr<MemoryWindow> window);
  ~DesignerWindow() override { Close(); }

  void Refresh() override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  std::string CurrentCaption() const;
  void Paint();
  void PaintForm(HDC context, const RECT& form) const;

  std::string caption_;  // of the form, as it is shown
};

}  // namespace brimwork::bench
