// All command bars as plain data, and the clicks on their controls.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/command_bar.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_command_bar.h"

namespace brimwork {

class MemoryCommandBars {
 public:
  /// clipboard: where faces are pasted from.
  explicit MemoryCommandBars(const MemoryClipboard& clipboard) : clipboard_(clipboard) {}
  MemoryCommandBars(const MemoryCommandBars&) = delete;
  MemoryCommandBars& operator=(const MemoryCommandBars&) = delete;

  const std::vector<std::shared_ptr<MemoryCommandBar>>& All() const { return bars_; }

  /// Null when there is none of exactly that name.
  std::shared_ptr<MemoryCommandBar> OfName(std::string_view name) const;

  /// Null when no bar, and no popup on one, has a control of that number.
  std::shared_ptr<MemoryCommandBarControl> FindControl(int id) const;

  /// Raises an error when there is a bar of that name.
  std::shared_ptr<MemoryCommandBar> Add(const NewCommandBar& bar);

  /// Takes in a bar of the environment's own; it has no controls yet.
  void Add(const std::shared_ptr<MemoryCommandBar>& bar);

  void Remove(const MemoryCommandBar& bar);

  /// What becomes of the bars when the environment closes.
  void RemoveTemporary();

  /// Clicks on a control with the Id and Tag that this one has now reach onClick as long as the
  /// result lives.
  std::unique_ptr<CommandBarEvents> EventsOf(CommandBarControl& control, ClickHandler onClick);

  /// Does what a click on the control does: its handlers, and the environment's own command.
  void Click(MemoryCommandBarControl& control);

  /// The name of its resource, "" when there is none.
  const std::string& PictureOnClipboard() const { return clipboard_.Picture(); }

 private:
  struct Binding {
    int id;
    std::string tag;
    ClickHandler onClick;
  };
  class Events;

  std::vector<std::weak_ptr<Binding>> BindingsOf(MemoryCommandBarControl& control) const;

  const MemoryClipboard& clipboard_;
  std::vector<std::shared_ptr<MemoryCommandBar>> bars_;
  std::vector<std::weak_ptr<Binding>> bindings_;
};

}  // namespace brimwork
