#include "memory/posix/held_signals.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace brimwork {
namespace held_signals_test {

/// How a process ends that does this, and then exits with 7.
int EndOf(const std::function<void()>& action) {
  const pid_t child = fork();
  if (child == 0) {
    action();
    _exit(7);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return status;
}

TEST(HeldSignals, DoTheirWorkWhenTheyAreLetGo) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const int status = EndOf([&] {
      const posix::HeldSignals held;
      raise(signal);
      if (write(ends[1], "x", 1) != 1) _exit(1);
    });
    close(ends[1]);
    char read_ = 0;
    EXPECT_EQ(read(ends[0], &read_, 1), 1) << signal;
    close(ends[0]);
    EXPECT_TRUE(WIFSIGNALED(status)) << signal;
    EXPECT_EQ(WTERMSIG(status), signal);
  }
}

TEST(HeldSignals, DoNothingWhenNoneCame) {
  const int status = EndOf([] { const posix::HeldSignals held; });
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 7);
}

TEST(HeldSignals, StayIgnoredWhereTheyWere) {
  const int status = EndOf([] {
    signal(SIGHUP, SIG_IGN);
    const posix::HeldSignals held;
    raise(SIGHUP);
  });
  EXPECT_TRUE(WIFEXITED(status));
}

TEST(HeldSignals, EndTheProcessAsBeforeOnceTheyAreFree) {
  const int status = EndOf([] {
    { const posix::HeldSignals held; }
    raise(SIGTERM);
  });
  EXPECT_TRUE(WIFSIGNALED(status));
}

}  // namespace held_signals_test
}  // namespace brimwork
