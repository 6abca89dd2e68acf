#include "memory/usual_windows.h"

#include <string>
#include <utility>

namespace brimwork {
namespace {

std::shared_ptr<MemoryCommandBar> AddBar(MemoryVbe& vbe, std::string name) {
  auto bar = std::make_shared<MemoryCommandBar>(std::move(name));
  vbe.AddCommandBar(bar);
  return bar;
}

}  // namespace

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

  usual.standardBar = AddBar(vbe, "Standard");
  usual.editBar = AddBar(vbe, "Edit");
  usual.debugBar = AddBar(vbe, "Debug");
  usual.debugBar->SetVisible(false);
  return usual;
}

}  // namespace brimwork
