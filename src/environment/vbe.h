// The environment's object model as far as the add-in uses it. An object that is not there (no
// active pane, no project) is a null pointer. Every operation may raise RunTimeError.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/code_module.h"
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

class VBProject {
 public:
  virtual ~VBProject() = default;
  virtual std::string Name() = 0;
};

class VBE {
 public:
  virtual ~VBE() = default;

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

  virtual std::vector<std::shared_ptr<CommandBar>> CommandBars() = 0;
};

}  // namespace brimwork
