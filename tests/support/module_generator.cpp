#include "support/module_generator.h"

#include <array>

#include "support/module_generator_oddities.h"
#include "support/module_generator_procedures.h"
#include "support/module_generator_writer.h"

namespace brimwork {
namespace {

using module_generator::Procedures;
using module_generator::Writer;

void WriteDeclarations(Writer& writer) {
  constexpr std::array<std::string_view, 7> kDeclarations = {
      "Option Explicit",
      "' Parts, shelves and what was sold",
      "Private Type Shelf",
      "    Place As String",
      "    Pieces As Long",
      "End Type",
      "Private shelves() As Shelf, price As Currency",
  };
  for (const std::string_view line : kDeclarations) writer.Raw(line);
}

}  // namespace

GeneratedModule GenerateModule(const GeneratorOptions& options) {
  if (options.lines <= 0) return {};
  Writer writer(options);
  Procedures procedures(writer);
  WriteDeclarations(writer);
  if (options.oddities) module_generator::WriteOddDeclarations(writer);
  while (writer.Lines() < options.lines) {
    if (options.oddities && writer.OneIn(2)) {
      module_generator::WriteOddProcedure(writer, procedures);
    } else {
      procedures.WriteOrdinary();
    }
  }
  if (options.oddities) module_generator::WriteOddEnding(writer, procedures);
  return {writer.TakeText(), procedures.TakeList()};
}

}  // namespace brimwork
