// All command bars as plain data, and the clicks on their controls.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/command_bar.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_command_bar.h"

namespace brimwork {

/// What a handler says about the command that was clicked.
struct ClickAnswer {
  bool isHandled = false;
  bool cancelsDefault = false;  // the environment's own command is not to run
};

class MemoryCommandBars {
 public:
  using AnsweringHandler = std::function<void(CommandBarControl& clicked, ClickAnswer& answer)>;

  /// clipboard: where faces are pasted from.
  explicit MemoryCommandBars(const MemoryClipboard& clipboard) : clipboard_(clipboard) {}
  MemoryCommandBars(const MemoryCommandBars&) = delete;
  MemoryCommandBars& operator=(const MemoryCommandBars&) = delete;
  /// The bars and controls that somebody still holds are deleted ones then.
  ~MemoryCommandBars();

  const std::vector<std::shared_ptr<MemoryCommandBar>>& All() const { return bars_; }

  /// Null when there is none of exactly that name.
  std::shared_ptr<MemoryCommandBar> OfName(std::string_view name) const;

  /// Null when no bar, and no popup on one, has a control of that number.
  std::shared_ptr<MemoryCommandBarControl> FindControl(int id) const;

  /// The first control on any bar of which all is true that the query says; null when there is
  /// none. One that is shown stands on a bar that is shown.
  std::shared_ptr<MemoryCommandBarControl> Find(const ControlQuery& query) const;

  /// From 1; 0 for a bar that is none of these.
  int IndexOf(const MemoryCommandBar& bar) const;

  /// Raises an error when there is a bar of that name. Without a name it gets one that is free.
  std::shared_ptr<MemoryCommandBar> Add(const NewCommandBar& bar);

  /// Raises an error when there is a bar of that name.
  void RequireFreeName(std::string_view name) const;

  /// Takes in a bar of the environment's own; it has no controls yet.
  void Add(const std::shared_ptr<MemoryCommandBar>& bar);

  void Remove(const MemoryCommandBar& bar);

  /// What becomes of the bars when the environment closes.
  void RemoveTemporary();

  /// Clicks on a control with the Id and Tag that this one has now reach onClick as long as the
  /// result lives.
  std::unique_ptr<CommandBarEvents> EventsOf(CommandBarControl& control, ClickHandler onClick);

  /// The same with a handler that may keep the environment's own command from running.
  std::unique_ptr<CommandBarEvents> EventsOf(CommandBarControl& control, AnsweringHandler onClick);

  /// What one of the environment's commands (see usual_commands.h) does, whichever control of it
  /// is clicked, those that are added later included.
  void SetAction(int command, std::function<void()> action);
  bool HasAction(const MemoryCommandBarControl& control) const;

  /// Every control of one of the environment's commands; a menu that stands on two bars has its
  /// controls once.
  std::vector<std::shared_ptr<MemoryCommandBarControl>> ControlsOf(int command) const;

  void SetEnabled(int command, bool enabled);
  void SetState(int command, int state);  // button_state::k...

  /// Disables the environment's commands that nothing was given for to do.
  void DisableIdleCommands();

  /// The control whose click is being handled; null at other times.
  std::shared_ptr<MemoryCommandBarControl> ActionControl() const { return clicked_.lock(); }

  /// Goes up with each change of a bar or of a control.
  std::uint64_t Revision() const { return revision_; }
  void NoteChange() { ++revision_; }

  /// Does what a click on the control does: its handlers, and the environment's own command.
  void Click(MemoryCommandBarControl& control);

  /// The name of its resource, "" when there is none.
  const std::string& PictureOnClipboard() const { return clipboard_.Picture(); }

 private:
  struct Binding {
    int id;
    std::string tag;
    AnsweringHandler onClick;
  };
  class Events;

  std::string FreeName() const;
  std::function<void()> ActionOf(const MemoryCommandBarControl& control) const;
  bool TellHandlers(MemoryCommandBarControl& control);
  std::vector<std::weak_ptr<Binding>> BindingsOf(MemoryCommandBarControl& control) const;

  const MemoryClipboard& clipboard_;
  std::vector<std::shared_ptr<MemoryCommandBar>> bars_;
  std::vector<std::weak_ptr<Binding>> bindings_;
  std::map<int, std::function<void()>> actions_;  // by command
  std::weak_ptr<MemoryCommandBarControl> clicked_;
  std::uint64_t revision_ = 0;
};

}  // namespace brimwork
