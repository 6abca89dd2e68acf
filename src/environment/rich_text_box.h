// A rich text control. Positions are characters from 0; a line end counts as two, CR and LF, which
// are formatted and replaced together. Every operation may raise RunTimeError.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "environment/desktop.h"

namespace brimwork {

using Color = std::uint32_t;  // 0x00BBGGRR

constexpr Color Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return red | (Color{green} << 8) | (Color{blue} << 16);
}

enum class SaveAs { kRichText = 0, kPlainText = 1 };

class RichTextBox {
 public:
  virtual ~RichTextBox() = default;

  virtual WindowHandle hWnd() = 0;

  /// The whole text, lines joined by CR LF.
  virtual std::string Text() = 0;
  /// Replaces the whole content; a lone CR or LF becomes CR LF. The caret goes to the start.
  virtual void SetText(std::string text) = 0;

  virtual int SelStart() = 0;
  /// Moves the caret and ends the selection; a position behind the text is drawn back to its end,
  /// one in front of it to its start.
  virtual void SetSelStart(int position) = 0;
  virtual int SelLength() = 0;
  /// Selects from the caret on, to the end of the text at most.
  virtual void SetSelLength(int length) = 0;

  virtual void SetSelColor(Color color) = 0;
  virtual void SetSelFontName(std::string_view name) = 0;
  /// Raises error 5 for a size that no font has.
  virtual void SetSelFontSize(int points) = 0;

  /// Replaces the selected text, which keeps the format of its first character; the caret goes
  /// behind it.
  virtual void SetSelText(std::string_view text) = 0;

  /// The selection as rich text.
  virtual std::string SelRTF() = 0;
  /// Replaces the whole content with rich text. Raises error 32000 for what is no rich text.
  virtual void SetTextRTF(std::string_view richText) = 0;

  /// Writes the content to a file, over any file that is there. Raises error 75 when it cannot; no
  /// half-written file is left.
  virtual void SaveFile(std::string_view path, SaveAs type) = 0;

  virtual void SetWordWrap(bool wraps) = 0;

  // What an edit control tells of its lines, which count from 0.

  virtual int LineCount() = 0;  // at least 1
  /// The line of the caret.
  virtual int LineFromCaret() = 0;
  /// Where the caret's line starts.
  virtual int LineIndexOfCaret() = 0;
  /// Length of the line that holds the position, without its line end.
  virtual int LineLength(int position) = 0;
  /// Puts a line, without its line end, into text; "" when there is no such line.
  virtual void ReadLine(int line, std::string& text) = 0;
};

class RichTextBoxes {
 public:
  virtual ~RichTextBoxes() = default;
  virtual std::unique_ptr<RichTextBox> Create() = 0;
};

}  // namespace brimwork
