#include "msgbox/frmCode_layout.h"

#include "msgbox/module_source.h"

namespace brimwork {
namespace {

constexpr ControlFont kCodeFont = {.name = "Courier New", .size = 9};

}  // namespace

const FormLayout& CodeLayout() {
  static const ControlLayout kControls[] = {
      {.name = "txtCode",
       .place = {10, 10, 540, 120},
       .tabIndex = 0,
       .toolTip = "The code of your message box; copy it to where you need it",
       .font = kCodeFont,
       .isMultiLine = true,
       .scrollBars = ScrollBars::kBoth},
      {.name = "txtModule",
       .place = {10, 10, 75, 21},
       .text = kModCustomMsgBoxSource,
       .tabIndex = 1,
       .isVisible = false,
       .isMultiLine = true},
  };
  static const FormLayout kLayout = {.name = "frmCode",
                                     .caption = "MsgBox Code",
                                     .width = 560,
                                     .height = 140,
                                     .border = FormBorder::kSizable,
                                     .closesOnEscape = true,
                                     .hasMinButton = true,
                                     .hasMaxButton = true,
                                     .startUpPosition = StartUpPosition::kCenterScreen,
                                     .icon = "icon/brimwork",
                                     .controls = kControls};
  return kLayout;
}

}  // namespace brimwork
