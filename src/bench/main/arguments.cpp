#include "bench/main/arguments.h"

#include <cstddef>

#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr const char* kUsage =
    "\n\nbench [--screenshot FILE] [PROJECT]\n\n"
    "PROJECT: a .vbp or .vbg file, or a source file\n"
    "--screenshot FILE: saves a picture of the window as PNG and ends";

[[noreturn]] void Refuse(const std::string& why) { throw ArgumentError(why + kUsage); }

}  // namespace

Arguments ParseArguments(const std::vector<std::wstring>& words) {
  Arguments arguments;
  for (std::size_t place = 0; place < words.size(); ++place) {
    const std::wstring& word = words[place];
    if (word == L"--screenshot") {
      if (++place == words.size()) Refuse("--screenshot needs a file.");
      arguments.screenshot = words[place];
    } else if (word.starts_with(L"-")) {
      Refuse("There is no option " + win32::Narrow(word) + ".");
    } else if (!arguments.project.empty()) {
      Refuse("There is more than one project: " + win32::Narrow(word) + ".");
    } else {
      arguments.project = word;
    }
  }
  return arguments;
}

}  // namespace brimwork::bench
