// A module that stands open in a code pane with the add-in connected: a test gives its lines,
// clicks commands, and reads the lines that are there afterwards.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/add_in.h"
#include "core/modButtonClicked.h"
#include "memory/memory_environment.h"
#include "settings/settings.h"
#include "support/module_lines.h"

namespace brimwork {

class OpenedModule {
 public:
  explicit OpenedModule(const TextLines& lines) { Open("Module1", lines); }

  OpenedModule(const OpenedModule&) = delete;
  OpenedModule& operator=(const OpenedModule&) = delete;

  /// Opens another module in front of this one; Lines and Click mean that one from now on.
  void Open(std::string name, const TextLines& lines) {
    panes_.push_back(environment.Open(std::move(name), ModuleText::FromText(JoinedLines(lines))));
  }

  /// Closes every pane, so that no command finds a code source.
  void Close() { environment.vbe.SetActivePane(nullptr); }

  MemoryCodePane& Pane() { return *panes_.back(); }
  CodeModule& Module() { return *panes_.back()->Module(); }
  Context& Commands() { return addIn.context; }
  TextLines Lines() { return LinesOf(Module()); }
  int CaretLine() { return Pane().GetSelection().startLine; }

  void PutCaret(int line, int column = 1) { Pane().SetSelection({line, column, line, column}); }

  /// Runs a command on the procedure at the line.
  void ClickAt(int line, std::string_view caption) {
    PutCaret(line);
    ButtonClicked(addIn, caption, false);
  }

  /// Runs a command on the whole module.
  void ClickAll(std::string_view caption) { ButtonClicked(addIn, caption, true); }

  void Set(std::string_view key, std::string_view value) {
    SaveSetting(addIn.environment, key, value);
  }

  MemoryEnvironment environment;
  AddIn addIn{environment.Parts()};

 private:
  std::vector<std::shared_ptr<MemoryCodePane>> panes_;
};

/// The lines after a command on the procedure at the line.
inline TextLines AfterClickAt(int line, std::string_view caption, const TextLines& lines) {
  OpenedModule opened(lines);
  opened.ClickAt(line, caption);
  return opened.Lines();
}

/// The lines after a command on the whole module.
inline TextLines AfterClickAll(std::string_view caption, const TextLines& lines) {
  OpenedModule opened(lines);
  opened.ClickAll(caption);
  return opened.Lines();
}

}  // namespace brimwork
