// Custom message boxes over a form in memory, shown by the add-in's code and by the Visual Basic
// module in turn.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "memory/memory_environment.h"
#include "support/special_box.h"

namespace brimwork {

struct SpecialBoxFixture : MemoryEnvironment, testing::TestWithParam<Copy> {
  SpecialBoxFixture() { formScreen.activeForm = form; }

  int Show(SpecialBox& box) { return boxes->Show(box); }
  int Show(SpecialBox&& box) { return boxes->Show(box); }

  /// The box that was up last.
  const ShownMessageBox& Last() const { return messageBoxes.Shown().back(); }

  WindowRectangle LastPlace() const {
    const WindowArea& area = Last().window.area;
    return {area.left, area.top, area.left + area.width, area.top + area.height};
  }

  /// The captions of its controls behind the prompt.
  std::vector<std::string> LastCaptions() const {
    std::vector<std::string> captions;
    for (std::size_t i = 1; i < Last().controls.size(); ++i) {
      captions.push_back(Last().controls[i].text);
    }
    return captions;
  }

  WindowHandle owner = nativeWindows.Add({.className = "ThunderForm", .text = "Stock"});
  std::shared_ptr<MemoryScreenForm> form = std::make_shared<MemoryScreenForm>(owner);
  std::unique_ptr<SpecialBoxes> boxes = MakeSpecialBoxes(GetParam(), Parts());
};

inline std::string CopyName(const testing::TestParamInfo<Copy>& copy) {
  return copy.param == Copy::kAddIn ? "AddIn" : "VisualBasicModule";
}

}  // namespace brimwork
