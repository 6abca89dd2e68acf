// A clock that always gives the same two texts.
#pragma once

#include <string>

#include "environment/desktop.h"

namespace brimwork {

class FixedClock : public Clock {
 public:
  FixedClock(std::string shortDate, std::string generalDate)
      : shortDate_(std::move(shortDate)), generalDate_(std::move(generalDate)) {}

  std::string ShortDate() override { return shortDate_; }
  std::string GeneralDate() override { return generalDate_; }

 private:
  std::string shortDate_;
  std::string generalDate_;
};

}  // namespace brimwork
