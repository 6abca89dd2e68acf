#include "bench/contract/contract_environment.h"

#include "environment/resume_next.h"

namespace brimwork::contract {

int NumberOfErrorIn(const std::function<void()>& step) {
  const auto error = ResumeNext(step);
  return error ? error->Number() : 0;
}

}  // namespace brimwork::contract
