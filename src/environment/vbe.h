// The environment's object model as far as the add-in uses it. An object that is not there (no
// active pane, no project) is a null pointer. Every operation may raise RunTimeError.
#pragma once

#include <memory>
#include <string>

#include "environment/code_module.h"

namespace brimwork {

class CodePane {
 public:
  virtual ~CodePane() = default;

  virtual std::shared_ptr<CodeModule> Module() = 0;

  virtual Selection GetSelection() = 0;

  /// Moves the caret or selection; positions behind the text are drawn back to its end.
  virtual void SetSelection(const Selection& selection) = 0;
};

class VBProject {
 public:
  virtual ~VBProject() = default;
  virtual std::string Name() = 0;
};

class Window {
 public:
  virtual ~Window() = default;
  virtual std::string Caption() = 0;
};

class VBE {
 public:
  virtual ~VBE() = default;

  /// The pane that is active or was last active.
  virtual std::shared_ptr<CodePane> ActiveCodePane() = 0;
  virtual std::shared_ptr<VBProject> ActiveVBProject() = 0;
  virtual std::shared_ptr<Window> MainWindow() = 0;
};

}  // namespace brimwork
