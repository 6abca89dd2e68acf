#include "end_to_end/case_file.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace {

constexpr std::string_view kMarker = "=== ";
constexpr std::string_view kCrLf = "(CR LF)";
constexpr std::string_view kOpen = "(open)";

/// Takes the word off the end of line when it stands there.
bool TakeFromEnd(std::string& line, std::string_view word) {
  if (!line.ends_with(word)) return false;
  line.resize(line.size() - word.size());
  line.erase(line.find_last_not_of(' ') + 1);
  return true;
}

struct NamedPart {
  std::string kind;  // "" is the reason
  std::string name;
  CasePart part;
};

NamedPart PartBelow(const std::string& marker) {
  NamedPart named;
  named.part.marker = marker;
  std::string words = marker.substr(kMarker.size());
  named.part.open = TakeFromEnd(words, kOpen);
  named.part.crLf = TakeFromEnd(words, kCrLf);
  const auto blank = words.find(' ');
  named.kind = words.substr(0, blank);
  if (blank != std::string::npos) named.name = words.substr(blank + 1);
  return named;
}

std::vector<NamedPart> SplitParts(std::string_view text) {
  std::vector<NamedPart> parts(1);
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    const std::string line(text.substr(0, size));
    text.remove_prefix(size);
    if (line.starts_with(kMarker)) {
      parts.push_back(PartBelow(line.substr(0, line.find_last_not_of("\r\n") + 1)));
    } else {
      parts.back().part.text += line;
    }
  }
  return parts;
}

std::vector<std::string> ArgumentsOf(const CasePart& command) {
  std::vector<std::string> words = SplitWords(command.text);
  if (words.empty() || words.front() != "brimwork") {
    throw std::runtime_error("the command part must start with the word brimwork");
  }
  words.erase(words.begin());
  return words;
}

void Take(const NamedPart& named, CaseFile& read, bool& hasOutput) {
  if (named.kind.empty()) {
    read.reason = named.part.text;
  } else if (named.kind == "command") {
    read.arguments = ArgumentsOf(named.part);
  } else if (named.kind == "file") {
    read.files[named.name] = named.part;
  } else if (named.kind == "input") {
    read.inputName = named.name;
    read.input = named.part;
  } else if (named.kind == "output") {
    read.output = named.part.Bytes();
    hasOutput = true;
  } else if (named.kind == "warnings") {
    read.warnings = named.part.text;
  } else {
    throw std::runtime_error("there is no part \"" + named.kind + '"');
  }
}

/// The part as a case file writes it.
std::string Written(const std::string& kind, const std::string& bytes) {
  const bool crLf = bytes.find('\n') != std::string::npos && WithCrLfEnds(bytes) == bytes;
  const bool open = !bytes.empty() && !bytes.ends_with('\n');
  std::string text(kMarker);
  text += kind;
  if (crLf) text.append(" ").append(kCrLf);
  if (open) text.append(" ").append(kOpen);
  return text + '\n' + (crLf ? WithLfEnds(bytes) : bytes) + (open ? "\n" : "");
}

}  // namespace

std::string CasePart::Bytes() const {
  std::string bytes = text;
  if (open && bytes.ends_with('\n')) bytes.pop_back();
  return crLf ? WithCrLfEnds(bytes) : bytes;
}

CaseFile ParseCase(std::string_view text) {
  CaseFile read;
  bool hasOutput = false;
  for (const NamedPart& part : SplitParts(text)) Take(part, read, hasOutput);
  if (read.reason.find_first_not_of(" \r\n") == std::string::npos) {
    throw std::runtime_error("a case opens with why it exists");
  }
  if (read.arguments.empty()) throw std::runtime_error("the case has no command");
  if (read.inputName.empty()) throw std::runtime_error("the case has no named input");
  if (!hasOutput) read.output = read.input.Bytes();
  read.changesInput = read.output != read.input.Bytes();
  if (hasOutput && !read.changesInput) {
    throw std::runtime_error("the output equals the input: leave it out");
  }
  return read;
}

std::string UpdatedCase(std::string_view text, const std::string& output,
                        const std::string& warnings) {
  std::string updated;
  std::string input;
  for (const NamedPart& named : SplitParts(text)) {
    if (named.kind == "output" || named.kind == "warnings") continue;
    if (named.kind == "input") input = named.part.Bytes();
    if (!named.kind.empty()) updated += named.part.marker + '\n';
    updated += named.part.text;
  }
  if (output != input) updated += Written("output", output);
  if (!warnings.empty()) updated += Written("warnings", warnings);
  return updated;
}

std::vector<std::string> SplitWords(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  bool isWord = false;
  bool isQuoted = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '"' && isQuoted && text.substr(at + 1).starts_with('"')) {
      word += text[++at];
    } else if (c == '"') {
      isQuoted = !isQuoted;
      isWord = true;
    } else if (isQuoted || (c != ' ' && c != '\n' && c != '\r')) {
      word += c;
      isWord = true;
    } else if (std::exchange(isWord, false)) {
      words.push_back(std::exchange(word, {}));
    }
  }
  if (isQuoted) throw std::runtime_error("a quote in the command has no other");
  if (isWord) words.push_back(word);
  return words;
}

std::vector<std::filesystem::path> FindCases() {
  std::vector<std::filesystem::path> cases;
  const std::filesystem::path folder = std::filesystem::path(BRIMWORK_SOURCE_DIR) / "tests/cases";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".txt") cases.push_back(entry.path());
  }
  std::ranges::sort(cases);
  return cases;
}

}  // namespace brimwork
