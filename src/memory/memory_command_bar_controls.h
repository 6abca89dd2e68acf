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
  enum class Owner { kBar, kPopup };

  explicit MemoryCommandBarControls(Owner owner) : owner_(owner) {}
  ~MemoryCommandBarControls() override;
  MemoryCommandBarControls(const MemoryCommandBarControls&) = delete;
  MemoryCommandBarControls& operator=(const MemoryCommandBarControls&) = delete;

  int Count() override;
  std::shared_ptr<CommandBarControl> Item(int index) override;
  std::shared_ptr<CommandBarControl> Item(std::string_view caption) override;
  std::shared_ptr<CommandBarControl> Add(const NewControl& control) override;

  // For the environment and for tests.

  const std::vector<std::shared_ptr<MemoryCommandBarControl>>& All() const { return controls_; }

  /// Adds one of the environment's own commands; action may be empty.
  std::shared_ptr<MemoryCommandBarControl> AddBuiltIn(int id, std::string_view caption,
                                                      std::function<void()> action = {});
  std::shared_ptr<MemoryCommandBarControl> AddBuiltInPopup(std::string_view caption);
  /// Adds a popup that shows the entries of a bar.
  std::shared_ptr<MemoryCommandBarControl> AddMenu(std::string_view caption,
                                                   const MemoryCommandBar& bar);

  /// From 1; 0 for a control that does not stand here.
  int IndexOf(const MemoryCommandBarControl& control) const;

  /// Takes a control of these out and hands it over.
  std::shared_ptr<MemoryCommandBarControl> Remove(const MemoryCommandBarControl& control);

  void RemoveTemporary();

  /// Deletes all of them; every operation raises an error from now on.
  void Vanish();

  bool BelongToABar() const { return owner_ == Owner::kBar; }

  /// Where they stand in the end. Raises an error while their bar is in no environment.
  MemoryCommandBars& Bars() const;
  void SetBars(MemoryCommandBars& bars) { bars_ = &bars; }

 private:
  void CheckLiving() const;
  std::shared_ptr<MemoryCommandBarControl> Insert(
      const NewControl& control, std::shared_ptr<MemoryCommandBarControls> entries);

  Owner owner_;
  MemoryCommandBars* bars_ = nullptr;
  std::vector<std::shared_ptr<MemoryCommandBarControl>> controls_;
  bool isDeleted_ = false;
};

}  // namespace brimwork
