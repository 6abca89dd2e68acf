// The environment's object model as far as the add-in uses it. An object that is not there (no
// active pane, no project) is a null pointer. Every operation may raise RunTimeError.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/code_module.h"
#include "environment/command_bar.h"
#include "environment/window.h"

namespace brimwork {

class CodePane {
 public:
  virtual ~CodePane() = default;

  virtual std::shared_ptr<CodeModule> Module() = 0;

  /// The code window that shows the pane.
  virtual std::shared_ptr<Window> ContainingWindow() = 0;

  virtual Selection GetSelection() = 0;

  /// Moves the caret or selection; positions behind the text are drawn back to its end.
  virtual void SetSelection(const Selection& selection) = 0;
};

/// The environment's own numbers for the kinds of components.
namespace component_type {
inline constexpr int kStandardModule = 1;
inline constexpr int kClassModule = 2;
inline constexpr int kResourceFile = 4;  // without code
inline constexpr int kForm = 5;
inline constexpr int kMdiForm = 6;
inline constexpr int kPropertyPage = 7;
inline constexpr int kUserControl = 8;
inline constexpr int kUserDocument = 9;
inline constexpr int kRelatedDocument = 10;  // without code
inline constexpr int kDesigner = 11;
}  // namespace component_type

class VBComponent {
 public:
  virtual ~VBComponent() = default;
  virtual std::string Name() = 0;
  /// Raises error 32813 for a name that another component has.
  virtual void SetName(std::string_view name) = 0;
  virtual int Type() = 0;  // component_type::k...
  /// Null for a component without code.
  virtual std::shared_ptr<CodeModule> Module() = 0;
};

class VBProject {
 public:
  virtual ~VBProject() = default;
  virtual std::string Name() = 0;

  /// All components, in the order of the environment's collection.
  virtual std::vector<std::shared_ptr<VBComponent>> VBComponents() = 0;

  /// Adds a component under a name that the environment chooses. The environment may write a line
  /// into its module, as the user's options say.
  virtual std::shared_ptr<VBComponent> AddVBComponent(int type) = 0;
};

class VBE {
 public:
  virtual ~VBE() = default;

  /// The path of the environment's program file.
  virtual std::string FullName() = 0;

  /// The pane that is active or was last active.
  virtual std::shared_ptr<CodePane> ActiveCodePane() = 0;
  virtual std::shared_ptr<VBProject> ActiveVBProject() = 0;
  virtual std::shared_ptr<Window> MainWindow() = 0;

  /// Null while the main window has the focus.
  virtual std::shared_ptr<Window> ActiveWindow() = 0;

  /// All windows, in the order of the environment's collection.
  virtual std::vector<std::shared_ptr<Window>> Windows() = 0;

  /// The window of Windows() with exactly this caption, null when there is none.
  virtual std::shared_ptr<Window> WindowOfCaption(std::string_view caption) = 0;

  /// Menus and pop-up menus are among them; those are visible while they are open.
  virtual std::vector<std::shared_ptr<CommandBar>> CommandBars() = 0;

  /// The bar of CommandBars() with exactly this name, null when there is none.
  virtual std::shared_ptr<CommandBar> CommandBarOfName(std::string_view name) = 0;

  /// Raises an error when there is a bar of that name.
  virtual std::shared_ptr<CommandBar> AddCommandBar(const NewCommandBar& bar) = 0;

  /// The first control of that number on any bar, null when there is none.
  virtual std::shared_ptr<CommandBarControl> FindControl(int id) = 0;

  /// Binds onClick to the clicks of a control: Events.CommandBarEvents. Has to come behind SetTag.
  virtual std::unique_ptr<CommandBarEvents> CommandBarEventsOf(
      const std::shared_ptr<CommandBarControl>& control, ClickHandler onClick) = 0;
};

}  // namespace brimwork
