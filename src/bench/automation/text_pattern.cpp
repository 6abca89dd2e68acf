#include "bench/automation/text_pattern.h"

#include <windows.h>

#include <algorithm>

#include "environment/run_time_error.h"
#include "environment/utf8.h"

namespace brimwork::bench {

std::u32string CharactersOf(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::u32string characters;
  while (!text.empty()) {
    const std::size_t size = Utf8Size(text);
    characters.push_back(size == 0 ? kReplacement : Utf8Character(text));
    text.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return characters;
}

void FoldCase(std::u32string& text) {
  for (char32_t& character : text) {
    if (character > 0xFFFF) continue;
    const auto unit = static_cast<ULONG_PTR>(character);
    character = static_cast<char32_t>(
        reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<LPWSTR>(unit))));
  }
}

TextPattern::TextPattern(std::u32string text) {
  FoldCase(text);
  constexpr Range kAny{0, 0x10FFFF};
  for (std::size_t at = 0; at < text.size(); ++at) {
    switch (text[at]) {
      case U'*':
        steps_.push_back({Step::Kind::kRun, {}});
        break;
      case U'?':
        steps_.push_back({Step::Kind::kOneOf, {kAny}});
        break;
      case U'#':
        steps_.push_back({Step::Kind::kOneOf, {{U'0', U'9'}}});
        break;
      case U'[':
        steps_.push_back(ListAt(text, at));
        break;
      default:
        steps_.push_back({Step::Kind::kOneOf, {{text[at], text[at]}}});
    }
  }
}

/// at: of the opening bracket; of the closing one afterwards.
TextPattern::Step TextPattern::ListAt(std::u32string_view text, std::size_t& at) const {
  const std::size_t close = text.find(U']', at + 1);
  if (close == text.npos) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid pattern string");
  }
  std::u32string_view list = text.substr(at + 1, close - at - 1);
  at = close;
  Step step{Step::Kind::kOneOf, {}};
  if (list.starts_with(U'!')) {
    step.kind = Step::Kind::kNoneOf;
    list.remove_prefix(1);
  }
  for (std::size_t index = 0; index < list.size(); ++index) {
    const bool isRange = index + 2 < list.size() && list[index + 1] == U'-';
    step.ranges.push_back({list[index], list[isRange ? index + 2 : index]});
    if (isRange) index += 2;
  }
  return step;
}

bool TextPattern::Matches(const Step& step, char32_t character) {
  const bool isListed = std::ranges::any_of(step.ranges, [&](const Range& range) {
    return range.first <= character && character <= range.last;
  });
  return isListed == (step.kind == Step::Kind::kOneOf);
}

std::optional<std::size_t> TextPattern::MatchAt(std::u32string_view text, std::size_t start,
                                                std::size_t end) const {
  const auto behind = MatchSteps(0, text, start, end);
  if (!behind) return std::nullopt;
  return *behind - start;
}

/// Where the match of the steps from one on, which starts at a character, ends.
std::optional<std::size_t> TextPattern::MatchSteps(std::size_t step, std::u32string_view text,
                                                   std::size_t at, std::size_t end) const {
  if (step == steps_.size()) return at;
  if (steps_[step].kind != Step::Kind::kRun) {
    if (at >= end || !Matches(steps_[step], text[at])) return std::nullopt;
    return MatchSteps(step + 1, text, at + 1, end);
  }
  for (; at <= end; ++at) {
    if (const auto behind = MatchSteps(step + 1, text, at, end)) return behind;
  }
  return std::nullopt;
}

}  // namespace brimwork::bench
