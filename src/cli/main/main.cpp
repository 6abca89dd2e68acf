#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "cli/app.h"
#include "memory/huge_pages.h"

namespace {

/// A closed standard stream would give its number to the next file opened, and what is meant for
/// the user would be written into that file.
void OpenClosedStandardStreams() {
  for (int number = open("/dev/null", O_RDWR); number >= 0; number = open("/dev/null", O_RDWR)) {
    if (number <= STDERR_FILENO) continue;
    close(number);
    return;
  }
}

}  // namespace

int main(int argc, char** argv) {
  brimwork::PreferHugeHeap();
  OpenClosedStandardStreams();
  // A file that grows beyond the user's limit is then an error of that file, not the end of the
  // run.
  std::signal(SIGXFSZ, SIG_IGN);
  return brimwork::RunApp(argc, argv);
}
