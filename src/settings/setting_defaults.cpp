// The templates are put together by the compiler, so that they can be used while other constants
// are still being initialised.
#include "settings/setting_defaults.h"

#include <array>

namespace brimwork {
namespace {

// "Useage" is how headers already standing in users' modules spell it, and the clean-up knows a
// header by its text.

constexpr std::array<std::string_view, 8> kStandardHeaderLines{
    kSeparatorLine,
    "'  Code Page Name",
    "'  Description and Useage",
    kSeparatorLine,
    "'  Created By: Your Name Here",
    "'  Published Date: Release Date",
    "'  WebSite: Website Name and Address",
    kSeparatorLine,
};

constexpr std::array<std::string_view, 11> kAdaptedHeaderLines{
    kSeparatorLine,
    "'  Code Page Name",
    "'  Description and Useage",
    kSeparatorLine,
    "'  Adapted and Modified By: Your Name Here",
    "'  Published Date: Release Date",
    "'  WebSite: Website Name and Address",
    kSeparatorLine,
    "'  Based On: Description of Work Based On",
    "'  WebSite: Website Name and Address of Original Writer",
    kSeparatorLine,
};

constexpr std::string_view kLineEnd = "\r\n";

template <const auto& kLines>
constexpr std::size_t JoinedSize() {
  std::size_t size = (kLines.size() - 1) * kLineEnd.size();
  for (const std::string_view line : kLines) size += line.size();
  return size;
}

template <const auto& kLines>
constexpr auto JoinLines() {
  std::array<char, JoinedSize<kLines>()> text{};
  std::size_t at = 0;
  for (const std::string_view line : kLines) {
    for (const char c : at == 0 ? std::string_view{} : kLineEnd) text[at++] = c;
    for (const char c : line) text[at++] = c;
  }
  return text;
}

constexpr auto kStandardHeaderText = JoinLines<kStandardHeaderLines>();
constexpr auto kAdaptedHeaderText = JoinLines<kAdaptedHeaderLines>();

}  // namespace

constinit const std::string_view kStandardHeaderTemplate{kStandardHeaderText.data(),
                                                         kStandardHeaderText.size()};
constinit const std::string_view kAdaptedHeaderTemplate{kAdaptedHeaderText.data(),
                                                        kAdaptedHeaderText.size()};

}  // namespace brimwork
