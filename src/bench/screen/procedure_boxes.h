// The two drop-down lists above a module's text: they show where the caret is, and take it
// elsewhere.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "bench/model/surface.h"
#include "bench/screen/procedure_lists.h"

namespace brimwork::bench {

class ProcedureBoxes {
 public:
  static constexpr int kHeight = 22;

  /// go: takes the caret to a line that the user chose.
  ProcedureBoxes(HWND parent, HFONT font, std::function<void(const ListedProcedure&)> go);

  /// Shows the module's procedures, and that of the line as the current one.
  void Refresh(MemoryCodeModule& module, bool handlesEvents, int line);

  void Place(int left, int top, int width);

  /// Answers a list's notification to its parent; false when it is of something else.
  bool OnCommand(HWND list, int notification);

  HWND Objects() const { return objects_; }
  HWND Procedures() const { return procedures_; }

 private:
  void ShowObjects();
  void ShowProceduresOf(const std::string& object);
  void ShowCurrent(int line);
  std::string ChosenObject() const;
  void GoToChosenObject();
  void GoToChosenProcedure();

  std::function<void(const ListedProcedure&)> go_;
  HWND objects_;  // both go with their parent
  HWND procedures_;
  std::vector<ListedProcedure> all_;
  std::vector<ListedProcedure> shown_;  // what the right list holds behind its first entry
  std::string object_;                  // whose procedures those are
  std::uint64_t revision_ = 0;
  bool isFilled_ = false;
};

}  // namespace brimwork::bench
