#include "memory/rtf_words.h"

#include <array>
#include <cstdint>

namespace brimwork {
namespace {

using Content = RtfContent;
namespace to = rtf_destination;

struct NamedWord {
  std::string_view name;
  RtfWord word;
};

constexpr std::array kWords = std::to_array<NamedWord>({
    {"f", {&Content::SetFont, {}}},
    {"fs", {&Content::SetFontSize, {}}},
    {"cf", {&Content::SetColor, {}}},
    {"plain", {&Content::SetPlain, 0}},

    {"par", {&Content::EndParagraph, 0}},
    {"sect", {&Content::EndParagraph, 0}},
    {"row", {&Content::EndParagraph, 0}},
    {"line", {&Content::EndLine, 0}},

    {"tab", {&Content::AppendCharacter, '\t'}},
    {"cell", {&Content::AppendCharacter, '\t'}},
    {"emdash", {&Content::AppendCharacter, 0x2014}},
    {"endash", {&Content::AppendCharacter, 0x2013}},
    {"emspace", {&Content::AppendCharacter, 0x2003}},
    {"enspace", {&Content::AppendCharacter, 0x2002}},
    {"bullet", {&Content::AppendCharacter, 0x2022}},
    {"lquote", {&Content::AppendCharacter, 0x2018}},
    {"rquote", {&Content::AppendCharacter, 0x2019}},
    {"ldblquote", {&Content::AppendCharacter, 0x201C}},
    {"rdblquote", {&Content::AppendCharacter, 0x201D}},

    {"u", {&Content::TakeUtf16, {}}},
    {"uc", {&Content::SetFallbackSize, {}}},
    {"ansicpg", {&Content::SetCodePage, {}}},
    {"mac", {&Content::SetCodePage, 10000}},
    {"pc", {&Content::SetCodePage, 437}},
    {"pca", {&Content::SetCodePage, 850}},

    {"fonttbl", {&Content::SetDestination, to::kFontTable}},
    {"deff", {&Content::SetPlainFont, {}}},
    {"fcharset", {&Content::SetCharset, {}}},
    {"cpg", {&Content::SetFontCodePage, {}}},
    {"colortbl", {&Content::SetDestination, to::kColorTable}},
    {"red", {&Content::SetRed, {}}},
    {"green", {&Content::SetGreen, {}}},
    {"blue", {&Content::SetBlue, {}}},

    {"filetbl", {&Content::SetDestination, to::kNone}},
    {"footer", {&Content::SetDestination, to::kNone}},
    {"footerf", {&Content::SetDestination, to::kNone}},
    {"footerl", {&Content::SetDestination, to::kNone}},
    {"footerr", {&Content::SetDestination, to::kNone}},
    {"footnote", {&Content::SetDestination, to::kNone}},
    {"header", {&Content::SetDestination, to::kNone}},
    {"headerf", {&Content::SetDestination, to::kNone}},
    {"headerl", {&Content::SetDestination, to::kNone}},
    {"headerr", {&Content::SetDestination, to::kNone}},
    {"info", {&Content::SetDestination, to::kNone}},
    {"nonshppict", {&Content::SetDestination, to::kNone}},
    {"pict", {&Content::SetDestination, to::kNone}},
    {"stylesheet", {&Content::SetDestination, to::kNone}},
    {"tc", {&Content::SetDestination, to::kNone}},
    {"xe", {&Content::SetDestination, to::kNone}},
});

// A document has a control word for every few characters of text, so the words are found by a hash
// of their length, first and last letter.
constexpr std::size_t kSlots = 256;
constexpr std::uint8_t kFree = 0xFF;
static_assert(kWords.size() < kFree);

constexpr std::size_t SlotOf(std::string_view name) {
  const auto letters = static_cast<std::size_t>(name.front() + 8 * name.back());
  return (letters + 32 * name.size()) % kSlots;
}

constexpr std::array<std::uint8_t, kSlots> FilledSlots() {
  std::array<std::uint8_t, kSlots> slots{};
  slots.fill(kFree);
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    std::size_t slot = SlotOf(kWords[i].name);
    while (slots[slot] != kFree) slot = (slot + 1) % kSlots;
    slots[slot] = static_cast<std::uint8_t>(i);
  }
  return slots;
}

constexpr std::array<std::uint8_t, kSlots> kSlotWords = FilledSlots();

}  // namespace

const RtfWord* FindRtfWord(std::string_view name) {
  for (std::size_t slot = SlotOf(name); kSlotWords[slot] != kFree; slot = (slot + 1) % kSlots) {
    const NamedWord& known = kWords[kSlotWords[slot]];
    if (known.name == name) return &known.word;
  }
  return nullptr;
}

}  // namespace brimwork
