#include "cli/console.h"

#include <unistd.h>

#include <cstdlib>

#include "memory/disk_file.h"
#include "memory/source_error.h"

namespace brimwork {
namespace {

constexpr std::string_view kEraseLine = "\r\x1b[K";

bool WantsColors(ColorChoice choice, bool isTerminal) {
  if (choice != ColorChoice::kAuto) return choice == ColorChoice::kAlways;
  return isTerminal && std::getenv("NO_COLOR") == nullptr;
}

/// There is nobody left to tell when standard error cannot be written; the exit code still does.
void WriteToUser(std::string_view text) {
  try {
    WriteAll(STDERR_FILENO, text, "standard error");
  } catch (const SourceError&) {
  }
}

}  // namespace

Console::Console(ColorChoice color, bool quiet, bool verbose)
    : quiet_(quiet),
      verbose_(verbose),
      outIsTerminal_(isatty(STDOUT_FILENO) == 1),
      colorsOut_(WantsColors(color, outIsTerminal_)),
      showsProgress_(!quiet && isatty(STDERR_FILENO) == 1) {}

void Console::Out(std::string_view text) {
  const std::lock_guard lock(mutex_);
  WriteAll(STDOUT_FILENO, text, "standard output");
}

void Console::Error(std::string_view message) {
  WriteErrorLine("brimwork: " + std::string(message));
}

void Console::Note(std::string_view line) {
  if (!quiet_) WriteErrorLine(line);
}

void Console::Detail(std::string_view line) {
  if (verbose_ && !quiet_) WriteErrorLine(line);
}

void Console::Progress(std::string_view line) {
  if (!showsProgress_) return;
  const std::lock_guard lock(mutex_);
  if (line.empty() && !progressLineStands_) return;
  WriteToUser(std::string(kEraseLine) + std::string(line));
  progressLineStands_ = !line.empty();
}

void Console::WriteErrorLine(std::string_view line) {
  const std::lock_guard lock(mutex_);
  std::string text = progressLineStands_ ? std::string(kEraseLine) : std::string();
  progressLineStands_ = false;
  WriteToUser(text.append(line).append("\n"));
}

}  // namespace brimwork
