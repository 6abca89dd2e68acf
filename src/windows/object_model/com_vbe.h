// The environment over COM. Its objects release what they hold when they go.
#pragma once

#include "environment/vbe.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComVbe : public VBE {
 public:
  /// vbe is not null. The environment's objects belong to its thread, and so do these.
  /// inUse is held by what the environment holds of the add-in's; it may be null.
  explicit ComVbe(win32::ComPointer<IDispatch> vbe, Patience patience = {},
                  std::shared_ptr<const void> inUse = nullptr);

  /// From now on each call, that of an object handed out before, too, raises error 440 and does not
  /// reach the environment, and the environment is no longer held.
  void End();

  /// That of the running program where the environment does not say: it is in its process.
  std::string FullName() override;
  std::shared_ptr<CodePane> ActiveCodePane() override;
  std::shared_ptr<VBProject> ActiveVBProject() override;
  std::shared_ptr<Window> MainWindow() override;
  std::shared_ptr<Window> ActiveWindow() override;
  std::vector<std::shared_ptr<Window>> Windows() override;
  std::shared_ptr<Window> WindowOfCaption(std::string_view caption) override;
  std::vector<std::shared_ptr<CommandBar>> CommandBars() override;
  std::shared_ptr<CommandBar> CommandBarOfName(std::string_view name) override;
  std::shared_ptr<CommandBar> AddCommandBar(const NewCommandBar& bar) override;
  std::shared_ptr<CommandBarControl> FindControl(int id) override;
  /// control is one of this environment's.
  std::unique_ptr<CommandBarEvents> CommandBarEventsOf(
      const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) override;

 private:
  DispatchObject Bars() const;

  DispatchObject vbe_;
};

}  // namespace brimwork::windows
