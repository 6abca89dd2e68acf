#include "support/windows/program.h"

#include <windows.h>

#include <filesystem>
#include <stdexcept>
#include <utility>

#include "support/temporary_folder.h"
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

// A file rather than a pipe: programs that it starts may keep what they inherit open for longer.
HANDLE NewOutputFile(const std::filesystem::path& path) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                     CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
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
  const TemporaryFolder folder;
  const auto outputFile = folder / "output.txt";
  Handle writing(NewOutputFile(outputFile));

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
  if (WaitForSingleObject(process.Get(), kMillisecondsForAProgram) != WAIT_OBJECT_0) {
    TerminateProcess(process.Get(), 1);
    throw std::runtime_error(words.front() + " does not end");
  }
  DWORD code = 0;
  GetExitCodeProcess(process.Get(), &code);
  run.exitCode = static_cast<int>(code);
  run.output = ReadBytes(outputFile);
  return run;
}

}  // namespace brimwork::bench
