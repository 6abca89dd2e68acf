// The add-in's program file as plain data.
#pragma once

#include <string>

#include "environment/desktop.h"

namespace brimwork {

class MemoryApp : public App {
 public:
  std::string Path() override { return path; }
  InstanceHandle Instance() override { return instance; }

  std::string path = "C:\\Program Files\\Brimwork";
  InstanceHandle instance = 0x10000000;
};

}  // namespace brimwork
