// The entries of a command bar or of a popup as plain data.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/command_bar.h"
#include "memory/memory_command_bar_control.h"

namespace brimwork {

class MemoryCommandBar;
class MemoryCommandBars;

class MemoryCommandBarControls : public CommandBarControls {
 public:
  MemoryCommandBarControls() = default;
  ~MemoryCommandBarControls() override;
  MemoryCommandBarControls(const MemoryCommandBarControls&) = delete;
  MemoryCommandBarControls& operator=(const MemoryCommandBarControls&) = delete;

  int Count() override;
  std::shared_ptr<CommandBarControl> Item(int index) override;
  std::shared_ptr<CommandBarControl> Item(std::string_view caption) override;
  std::shared_ptr<CommandBarControl> Add(const NewControl& control) override;

  // What the seam has not; these raise an error for a place that there is not.

  /// Adds another control that is as this one, a popup with its entries.
  std::shared_ptr<MemoryCommandBarControl> AddCopyOf(const MemoryCommandBarControl& control,
                                                     int before = 0);
  /// Takes a control from where it stands. A popup cannot be moved into its own entries.
  void TakeOver(const std::shared_ptr<MemoryCommandBarControl>& control, int before = 0);

  // For the environment and for tests.

  const std::vector<std::shared_ptr<MemoryCommandBarControl>>& All() const { return controls_; }

  /// The first control of which all is true that the query says; null when there is none.
  std::shared_ptr<MemoryCommandBarControl> Find(const ControlQuery& query) const;

  /// Adds one of the environment's own commands; action may be empty.
  std::shared_ptr<MemoryCommandBarControl> AddBuiltIn(int id, std::string_view caption,
                                                      std::function<void()> action = {},
                                                      int before = 0);
  std::shared_ptr<MemoryCommandBarControl> AddBuiltInPopup(std::string_view caption);
  /// Adds a popup that shows the entries of a bar.
  std::shared_ptr<MemoryCommandBarControl> AddMenu(std::string_view caption,
                                                   std::shared_ptr<MemoryCommandBar> bar,
                                                   int id = control_id::kCustom);

  /// From 1; 0 for a control that does not stand here.
  int IndexOf(const MemoryCommandBarControl& control) const;

  /// Takes a control of these out and hands it over.
  std::shared_ptr<MemoryCommandBarControl> Remove(const MemoryCommandBarControl& control);

  void RemoveTemporary();

  /// Deletes all of them; every operation raises an error from now on.
  void Vanish();

  /// Where they stand in the end. Raises an error while their bar is in no environment.
  MemoryCommandBars& Bars() const;
  void SetBars(MemoryCommandBars& bars);

  void NoteChange();

 private:
  void CheckLiving() const;
  void CheckPlace(int before);
  /// Whether these are the entries of the popup or of one in it.
  bool StandIn(const MemoryCommandBarControl& popup) const;
  std::vector<std::shared_ptr<MemoryCommandBarControl>>::const_iterator PlaceAt(int before) const;
  std::shared_ptr<MemoryCommandBarControl> Insert(const NewControl& control,
                                                  std::shared_ptr<MemoryCommandBar> menu);

  MemoryCommandBars* bars_ = nullptr;
  std::vector<std::shared_ptr<MemoryCommandBarControl>> controls_;
  bool isDeleted_ = false;
};

}  // namespace brimwork
