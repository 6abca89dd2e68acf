#include "support/posix/refused_calls.h"

#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace brimwork {
namespace {

using Rules = std::vector<sock_filter>;

void LoadCallNumber(Rules& rules) {
  rules.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
}

void Refuse(Rules& rules, int error) {
  rules.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)));
}

/// Each call's rules fall through to the next ones when they do not fit.
void AddRules(Rules& rules, RefusedCall call) {
  LoadCallNumber(rules);
  if (call == RefusedCall::kRenameToFree) {
    rules.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_renameat2, 0, 1));
    Refuse(rules, EINVAL);
    return;
  }
  rules.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3));
  rules.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])));
  rules.push_back(BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, O_TMPFILE & ~O_DIRECTORY, 0, 1));
  Refuse(rules, EOPNOTSUPP);
}

bool RefuseFromNowOn(const std::vector<RefusedCall>& calls) {
  Rules rules;
  for (const RefusedCall call : calls) AddRules(rules, call);
  rules.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  const sock_fprog program{static_cast<unsigned short>(rules.size()), rules.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

}  // namespace

int InProcessWithout(const std::vector<RefusedCall>& calls, const std::function<int()>& check) {
  const pid_t child = fork();
  if (child == 0) _exit(RefuseFromNowOn(calls) ? check() : kNothingRefused);
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace brimwork
