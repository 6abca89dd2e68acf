#include "bench/screen/desk.h"

#include "bench/screen/native_bounds.h"

namespace brimwork::bench {

void Desk::Arrange() {
  RECT room{};
  GetClientRect(frame_, &room);
  const Bounds inner = bars_.Arrange(BoundsOf(room));
  plan_ = PlanPanels(tools_.Shown(), sizes_, inner);
  tools_.Arrange(plan_);
  const Bounds& middle = plan_.workspace;
  MoveWindow(client_, middle.left, middle.top, middle.width, middle.height, TRUE);
}

void Desk::OnMouse(UINT message, POINT place) {
  switch (message) {
    case WM_LBUTTONDOWN:
      dragged_ = GapAt(place);
      start_ = place;
      sizesAtStart_ = sizes_;
      if (dragged_) SetCapture(frame_);
      break;
    case WM_MOUSEMOVE:
      if (!dragged_) break;
      sizes_ = Dragged(sizesAtStart_, *dragged_, static_cast<int>(place.x - start_.x),
                       static_cast<int>(place.y - start_.y));
      Arrange();
      break;
    case WM_LBUTTONUP:
      if (dragged_) ReleaseCapture();
      break;
    default:
      dragged_ = std::nullopt;
  }
}

HCURSOR Desk::CursorAt(POINT place) const {
  const auto gap = GapAt(place);
  if (!gap) return nullptr;
  return LoadCursorW(nullptr, *gap == Gap::kRight ? IDC_SIZEWE : IDC_SIZENS);
}

std::optional<Gap> Desk::GapAt(POINT place) const {
  for (const auto& [gap, bounds] : plan_.gaps) {
    const RECT area = RectOf(bounds);
    if (PtInRect(&area, place)) return gap;
  }
  return std::nullopt;
}

}  // namespace brimwork::bench
