// A box that holds a picture, other controls, or what code draws into it. What is drawn is kept as
// data until it is cleared, so a host can paint it whenever the window needs it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "environment/control.h"
#include "environment/form_host.h"

namespace brimwork {

/// How a colour meets what is painted already.
enum class DrawMode { kXorPen = 7, kCopyPen = 13 };

/// Positions count from the inner corner of the box, in pixels.
struct FilledRectangle {
  Place place;
  Color color = 0;
  DrawMode mode = DrawMode::kCopyPen;
  bool operator==(const FilledRectangle&) const = default;
};

struct DrawnText {
  int left = 0;
  int top = 0;
  std::string text;
  Color color = 0;
  DrawMode mode = DrawMode::kCopyPen;
  bool operator==(const DrawnText&) const = default;
};

using DrawingCommand = std::variant<FilledRectangle, DrawnText>;

class PictureBox : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kPictureBox; }

  /// The size inside the border.
  int ScaleWidth() const { return Width - 2 * BorderWidth(); }
  int ScaleHeight() const { return Height - 2 * BorderWidth(); }

  /// The size of one line of text in the box's font.
  TextExtent TextSize(std::string_view text) const;

  /// Clears the box to its back colour.
  void Cls();
  void FillRectangle(const Place& place, Color color);
  /// Writes in the fore colour; left and top are the corner of the text.
  void Print(int left, int top, std::string_view text);

  /// What has been drawn since the last Cls, in order, over the back colour and the picture.
  const std::vector<DrawingCommand>& Drawing() const { return drawing_; }

  /// What the user does.
  void Click() {
    if (IsReached()) Raise(OnClick);
  }

  TextProperty Picture{*this, PropertyId::kPicture};  // name of the resource
  Property<int> BorderStyle{*this, PropertyId::kBorderStyle, border_style::kFixedSingle};

  /// For what is drawn from now on.
  brimwork::DrawMode DrawMode = brimwork::DrawMode::kCopyPen;

  std::function<void()> OnClick;

 protected:
  void Design(const ControlLayout& layout) override;

 private:
  static constexpr int kBorderPixels = 2;

  int BorderWidth() const { return BorderStyle == border_style::kNone ? 0 : kBorderPixels; }
  void Draw(DrawingCommand command);

  std::vector<DrawingCommand> drawing_;
};

}  // namespace brimwork
