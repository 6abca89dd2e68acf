#include "end_to_end/workplace.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace brimwork {
namespace {

namespace fs = std::filesystem;

/// What a program under test needs of the tester's own environment.
constexpr const char* kPassedOn[] = {"PATH", "TMPDIR", "ASAN_OPTIONS", "UBSAN_OPTIONS",
                                     "LSAN_OPTIONS"};

}  // namespace

Workplace::Workplace() {
  for (const char* name : kPassedOn) {
    if (const char* value = std::getenv(name)) variables_[name] = value;
  }
  variables_["LC_ALL"] = "C";
  variables_["HOME"] = Folder().string();
  variables_["BRIMWORK_SETTINGS"] = (folder_ / "settings.json").string();
}

void Workplace::Write(std::string_view name, std::string_view bytes) const {
  const fs::path path = folder_ / name;
  fs::create_directories(path.parent_path());
  WriteBytes(path, bytes);
}

ProgramCall Workplace::CallOf(const Words& arguments, std::string input) const {
  ProgramCall call;
  call.words = {BRIMWORK_COMMAND};
  call.words.insert(call.words.end(), arguments.begin(), arguments.end());
  call.input = std::move(input);
  call.folder = Folder();
  call.variables = variables_;
  return call;
}

ProgramResult Workplace::Shell(const std::string& script) const {
  ProgramCall call = CallOf({});
  call.words = {"/bin/sh", "-c", script};
  call.variables["brimwork"] = BRIMWORK_COMMAND;
  return RunProgram(call);
}

std::vector<std::string> Workplace::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(Folder())) {
    names.push_back(fs::relative(entry.path(), Folder()).string());
  }
  std::ranges::sort(names);
  return names;
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string WithCrLfEnds(std::string_view text) {
  std::string ended;
  for (const char c : WithLfEnds(text)) {
    if (c == '\n') ended += '\r';
    ended += c;
  }
  return ended;
}

std::string WithLfEnds(std::string_view text) {
  std::string ended;
  for (const char c : text) {
    if (c == '\n' && ended.ends_with('\r')) ended.pop_back();
    ended += c;
  }
  return ended;
}

}  // namespace brimwork
