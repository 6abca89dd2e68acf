// The text of a rich text document while it is read: what its control words mean.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "memory/code_page_text.h"
#include "memory/rich_text.h"
#include "memory/rtf_tables.h"
#include "memory/utf16_joiner.h"

namespace brimwork {

/// Where text goes: into the body, into one of the tables, or nowhere.
namespace rtf_destination {
inline constexpr int kBody = 0;
inline constexpr int kFontTable = 1;
inline constexpr int kColorTable = 2;
inline constexpr int kNone = 3;
}  // namespace rtf_destination

/// What a control word does takes a number, also where it has no use for one, so that all words are
/// applied alike.
class RtfContent {
 public:
  /// size: of the document.
  explicit RtfContent(std::size_t size) { text_.reserve(size); }

  // Groups; what is set within one is taken back at its end.

  void StartGroup();
  void EndGroup();
  std::size_t Depth() const { return outer_.size(); }

  // Text, in the order of the document.

  void TakeText(std::string_view text);  // as it stands in the document: ASCII
  void TakeByte(char byte);              // of the code page of the font in use
  void TakeUtf16(int unit);              // signed or not
  void AppendCharacter(int character);
  void EndLine(int = 0);
  void EndParagraph(int = 0);

  // Characters come in pieces: bytes of a code page, halves of UTF-16.

  /// No byte follows that could complete a character.
  void FinishBytes() {
    if (!bytes_.empty()) DecodeBytes({});
  }
  /// Neither a byte nor a half follows.
  void FinishCharacters() {
    if (HasPieces()) FinishPieces({});
  }

  // Formats.

  void SetFont(int number);  // in the font table: starts an entry
  void SetFontSize(int halfPoints);
  void SetColor(int index);
  void SetPlain(int = 0);

  // What text is read with.

  void SetDestination(int destination) { state_.destination = destination; }
  void SetFallbackSize(int characters);
  int FallbackSize() const { return state_.fallbackSize; }
  void SetCodePage(int codePage) { codePage_ = codePage; }
  void SetPlainFont(int number);
  void SetCharset(int charset);
  void SetFontCodePage(int codePage);
  void SetRed(int value) { colors_.SetPart(RtfColorTable::Part::kRed, value); }
  void SetGreen(int value) { colors_.SetPart(RtfColorTable::Part::kGreen, value); }
  void SetBlue(int value) { colors_.SetPart(RtfColorTable::Part::kBlue, value); }

  /// The body, without the end of its last paragraph; afterwards there is nothing here.
  RichText TakeBody();

 private:
  static constexpr int kPlainHalfPoints = 24;

  struct State {
    int destination = rtf_destination::kBody;
    int font = 0;
    int halfPoints = kPlainHalfPoints;
    int color = 0;
    int fallbackSize = 1;  // characters behind \u for programs that do not know it
  };

  bool HasPieces() const { return joiner_.HasHalf() || !bytes_.empty(); }
  std::string_view FinishPieces(std::string_view following);
  std::string_view DecodeBytes(std::string_view following);
  void Append(std::string_view text);
  void AppendToBody(std::string_view text);
  const RtfFont* FontInUse();
  int CodePageInUse();
  PackedFormat FormatInUse();

  State state_;
  std::vector<State> outer_;
  int codePage_ = CodePageText::kWestern;
  int plainFont_ = 0;
  RtfFontTable fonts_;
  RtfColorTable colors_;

  CodePageText codePages_;
  std::string bytes_;  // of the code page, not decoded yet
  Utf16Joiner joiner_;

  std::string text_;
  FormatRuns formats_;
  bool isFormatSet_ = false;      // formats_ have the state's format
  std::size_t paragraphEnd_ = 0;  // the text's size when the last paragraph ended
};

}  // namespace brimwork
