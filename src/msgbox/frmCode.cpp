#include "msgbox/frmCode.h"

#include <algorithm>

#include "msgbox/frmCode_layout.h"

namespace brimwork {
namespace {

constexpr int kMargin = 10;

}  // namespace

frmCode::frmCode(FormHost& host) : Form(host, CodeLayout()) {}

void frmCode::Form_Load() { FitCodeToForm(); }

void frmCode::Form_Resize() { FitCodeToForm(); }

// A form that is smaller than its margins has no room for code.
void frmCode::FitCodeToForm() {
  txtCode.Move(kMargin, kMargin, std::max(ScaleWidth() - 2 * kMargin, 0),
               std::max(ScaleHeight() - 2 * kMargin, 0));
}

}  // namespace brimwork
