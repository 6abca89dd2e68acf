#include "bench/program/arguments.h"

#include <windows.h>

#include <cstddef>

#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr const char* kUsage =
    "\n\nbench [OPTION...] [PROJECT]\n\n"
    "PROJECT: a .vbp or .vbg file, or a source file\n"
    "--screenshot FILE: saves a picture of the window as PNG and ends\n"
    "--report FILE: writes at the end what became of the add-ins, as JSON\n"
    "/regserver, /unregserver: offers the class BrimworkBench.Application to the programs of this "
    "user, or no more";

[[noreturn]] void Refuse(const std::string& why) { throw ArgumentError(why + kUsage); }

/// Walks the words; an option's value is the word behind it.
class Parser {
 public:
  explicit Parser(const std::vector<std::wstring>& words) : words_(words) {}

  Arguments Parse() {
    for (; at_ < words_.size(); ++at_) Take(words_[at_]);
    return arguments_;
  }

 private:
  void Take(const std::wstring& word) {
    if (word == L"--screenshot") {
      arguments_.screenshot = Value();
    } else if (word == L"--report") {
      arguments_.report = Value();
    } else if (Is(word, L"regserver")) {
      arguments_.job = Job::kRegister;
    } else if (Is(word, L"unregserver")) {
      arguments_.job = Job::kUnregister;
    } else if (Is(word, L"embedding") || Is(word, L"automation")) {
      return;  // how the system starts it for a client: it is what it always is
    } else {
      TakeProject(word);
    }
  }

  void TakeProject(const std::wstring& word) {
    if (word.starts_with(L"-")) Refuse("There is no option " + win32::Narrow(word) + ".");
    if (!arguments_.project.empty()) {
      Refuse("There is more than one project: " + win32::Narrow(word) + ".");
    }
    arguments_.project = word;
  }

  std::wstring Value() {
    if (at_ + 1 == words_.size()) Refuse(win32::Narrow(words_[at_]) + " needs a file.");
    return words_[++at_];
  }

  /// Options of COM servers come with a slash or a dash, in any case.
  static bool Is(const std::wstring& word, const wchar_t* name) {
    return (word.starts_with(L"/") || word.starts_with(L"-")) &&
           CompareStringOrdinal(word.c_str() + 1, -1, name, -1, TRUE) == CSTR_EQUAL;
  }

  const std::vector<std::wstring>& words_;
  std::size_t at_ = 0;
  Arguments arguments_;
};

}  // namespace

Arguments ParseArguments(const std::vector<std::wstring>& words) { return Parser(words).Parse(); }

}  // namespace brimwork::bench
