#include "core/frmInfo.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "core/frmInfo_layout.h"
#include "environment/resume_next.h"
#include "ide_windows/modTweakWindow.h"

namespace brimwork {
namespace {

int Percentage(double current, double total) {
  if (current >= total) current = total - 1;
  const double percentage = 100 - std::floor((total - current) * 100 / total);
  // A failing step of the drawing is passed over, so without a total, or beyond the 16 bits that
  // the percentage is kept in, it stays 0.
  const bool fits = std::abs(percentage) <= std::numeric_limits<std::int16_t>::max();
  return fits ? static_cast<int>(std::clamp(percentage, 0.0, 100.0)) : 0;
}

/// The last one from current on that has the percentage of current; current itself where the
/// percentage is not the plain one of a part of a whole.
int LastWithSamePercentage(int current, int total) {
  if (current < 0 || current >= total) return current;
  const std::int64_t percentLeft = (std::int64_t{total} - current) * 100 / total;
  const std::int64_t leastLeft = (percentLeft * total + 99) / 100;
  return static_cast<int>(total - std::max<std::int64_t>(leastLeft, 1));
}

}  // namespace

frmInfo::frmInfo(const Environment& environment)
    : Form(environment.formHost, InfoLayout()), environment_(environment) {}

// The user must not close the window while a command runs.
void frmInfo::Form_Load() {
  drawn_ = {};
  UpdateProgressBar(0, 100);
  EnableCloseButton(environment_, hWnd(), false);
}

void frmInfo::LoadIfPossible() {
  ResumeNext([this] { Load(); });
}

void frmInfo::ProgressMessage(std::string_view message, std::string_view formCaption) {
  LoadIfPossible();
  lblInfo.Caption = message;
  if (!formCaption.empty()) Caption = formCaption;
  Repaint(lblInfo);
}

void frmInfo::RedrawBar(int current, int total) {
  LoadIfPossible();
  drawn_ = {current, LastWithSamePercentage(current, total), total};
  DrawBar(Percentage(current, total));
  Repaint(picProgress);
}

// The second pen inverts what the bar covers, so the text over it shows in the opposite colours.
void frmInfo::DrawBar(int percentage) {
  TakeOffBorder();
  picProgress.Tag = std::to_string(percentage);
  const std::string text = picProgress.Tag.Get() + '%';
  const int width = picProgress.ScaleWidth();
  const int height = picProgress.ScaleHeight();
  const TextExtent size = picProgress.TextSize(text);
  picProgress.Cls();
  picProgress.DrawMode = DrawMode::kCopyPen;
  picProgress.Print((width - size.width) / 2, (height - size.height) / 2, text);
  picProgress.DrawMode = DrawMode::kXorPen;
  picProgress.FillRectangle({0, 0, width * percentage / 100, height}, picProgress.BackColor);
}

/// The bar is drawn on a box without a border; what lies inside the border stays where it is.
void frmInfo::TakeOffBorder() {
  if (picProgress.BorderStyle == border_style::kNone) return;
  const int width = picProgress.ScaleWidth();
  const int height = picProgress.ScaleHeight();
  const int left = picProgress.Left + (picProgress.Width - width) / 2;
  const int top = picProgress.Top + (picProgress.Height - height) / 2;
  picProgress.BorderStyle = border_style::kNone;
  picProgress.Move(left, top, width, height);
}

void frmInfo::ResetProgressBar() {
  ProgressMessage("Processing Request...Please Wait", "Processing...");
  UpdateProgressBar(0, 100);
}

void frmInfo::Show() {
  ResumeNext([this] { Form::Show(); });
  TellOfRepaint();
}

void frmInfo::Hide() {
  Form::Hide();
  TellOfRepaint();
}

void frmInfo::Repaint(Control& control) {
  control.Refresh();
  TellOfRepaint();
}

}  // namespace brimwork
