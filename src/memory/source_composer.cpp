#include "memory/source_composer.h"

#include "memory/source_error.h"
#include "memory/source_text.h"

namespace brimwork {
namespace {

constexpr std::size_t kPieceBytes = 64 * 1024;

std::string_view EndText(LineEnd end) { return end == LineEnd::kCrLf ? "\r\n" : "\n"; }

/// Every line end is held back until something follows it, because what follows decides about a
/// missing one.
class Composer {
 public:
  Composer(const ComposedFile& file, const ByteSink& sink) : file_(file), sink_(sink) {
    // Room for a line behind a nearly full piece.
    piece_.reserve(kPieceBytes + kPieceBytes / 4);
  }

  void AddPreamble() {
    std::string_view preamble(file_.text.data(), file_.layout.preamble.size);
    linesBegun_ = file_.layout.preamble.lines;
    if (linesBegun_ == 0) {
      piece_ = preamble;  // at most a byte-order mark: line 1 follows on the same line
      return;
    }
    const LineEnd end = preamble.ends_with("\r\n") ? LineEnd::kCrLf
                        : preamble.ends_with('\n') ? LineEnd::kLf
                                                   : LineEnd::kFileStyle;
    preamble.remove_suffix(RawLine{{}, end}.EndSize());
    piece_ = preamble;
    HoldEnd(end, true);
  }

  void AddLine(std::string_view line, LineEnd end) {
    BeginLine();
    Append(line);
    HoldEnd(end, false);
  }

  void AddHidden(std::span<const HiddenLine> lines) {
    for (const HiddenLine index : lines) {
      const HiddenAttribute& hidden = file_.layout.hidden[index];
      BeginLine();
      Append(std::string_view(file_.text).substr(hidden.offset, hidden.size));
      HoldEnd(hidden.end, true);
    }
  }

  void Finish() {
    // A hidden line is never changed; the end of the last visible one is the file's.
    const bool endsLastLine = heldIsHidden_ ? !heldIsMissing_ : file_.layout.endsLastLine;
    if (hasHeldEnd_ && endsLastLine) piece_ += EndText(heldEnd_);
    Write(piece_);
  }

 private:
  void BeginLine() {
    if (piece_.size() >= kPieceBytes && file_.codec.IsAsciiCompatible()) FlushPiece();
    if (hasHeldEnd_) piece_ += EndText(heldEnd_);
    hasHeldEnd_ = false;
    ++linesBegun_;
  }

  void Append(std::string_view line) {
    if (line.size() < kPieceBytes || !file_.codec.IsAsciiCompatible()) {
      piece_ += line;
      return;
    }
    FlushPiece();
    Write(line);
  }

  void HoldEnd(LineEnd end, bool isHidden) {
    hasHeldEnd_ = true;
    heldIsHidden_ = isHidden;
    heldIsMissing_ = end == LineEnd::kFileStyle;
    heldEnd_ = heldIsMissing_ ? file_.layout.commonerEnd : end;
  }

  void FlushPiece() {
    Write(piece_);
    piece_.clear();
    lineOfPiece_ = linesBegun_;
  }

  void Write(std::string_view text) {
    if (text.empty()) return;
    try {
      sink_(file_.codec.Encode(text, encoded_));
    } catch (const TextCodecError& error) {
      const TextPosition position = PositionBehind(text.substr(0, error.Offset()));
      throw SourceError(file_.path, lineOfPiece_ + position.line - 1, position.column,
                        std::string(error.what()) +
                            "; choose another text, or an --encoding that has the character");
    }
  }

  const ComposedFile& file_;
  const ByteSink& sink_;
  std::string piece_;
  std::string encoded_;
  int linesBegun_ = 0;
  int lineOfPiece_ = 1;  // where piece_ starts
  LineEnd heldEnd_ = LineEnd::kCrLf;
  bool hasHeldEnd_ = false;
  bool heldIsHidden_ = false;
  bool heldIsMissing_ = false;
};

}  // namespace

void ComposeFile(const ComposedFile& file, const ModuleText& module, const ByteSink& sink) {
  Composer composer(file, sink);
  composer.AddPreamble();
  composer.AddHidden(module.HiddenBehind(0));
  for (int line = 1; line <= module.Count(); ++line) {
    composer.AddLine(module.Line(line), module.End(line));
    composer.AddHidden(module.HiddenBehind(line));
  }
  composer.Finish();
}

}  // namespace brimwork
