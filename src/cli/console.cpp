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
      colorsError_(WantsColors(color, isatty(STDERR_FILENO) == 1)),
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

void Console::Ask(std::string_view text) { WriteError(text); }

void Console::WriteErrorLine(std::string_view line) { WriteError(std::string(line) + '\n'); }

void Console::WriteError(std::string_view text) {
  const std::lock_guard lock(mutex_);
  const std::string_view erased = progressLineStands_ ? kEraseLine : std::string_view();
  progressLineStands_ = false;
  WriteToUser(std::string(erased).append(text));
}

}  // namespace brimwork
