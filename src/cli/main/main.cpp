#include <csignal>

#include "cli/app.h"

int main(int argc, char** argv) {
  // A file that grows beyond the user's limit is then an error of that file, not the end of the run.
  std::signal(SIGXFSZ, SIG_IGN);
  return brimwork::RunApp(argc, argv);
}
