#include "support/posix/program.h"

#include <fcntl.h>
#include <pty.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace brimwork {
namespace {

int Checked(int result, const char* what) {
  if (result < 0) throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
  return result;
}

/// A file without a name, so that no program waits for another to read what it writes.
int NamelessFile() {
  std::string path = (std::filesystem::temp_directory_path() / "brimwork-run-XXXXXX").string();
  const int file = Checked(mkostemp(path.data(), O_CLOEXEC), "mkostemp");
  unlink(path.c_str());
  return file;
}

int FileHolding(std::string_view bytes) {
  const int file = NamelessFile();
  while (!bytes.empty()) {
    bytes.remove_prefix(static_cast<std::size_t>(
        Checked(static_cast<int>(write(file, bytes.data(), bytes.size())), "write")));
  }
  Checked(static_cast<int>(lseek(file, 0, SEEK_SET)), "lseek");
  return file;
}

/// Everything from the descriptor's place on; the other end of a terminal ends with an error.
std::string ReadAll(int descriptor) {
  std::string bytes;
  std::array<char, 65536> buffer;
  while (true) {
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

/// A terminal that shows only what is written to it, not what is typed.
void OpenTerminal(int& program, int& user) {
  Checked(openpty(&user, &program, nullptr, nullptr, nullptr), "openpty");
  fcntl(user, F_SETFD, FD_CLOEXEC);
  termios settings{};
  Checked(tcgetattr(program, &settings), "tcgetattr");
  settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  Checked(tcsetattr(program, TCSANOW, &settings), "tcsetattr");
}

void Type(int terminal, const std::string& input) {
  const std::string typed = input + '\x04';
  Checked(static_cast<int>(write(terminal, typed.data(), typed.size())), "write");
}

std::string ReadFromStart(int file) {
  Checked(static_cast<int>(lseek(file, 0, SEEK_SET)), "lseek");
  return ReadAll(file);
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> Assignments(const std::map<std::string, std::string>& variables) {
  std::vector<std::string> assignments;
  for (const auto& [name, value] : variables) assignments.push_back(name + '=' + value);
  return assignments;
}

/// Runs in the new process, where only calls that need no memory of the parent's are safe.
[[noreturn]] void Become(const std::vector<char*>& words, const std::vector<char*>& variables,
                         const char* folder, const std::array<int, 3>& streams) {
  for (int number = 0; number < 3; ++number)
    dup2(streams[static_cast<std::size_t>(number)], number);
  if (*folder != '\0' && chdir(folder) != 0) _exit(126);
  signal(SIGINT, SIG_DFL);
  execvpe(words.front(), words.data(), variables.data());
  _exit(127);
}

}  // namespace

bool HasPseudoTerminal() {
  int ends[2];
  if (openpty(&ends[0], &ends[1], nullptr, nullptr, nullptr) != 0) return false;
  close(ends[0]);
  close(ends[1]);
  return true;
}

RunningProgram::RunningProgram(const ProgramCall& call) {
  int terminalEnd = -1;
  if (call.inputIsTerminal || call.outIsTerminal || call.errorIsTerminal) {
    OpenTerminal(terminalEnd, terminal_);
  }
  if (call.inputIsTerminal) Type(terminal_, call.input);
  out_ = NamelessFile();
  error_ = NamelessFile();
  const int input = FileHolding(call.input);
  const std::array<int, 3> streams{call.inputIsTerminal ? terminalEnd : input,
                                   call.outIsTerminal ? terminalEnd : out_,
                                   call.errorIsTerminal ? terminalEnd : error_};
  std::vector<std::string> words = call.words;
  std::vector<std::string> variables = Assignments(call.variables);
  const std::vector<char*> wordPointers = Pointers(words);
  const std::vector<char*> variablePointers = Pointers(variables);
  const std::string folder = call.folder.string();
  process_ = Checked(fork(), "fork");
  if (process_ == 0) Become(wordPointers, variablePointers, folder.c_str(), streams);
  close(input);
  if (terminalEnd >= 0) close(terminalEnd);
}

RunningProgram::~RunningProgram() {
  for (const int descriptor : {out_, error_, terminal_}) {
    if (descriptor >= 0) close(descriptor);
  }
}

void RunningProgram::Send(int signal) const { kill(process_, signal); }

ProgramResult RunningProgram::Wait() {
  ProgramResult result;
  if (terminal_ >= 0) result.terminal = ReadAll(terminal_);
  int status = 0;
  while (waitpid(process_, &status, 0) < 0) {
    if (errno != EINTR) Checked(-1, "waitpid");
  }
  result.exitCode = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  result.out = ReadFromStart(out_);
  result.error = ReadFromStart(error_);
  return result;
}

}  // namespace brimwork
