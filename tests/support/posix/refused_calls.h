// System calls that fail in a process of the test's own, as they do on older systems.
#pragma once

#include <functional>
#include <vector>

namespace brimwork {

enum class RefusedCall {
  kOpenNameless,  // opening a file without a name, with EOPNOTSUPP
  kRenameToFree,  // renameat2, with EINVAL
};

/// Where this kernel cannot refuse them.
inline constexpr int kNothingRefused = 99;

/// Runs check in a process that is refused these calls; its result, 0 to 90, is the result.
int InProcessWithout(const std::vector<RefusedCall>& calls, const std::function<int()>& check);

}  // namespace brimwork
