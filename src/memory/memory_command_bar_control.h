// An entry of a command bar as plain data.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "environment/command_bar.h"

namespace brimwork {

class MemoryCommandBarControls;

class MemoryCommandBarControl : public CommandBarControl {
 public:
  /// neighbours: the collection that it stands in. entries: those of a popup, null for a button.
  MemoryCommandBarControl(MemoryCommandBarControls& neighbours, const NewControl& control,
                          std::shared_ptr<MemoryCommandBarControls> entries);
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
  void Execute() override;
  void Delete() override;
  int Style() override;
  void SetStyle(int style) override;
  void PasteFace() override;
  std::shared_ptr<CommandBarControls> Controls() override;

  // For the environment and for tests; these raise nothing.

  /// The name of the picture's resource, "" while it has no face.
  const std::string& Face() const { return face_; }
  const std::string& LastCaption() const { return caption_; }
  bool IsTemporary() const { return isTemporary_; }
  bool IsDeleted() const { return neighbours_ == nullptr; }

  /// Null for a button.
  const std::shared_ptr<MemoryCommandBarControls>& Entries() const { return entries_; }

  /// What the environment's own command does; may be empty.
  std::function<void()> action;

  /// It goes, and its entries with it unless a bar shows them too.
  void Vanish();

 private:
  /// Its neighbours. Raises an error when it has been deleted.
  MemoryCommandBarControls& Living() const;
  /// The same where it is a button.
  MemoryCommandBarControls& LivingButton() const;

  MemoryCommandBarControls* neighbours_;
  int type_;
  int id_;
  bool isTemporary_;
  std::shared_ptr<MemoryCommandBarControls> entries_;
  std::string caption_;
  std::string tag_;
  std::string face_;
  bool beginsGroup_ = false;
  int style_ = button_style::kAutomatic;
};

}  // namespace brimwork
