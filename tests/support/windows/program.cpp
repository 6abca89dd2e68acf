#include "support/windows/program.h"

#include <windows.h>

#include <stdexcept>

#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr DWORD kMillisecondsForAProgram = 120'000;

class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  ~Handle() { Close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE Get() const { return handle_; }
  void Close() {
    if (handle_ != nullptr) CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_;
};

std::wstring CommandLineOf(const std::vector<std::string>& words) {
  std::wstring line;
  for (const std::string& word : words) {
    if (!line.empty()) line += L' ';
    line += L'"' + win32::Wide(word) + L'"';
  }
  return line;
}

std::string ReadAll(HANDLE pipe) {
  std::string all;
  char part[4096];
  DWORD size = 0;
  while (ReadFile(pipe, part, sizeof part, &size, nullptr) && size > 0) all.append(part, size);
  return all;
}

}  // namespace

std::vector<std::string> ProgramRun::Lines() const {
  std::vector<std::string> lines;
  std::string line;
  for (const char character : output) {
    if (character == '\n') {
      if (line.ends_with('\r')) line.pop_back();
      lines.push_back(std::exchange(line, ""));
    } else {
      line += character;
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

ProgramRun RunProgram(const std::vector<std::string>& words) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE readEnd = nullptr;
  HANDLE writeEnd = nullptr;
  if (!CreatePipe(&readEnd, &writeEnd, &inherited, 0)) throw std::runtime_error("no pipe");
  const Handle reading(readEnd);
  Handle writing(writeEnd);
  SetHandleInformation(readEnd, HANDLE_FLAG_INHERIT, 0);

  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = writing.Get();
  start.hStdError = writing.Get();
  PROCESS_INFORMATION started{};
  std::wstring line = CommandLineOf(words);
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                      &started)) {
    throw std::runtime_error("cannot start " + words.front() + ": " +
                             win32::SystemWords(GetLastError()));
  }
  const Handle process(started.hProcess);
  const Handle thread(started.hThread);
  writing.Close();

  ProgramRun run;
  run.output = ReadAll(reading.Get());
  if (WaitForSingleObject(process.Get(), kMillisecondsForAProgram) != WAIT_OBJECT_0) {
    TerminateProcess(process.Get(), 1);
    throw std::runtime_error(words.front() + " does not end");
  }
  DWORD code = 0;
  GetExitCodeProcess(process.Get(), &code);
  run.exitCode = static_cast<int>(code);
  return run;
}

}  // namespace brimwork::bench
