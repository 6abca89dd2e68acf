// A case file: a command, what it is given and what must come of it, as a text that anyone who
// writes Visual Basic can write. It opens with why the case exists; the parts stand below marker
// lines:
//
//   === command               brimwork and its options, without the file
//   === file NAME             another file that lies beside the input (any number of them)
//   === input NAME            the file that the command works on
//   === output                what must come of it; left out when the input stays as it is
//   === warnings              the lines on standard error; left out when there are none
//
// The bytes of a part are taken as they stand. Behind the marker's words, (CR LF) says that its
// lines end so, and (open) that its last line has no end.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// The bytes of a part with what its marker says about its line ends.
struct CasePart {
  std::string marker;  // the whole line, to be written again
  std::string text;    // as in the case file
  bool crLf = false;
  bool open = false;

  /// The bytes that the part stands for.
  std::string Bytes() const;
};

struct CaseFile {
  std::string reason;
  std::vector<std::string> arguments;  // behind the word brimwork
  std::map<std::string, CasePart> files;
  std::string inputName;
  CasePart input;
  std::string output;  // the input's bytes when the case has no such part
  std::string warnings;
  bool changesInput = false;
};

/// Throws std::runtime_error, with what is wrong, for a text that is no case.
CaseFile ParseCase(std::string_view text);

/// The text of the case with its expected parts as the command has them now.
std::string UpdatedCase(std::string_view text, const std::string& output,
                        const std::string& warnings);

/// Words between blanks and line ends; blanks and line ends between double quotes belong to the
/// word, and "" between them is one quote.
std::vector<std::string> SplitWords(std::string_view text);

/// The case files of the folder, sorted.
std::vector<std::filesystem::path> FindCases();

}  // namespace brimwork
