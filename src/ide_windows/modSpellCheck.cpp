#include "ide_windows/modSpellCheck.h"

#include <memory>
#include <optional>

#include "environment/resume_next.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "transform/borrowed_clipboard.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

constexpr std::string_view kProgramId = "Word.Application";
constexpr char kQuote = '"';
constexpr char kApostrophe = '\'';
constexpr auto kNowhere = std::string_view::npos;

// The pieces of a line.

SpellingPiece PieceAt(std::string_view line, std::size_t offset, std::size_t size) {
  return {offset, size, CharacterCount(line.substr(0, offset)) + 1};
}

std::optional<SpellingPiece> CommentPiece(std::string_view line, std::string_view separator) {
  const auto apostrophe = line.find(kApostrophe);
  if (apostrophe == kNowhere || line == separator) return std::nullopt;
  SpellingPiece piece = PieceAt(line, apostrophe + 1, line.size() - apostrophe - 1);
  piece.isComment = true;
  return piece;
}

// The text's way to the word processor and back.

/// Size in bytes of the line end that the text ends with.
std::size_t ParagraphMarkSize(std::string_view text) {
  if (text.ends_with("\r\n")) return 2;
  return text.ends_with('\r') || text.ends_with('\n') ? 1 : 0;
}

int ParagraphMarks(std::string_view text) {
  int marks = 0;
  while (const std::size_t size = ParagraphMarkSize(text)) {
    text.remove_suffix(size);
    ++marks;
  }
  return marks;
}

std::string WithoutAddedMark(std::string cut, std::string_view sent) {
  if (ParagraphMarks(cut) > ParagraphMarks(sent)) cut.resize(cut.size() - ParagraphMarkSize(cut));
  return cut;
}

/// An instance of the word processor; what is open of it at the end of its life is closed.
class StartedWord {
 public:
  explicit StartedWord(WordProcessor& word) : word_(word) {}

  ~StartedWord() {
    if (mayHoldDocument_) Insist([&] { CloseDocument(); });
    if (isRunning_) Insist([&] { Quit(); });
  }
  StartedWord(const StartedWord&) = delete;
  StartedWord& operator=(const StartedWord&) = delete;

  void AddDocument() {
    mayHoldDocument_ = true;
    word_.AddDocument();
    word_.SetActiveWindowState(document_window_state::kMinimized);
  }

  void CloseDocument() {
    word_.CloseDocument(false);
    mayHoldDocument_ = false;
  }

  void Quit() {
    word_.Quit();
    isRunning_ = false;
  }

 private:
  WordProcessor& word_;
  bool mayHoldDocument_ = false;
  bool isRunning_ = true;
};

/// Null, after telling the user, when the program cannot be started.
std::shared_ptr<WordProcessor> StartWord(Environment& environment) {
  std::shared_ptr<WordProcessor> word;
  ResumeNext([&] { word = environment.wordProcessors.CreateObject(kProgramId); });
  if (!word) {
    environment.dialogs.MsgBox(
        "Could not create an instance or MS Word to use for Spell Check\r\n"
        "Please verify that it is correctly installed and try again",
        message_box::kOkOnly + message_box::kInformation, "Initialization Error");
  }
  return word;
}

// The walk over the module.

class SpellCheck {
 public:
  SpellCheck(Environment& environment, CodeModule& module, WordProcessor& word)
      : clipboard_(environment.clipboard),
        module_(module),
        word_(word),
        separator_(GetCommandSetting(environment, setting::kSeperator)) {}

  void CheckLines() {
    const int lines = module_.CountOfLines();
    for (int line = 1; line <= lines; ++line) CheckLine(line);
  }

 private:
  void CheckLine(int number) {
    const std::string line = module_.Lines(number, 1);
    for (const SpellingPiece& piece : SpellingPieces(line, separator_)) {
      const std::string text = line.substr(piece.offset, piece.size);
      const std::string checked = Checked(text);
      // A piece left as it is must not undo what was corrected in the line before it.
      if (checked == text) continue;
      module_.ReplaceLine(number, std::string(line).replace(piece.offset, piece.size, checked));
    }
  }

  /// There is no pasting nothing.
  std::string Checked(const std::string& text) {
    return text.empty() ? text : CheckSpellingInWord(clipboard_, word_, text);
  }

  Clipboard& clipboard_;
  CodeModule& module_;
  WordProcessor& word_;
  std::string separator_;
};

void CheckModule(Environment& environment, CodeModule& module, WordProcessor& word) {
  std::optional<BorrowedClipboard> borrowed;  // goes back to the user after the program has ended
  StartedWord started(word);
  const auto error = ResumeNext([&] {
    started.AddDocument();
    borrowed.emplace(environment.clipboard);
    SpellCheck(environment, module, word).CheckLines();
    started.CloseDocument();
    started.Quit();
  });
  if (!error) return;
  ResumeNext([&] {
    environment.dialogs.MsgBox("Error Encountered: Could Not Run SpellCheck Procedure",
                               message_box::kOkOnly + message_box::kInformation,
                               "Error Encountered");
  });
}

}  // namespace

std::vector<SpellingPiece> SpellingPieces(std::string_view line, std::string_view separator) {
  std::vector<SpellingPiece> pieces;
  std::size_t position = 0;
  while (position < line.size()) {
    const auto opening = line.find(kQuote, position);
    const auto closing = opening == kNowhere ? kNowhere : line.find(kQuote, opening + 1);
    if (closing == kNowhere) {
      // A quote without its partner is text, of a comment or of half-written code.
      const bool isInComment = line.find(kApostrophe) < opening;
      const auto comment = isInComment ? CommentPiece(line, separator) : std::nullopt;
      if (comment) pieces.push_back(*comment);
      break;
    }
    pieces.push_back(PieceAt(line, opening + 1, closing - opening - 1));
    position = closing + 1;
  }
  return pieces;
}

std::string CheckSpellingInWord(Clipboard& clipboard, WordProcessor& word, std::string_view text) {
  clipboard.Clear();
  clipboard.SetText(text);
  word.PasteIntoSelection();
  word.CheckSpellingOfDocument();
  word.SelectDocument();
  word.CutSelection();
  return WithoutAddedMark(clipboard.GetText(), text);
}

void SpellCheckQuotesAndComments(Context& context) {
  Environment& environment = context.environment;
  WithCodeSource(environment, [&](CodeModule& module) {
    if (const auto word = StartWord(environment)) CheckModule(environment, module, *word);
  });
}

}  // namespace brimwork
