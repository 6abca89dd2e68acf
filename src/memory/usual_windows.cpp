#include "memory/usual_windows.h"

namespace brimwork {
UsualWindows AddUsualWindows(MemoryVbe& vbe) {
  UsualWindows usual;
  usual.project = vbe.windows.Add("Project - Project1", window_type::kProject);
  usual.properties = vbe.windows.Add("Properties - Module1", window_type::kProperties);
  usual.toolbox = vbe.windows.Add("Toolbox", window_type::kToolbox);
  usual.immediateText = std::make_shared<MemoryTextWindow>();
  usual.immediate = vbe.windows.Add("Immediate", window_type::kImmediate, usual.immediateText);
  usual.locals = vbe.windows.Add("Locals", window_type::kLocals);
  usual.watch = vbe.windows.Add("Watches", window_type::kWatch);
  usual.locals->SetVisible(false);
  usual.watch->SetVisible(false);

  usual.bars = AddUsualCommandBars(vbe);
  return usual;
}

}  // namespace brimwork
