#include "core/frmInfo.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

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

void frmInfo::ProgressMessage(std::string_view message, std::string_view formCaption) {
  lblInfo.Caption = message;
  if (!formCaption.empty()) Caption = formCaption;
  Repaint();
}

void frmInfo::UpdateProgressBar(int current, int total) {
  if (drawn_.Holds(current, total)) return;
  drawn_ = {current, LastWithSamePercentage(current, total), total};
  picProgress.Tag = std::to_string(Percentage(current, total));
  picProgress.Text = picProgress.Tag + '%';
  Repaint();
}

void frmInfo::ResetProgressBar() {
  ProgressMessage("Processing Request...Please Wait", "Processing...");
  UpdateProgressBar(0, 100);
}

void frmInfo::Show() {
  Visible = true;
  Repaint();
}

void frmInfo::Hide() {
  Visible = false;
  Repaint();
}

}  // namespace brimwork
