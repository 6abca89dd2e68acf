// A command bar as plain data.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "environment/command_bar.h"
#include "memory/memory_command_bar_controls.h"

namespace brimwork {

namespace bar_type {
inline constexpr int kToolbar = 0;
inline constexpr int kMenuBar = 1;
inline constexpr int kPopup = 2;
}  // namespace bar_type

/// What a bar has beside its name and its place: plain values.
struct BarDetails {
  bool enabled = true;  // one that is not is never shown
  int protection = 0;   // bits that say what the user cannot change; 0 for none
  std::string context;
  int width = 0;   // in pixels, 0 for what its controls take
  int height = 0;  // in pixels, 0 for what its controls take

  bool operator==(const BarDetails&) const = default;
};

class MemoryCommandBar : public CommandBar {
 public:
  /// One of the environment's own bars, docked and visible.
  explicit MemoryCommandBar(std::string name);
  /// A bar that was added: hidden.
  explicit MemoryCommandBar(const NewCommandBar& bar);
  /// The bar that a popup opens and no one else; it bears the popup's caption as its name.
  static std::shared_ptr<MemoryCommandBar> OfAPopup();

  std::string Name() override;
  bool Visible() override;
  /// One that is not enabled raises an error.
  void SetVisible(bool visible) override;
  int Position() override;
  void SetPosition(int position) override;
  int RowIndex() override;
  void SetRowIndex(int row) override;
  int Left() override;
  void SetLeft(int left) override;
  int Top() override;
  void SetTop(int top) override;
  std::shared_ptr<CommandBarControls> Controls() override;
  void Delete() override;

  // What the seam has not; these raise an error when it has been deleted.

  /// Raises an error for a bar of the environment's own, and for a name that another bar has.
  void SetName(std::string_view name);

  const BarDetails& Details() const;
  void SetDetails(BarDetails details);

  /// From 1 among all bars; 0 for the bar of a popup.
  int Index() const;

  // For the environment and for tests; these raise nothing.

  const std::string& LastName() const { return name_; }
  int Kind() const { return type_; }  // bar_type::k...
  int LastLeft() const { return left_; }
  int LastTop() const { return top_; }
  bool IsDeleted() const { return isDeleted_; }
  bool IsOfAPopup() const { return isOfAPopup_; }
  const std::shared_ptr<MemoryCommandBarControls>& Entries() const { return entries_; }
  bool IsBuiltIn() const { return isBuiltIn_; }
  bool IsTemporary() const { return isTemporary_; }

  /// Makes one of the environment's own bars a menu, hidden until it is opened.
  void MakeMenu();
  void MakeMenuBar();

  /// Says that the user has the menu open, or not any more.
  void NoteOpen(bool isOpen);

  void SetPopupName(std::string name) { name_ = std::move(name); }

  /// It goes with its controls.
  void Vanish();

  /// The environment that it is in.
  void SetBars(MemoryCommandBars& bars);

 private:
  void CheckLiving() const;
  template <class Value>
  void Set(Value& value, Value newValue);

  std::string name_;
  int type_ = bar_type::kToolbar;
  bool isBuiltIn_;
  bool isTemporary_ = false;
  bool isVisible_ = true;
  bool isDeleted_ = false;
  bool isOfAPopup_ = false;
  int position_ = bar_position::kTop;
  int row_ = 0;
  int left_ = 0;
  int top_ = 0;
  std::shared_ptr<MemoryCommandBarControls> entries_;
  BarDetails details_;
  MemoryCommandBars* bars_ = nullptr;
};

}  // namespace brimwork
