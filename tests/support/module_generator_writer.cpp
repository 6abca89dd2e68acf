#include "support/module_generator_writer.h"

#include <array>

namespace brimwork::module_generator {
namespace {

constexpr std::size_t kBytesPerLine = 48;
constexpr int kIndent = 4;
constexpr std::size_t kLabelWidth = 7;

}  // namespace

Writer::Writer(const GeneratorOptions& options) : options_(options), random_(options.seed) {
  if (options.lines > 0) text_.reserve(static_cast<std::size_t>(options.lines) * kBytesPerLine);
}

void Writer::StartProcedure() { label_ = options_.lineNumbers && OneIn(2) ? 0 : -1; }

void Writer::Line(std::string_view text) {
  WriteIndent();
  Raw(text);
}

void Writer::Statement(std::string_view text) {
  WriteLabel();
  Breakable(text);
}

void Writer::Breakable(std::string_view text) {
  WriteIndent();
  WriteBroken(text);
  if (options_.messy && OneIn(12)) text_ += OneIn(2) ? "  " : "\t";
  EndLine();
}

void Writer::Blank() {
  constexpr std::array<std::string_view, 4> kBlanks = {"   ", "\t", " \t ", "\t\t"};
  Raw(options_.messy && OneIn(2) ? AnyOf(kBlanks) : "");
}

void Writer::Raw(std::string_view text) {
  text_ += text;
  EndLine();
}

void Writer::WriteIndent() {
  if (options_.messy) {
    WriteMessyIndent();
  } else {
    text_.append(static_cast<std::size_t>(depth_ * kIndent), ' ');
  }
}

void Writer::WriteMessyIndent() {
  constexpr std::array<std::string_view, 8> kIndents = {"",     " ",    "   ",    "\t",
                                                        "\t\t", "\t  ", "      ", "  \t"};
  text_ += AnyOf(kIndents);
}

void Writer::WriteLabel() {
  if (label_ < 0) return;
  label_ += 10;
  std::string label = std::to_string(label_) + ":";
  if (label.size() < kLabelWidth) label.resize(kLabelWidth, ' ');
  text_ += label;
}

void Writer::WriteBroken(std::string_view text) {
  for (auto at = text.find(kBreak); at != std::string_view::npos; at = text.find(kBreak)) {
    text_ += text.substr(0, at);
    text.remove_prefix(at + 1);
    if (options_.continuations && OneIn(3)) {
      text_ += " _";
      EndLine();
      Deeper();
      WriteIndent();
      Shallower();
    } else {
      text_ += ' ';
    }
  }
  text_ += text;
}

void Writer::EndLine() {
  text_ += options_.lineEnd;
  ++lines_;
}

}  // namespace brimwork::module_generator
