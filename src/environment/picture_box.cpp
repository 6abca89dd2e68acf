#include "environment/picture_box.h"

#include <utility>

#include "environment/form.h"

namespace brimwork {

TextExtent PictureBox::TextSize(std::string_view text) const {
  return Parent().Measure(text, Font);
}

void PictureBox::Cls() {
  drawing_.clear();
  Changed(PropertyId::kDrawing);
}

void PictureBox::FillRectangle(const Place& place, Color color) {
  Draw(FilledRectangle{place, color, DrawMode});
}

void PictureBox::Print(int left, int top, std::string_view text) {
  Draw(DrawnText{left, top, std::string(text), ForeColor, DrawMode});
}

void PictureBox::Draw(DrawingCommand command) {
  drawing_.push_back(std::move(command));
  Changed(PropertyId::kDrawing);
}

void PictureBox::Design(const ControlLayout& layout) {
  Control::Design(layout);
  Picture.Preset(layout.picture);
  BorderStyle.Preset(layout.borderStyle.value_or(border_style::kFixedSingle));
  DrawMode = brimwork::DrawMode::kCopyPen;
  drawing_.clear();
}

}  // namespace brimwork
