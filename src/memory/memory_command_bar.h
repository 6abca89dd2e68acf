// A command bar as plain data.
#pragma once

#include <string>
#include <utility>

#include "environment/window.h"

namespace brimwork {

class MemoryCommandBar : public CommandBar {
 public:
  explicit MemoryCommandBar(std::string name) : name_(std::move(name)) {}
  std::string Name() override { return name_; }
  bool Visible() override { return visible_; }
  void SetVisible(bool visible) override { visible_ = visible; }

 private:
  std::string name_;
  bool visible_ = true;
};

}  // namespace brimwork
