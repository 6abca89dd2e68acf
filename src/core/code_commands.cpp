#include "core/code_commands.h"

#include <memory>

#include "environment/text.h"
#include "ide_windows/modSpellCheck.h"
#include "transform/code_source.h"
#include "transform/modCommentCode.h"
#include "transform/modErrorHandling.h"
#include "transform/modIndentCode.h"
#include "transform/modLineNumbers.h"
#include "transform/procedure_bounds.h"

namespace brimwork {

void IndentProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt(
      [&] { IndentCode(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
}

void UnnumberProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt(
      [&] { RemoveLineNumbers(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
  IndentProcedure(addIn);
}

void NumberProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  UnnumberProcedure(addIn);
  addIn.Attempt(
      [&] { AddLineNumbers(addIn.context, procedure.FirstBodyLine, procedure.LastBodyLine); });
}

void HandleErrorsInProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  int firstLine = procedure.FirstBodyLine;
  int lastLine = procedure.LastBodyLine;
  addIn.Attempt([&] {
    InsertErrorHandling(addIn.context, true, firstLine, lastLine, procedure.CurrentProcName,
                        procedure.CurrentProcKind, KindWordOf(procedure.CurrentProcDeclaration));
  });
}

void FrameProcedure(AddIn& addIn) {
  const CurrentProcedure& procedure = addIn.context.procedure;
  addIn.Attempt([&] {
    CommentProcedure(addIn.context, procedure.CurrentProcName, procedure.CurrentProcKind,
                     procedure.CurrentProcSignature);
  });
}

std::string_view KindWordOf(std::string_view declaration) {
  if (Contains(declaration, "Sub")) return "Sub";
  if (Contains(declaration, "Function")) return "Function";
  return "Property";
}

void InsertStandardHeader(AddIn& addIn) {
  addIn.Attempt([&] { InsertHeader(addIn.context, header_kind::kStandard); });
}

void InsertAdaptedHeader(AddIn& addIn) {
  addIn.Attempt([&] { InsertHeader(addIn.context, header_kind::kAdapted); });
}

bool FindCurrentProcedure(AddIn& addIn) {
  bool isValid = false;
  addIn.Attempt([&] {
    const auto module = ActiveCodeModule(addIn.environment);
    isValid = IsValidCodeSource(addIn.environment, module);
    if (!isValid) return;
    if (const auto pane = addIn.environment.vbe.ActiveCodePane()) {
      GetProcedureBounds(addIn.context, *module, pane->GetSelection().startLine);
    }
  });
  return isValid;
}

void StampTime(AddIn& addIn) {
  addIn.Attempt([&] { InsertTimeStamp(addIn.context); });
}

void CheckSpelling(AddIn& addIn) {
  addIn.Attempt([&] { SpellCheckQuotesAndComments(addIn.context); });
}

void Export(AddIn& addIn, std::string_view format, bool selectedOnly) {
  const ExportTools tools{addIn.environment, addIn.progressWindow, addIn.onSkippedError};
  addIn.Attempt([&] { ExportCode(tools, format, selectedOnly); });
}

}  // namespace brimwork
