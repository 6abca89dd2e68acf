// An entry of a command bar as plain data.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "environment/command_bar.h"
#include "memory/control_details.h"

namespace brimwork {

class MemoryCommandBar;
class MemoryCommandBarControls;

class MemoryCommandBarControl : public CommandBarControl,
                                public std::enable_shared_from_this<MemoryCommandBarControl> {
 public:
  /// neighbours: the collection that it stands in. menu: the bar that a popup opens, null for a
  /// button.
  MemoryCommandBarControl(MemoryCommandBarControls& neighbours, const NewControl& control,
                          std::shared_ptr<MemoryCommandBar> menu);
  ~MemoryCommandBarControl() override;

  int Type() override;
  int Id() override;
  int Index() override;
  std::string Caption() override;
  void SetCaption(std::string_view caption) override;
  std::string Tag() override;
  void SetTag(std::string_view tag) override;
  bool BeginGroup() override;
  void SetBeginGroup(bool begins) override;
  /// Raises the unspecified error while it is disabled.
  void Execute() override;
  void Delete() override;
  int Style() override;
  void SetStyle(int style) override;
  void PasteFace() override;
  std::shared_ptr<CommandBarControls> Controls() override;

  // What the seam has not; these raise an error when it has been deleted.

  const ControlDetails& Details() const;
  /// Another face than before takes the place of a pasted one.
  void SetDetails(ControlDetails details);

  /// Gives it the face of the environment's command, or none, in the place of a pasted one.
  void ResetFace();

  // For the environment and for tests; these raise nothing.

  /// The name of the picture's resource, "" while it has no face of its own.
  const std::string& Face() const { return face_; }
  const std::string& LastCaption() const { return caption_; }
  const std::string& LastTag() const { return tag_; }
  int Kind() const { return type_; }  // control_type::k...
  int Number() const { return id_; }  // its Id
  bool BeginsGroup() const { return beginsGroup_; }
  int LastStyle() const { return style_; }
  bool IsBuiltIn() const { return command_ != 0; }
  bool IsTemporary() const { return isTemporary_; }
  bool IsDeleted() const { return neighbours_ == nullptr; }

  /// Which of the environment's commands it is (see usual_commands.h), 0 for none.
  int Command() const { return command_; }
  void SetCommand(int command) { command_ = command; }

  /// The bar that a popup opens; null for a button.
  const std::shared_ptr<MemoryCommandBar>& Menu() const { return menu_; }
  /// The entries of that bar; null for a button.
  const std::shared_ptr<MemoryCommandBarControls>& Entries() const;

  /// The collection that it stands in; null when it has been deleted.
  MemoryCommandBarControls* Neighbours() const { return neighbours_; }
  void SetNeighbours(MemoryCommandBarControls& neighbours) { neighbours_ = &neighbours; }

  /// What this control does in the place of what its command does everywhere; may be empty.
  std::function<void()> action;

  /// It goes, and its entries with it unless a bar shows them too.
  void Vanish();

  /// What the other one is, but for its place and its entries.
  void TakeAfter(const MemoryCommandBarControl& other);

 private:
  /// Its neighbours. Raises an error when it has been deleted.
  MemoryCommandBarControls& Living() const;
  /// The same where it is a button.
  MemoryCommandBarControls& LivingButton() const;
  template <class Value, class NewValue>
  void Set(Value& value, NewValue&& newValue);

  MemoryCommandBarControls* neighbours_;
  int type_;
  int id_;
  int command_ = 0;
  bool isTemporary_;
  std::shared_ptr<MemoryCommandBar> menu_;
  std::string caption_;
  std::string tag_;
  std::string face_;
  bool beginsGroup_ = false;
  int style_ = button_style::kAutomatic;
  ControlDetails details_;
};

}  // namespace brimwork
