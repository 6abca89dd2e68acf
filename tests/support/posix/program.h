// Runs a program the way a shell does: words, variables, a folder and standard input go in, the
// exit code and what was written come out.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace brimwork {

struct ProgramCall {
  std::vector<std::string> words;  // the program, looked up in PATH, and its arguments
  std::string input;               // all that standard input holds
  std::filesystem::path folder;    // where it is started
  std::map<std::string, std::string> variables;  // its whole environment

  // A stream that is a terminal is no file. The input, whole lines, is typed on it beforehand, the
  // end of the input behind it; what is written to it comes back, without what was typed.
  bool inputIsTerminal = false;
  bool outIsTerminal = false;
  bool errorIsTerminal = false;
};

struct ProgramResult {
  int exitCode = -1;  // 128 and the signal's number when a signal ended it
  std::string out;
  std::string error;     // standard error
  std::string terminal;  // what went to the terminal, its line ends as CR LF
};

/// False where the system opens no pseudo-terminal, as in a chroot without /dev/pts.
bool HasPseudoTerminal();

/// A program that runs while the test goes on. Wait must be called once. Throws std::runtime_error
/// when the system refuses; a program that cannot be started ends with 127.
class RunningProgram {
 public:
  explicit RunningProgram(const ProgramCall& call);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram();

  void Send(int signal) const;

  ProgramResult Wait();

 private:
  pid_t process_ = -1;
  int out_ = -1;
  int error_ = -1;
  int terminal_ = -1;
};

inline ProgramResult RunProgram(const ProgramCall& call) { return RunningProgram(call).Wait(); }

}  // namespace brimwork
