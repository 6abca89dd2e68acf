#include "bench/automation/counted_object.h"

#include <utility>

#include "bench/automation/session.h"

namespace brimwork::bench {

CountedObject::CountedObject(std::shared_ptr<Session> session, std::string name)
    : session_(std::move(session)), name_(std::move(name)) {
  session_->Enter(*this);
}

CountedObject::~CountedObject() { session_->Leave(*this); }

ULONG CountedObject::Uncount() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

}  // namespace brimwork::bench
