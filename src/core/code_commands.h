// The commands on code: on the procedure at the caret, on the selection, and what is done to each
// procedure of a module. All pass over run-time errors step by step.
#pragma once

#include <string_view>

#include "core/add_in.h"
#include "export/modExportCode.h"
#include "ide_windows/modTweakWindow.h"

namespace brimwork {

// What is done to the current procedure, by the single commands and by the walk alike.

void IndentProcedure(AddIn& addIn);
void UnnumberProcedure(AddIn& addIn);
void NumberProcedure(AddIn& addIn);
void HandleErrorsInProcedure(AddIn& addIn);
void FrameProcedure(AddIn& addIn);

/// The kind word for a procedure's exit statement: "Sub" when its declaration contains "Sub", else
/// "Function" when it contains "Function", else "Property".
std::string_view KindWordOf(std::string_view declaration);

void InsertStandardHeader(AddIn& addIn);
void InsertAdaptedHeader(AddIn& addIn);

/// Finds the procedure at the caret; false, after telling the user, when there is no code source.
bool FindCurrentProcedure(AddIn& addIn);

template <void (*act)(AddIn&)>
void OnCurrentProcedure(AddIn& addIn) {
  if (FindCurrentProcedure(addIn)) act(addIn);
}

template <void (*act)(AddIn&)>
void OnCurrentProcedureLocked(AddIn& addIn) {
  if (!FindCurrentProcedure(addIn)) return;
  const RedrawLock lock(addIn.environment);
  act(addIn);
}

/// Inserts the time stamp at the caret.
void StampTime(AddIn& addIn);

/// Checks the literals and comments of the module.
void CheckSpelling(AddIn& addIn);

inline constexpr bool kSelectedOnly = true;
inline constexpr bool kWholeModule = false;

/// Exports the selection or the whole module.
void Export(AddIn& addIn, std::string_view format, bool selectedOnly);

template <const std::string_view& format, bool selectedOnly>
void ExportAs(AddIn& addIn) {
  Export(addIn, format, selectedOnly);
}

}  // namespace brimwork
