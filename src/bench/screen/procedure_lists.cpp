#include "bench/screen/procedure_lists.h"

#include <algorithm>
#include <utility>

namespace brimwork::bench {
namespace {

std::string_view WordOf(ProcKind kind) {
  switch (kind) {
    case ProcKind::kPropertyGet:
      return " [PropertyGet]";
    case ProcKind::kPropertyLet:
      return " [PropertyLet]";
    case ProcKind::kPropertySet:
      return " [PropertySet]";
    default:
      return "";
  }
}

/// Where an event's name begins; npos for a procedure that handles none.
std::size_t StartOfEvent(const ProcedureName& name) {
  if (name.kind != ProcKind::kProcedure) return std::string::npos;
  const auto line = name.name.rfind('_');
  const bool hasBoth = line != std::string::npos && line > 0 && line + 1 < name.name.size();
  return hasBoth ? line + 1 : std::string::npos;
}

ListedProcedure Named(const ProcedureName& name, bool handlesEvents) {
  const auto event = handlesEvents ? StartOfEvent(name) : std::string::npos;
  if (event == std::string::npos) return {"", name.name + std::string(WordOf(name.kind))};
  return {name.name.substr(0, event - 1), name.name.substr(event)};
}

}  // namespace

// A name that is there twice answers for its first bearer, so lines are never asked about twice.
std::vector<ListedProcedure> ListProcedures(CodeModule& module, bool handlesEvents) {
  std::vector<ListedProcedure> procedures;
  const int lines = module.CountOfLines();
  for (int line = module.CountOfDeclarationLines() + 1; line <= lines;) {
    const ProcedureName name = module.ProcOfLine(line);
    if (name.name.empty()) break;
    ListedProcedure procedure = Named(name, handlesEvents);
    procedure.start = line;
    procedure.body = std::max(module.ProcBodyLine(name.name, name.kind), line);
    const int start = module.ProcStartLine(name.name, name.kind);
    procedure.end = std::max(start + module.ProcCountLines(name.name, name.kind) - 1, line);
    line = procedure.end + 1;
    procedures.push_back(std::move(procedure));
  }
  return procedures;
}

std::vector<std::string> ObjectsOf(const std::vector<ListedProcedure>& procedures) {
  std::vector<std::string> objects;
  for (const ListedProcedure& procedure : procedures) {
    if (!procedure.object.empty()) objects.push_back(procedure.object);
  }
  std::ranges::sort(objects);
  const auto twice = std::ranges::unique(objects);
  objects.erase(twice.begin(), twice.end());
  return objects;
}

const ListedProcedure* ProcedureAt(const std::vector<ListedProcedure>& procedures, int line) {
  const auto found = std::ranges::find_if(procedures, [line](const ListedProcedure& procedure) {
    return line >= procedure.start && line <= procedure.end;
  });
  return found == procedures.end() ? nullptr : &*found;
}

}  // namespace brimwork::bench
