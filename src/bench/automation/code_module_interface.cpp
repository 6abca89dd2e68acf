// The code modules of the object model.
#include <algorithm>
#include <string>

#include "bench/automation/columns.h"
#include "bench/automation/from_disk.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "bench/automation/module_search.h"
#include "bench/model/component_file.h"
#include "environment/run_time_error.h"
#include "memory/utf8_path.h"

namespace brimwork::bench {
namespace code_module_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }
WorkComponent& Component(Call& call) { return call.The<WorkComponent>(); }
CodeModule& Self(Call& call) { return *Component(call).Module(); }

int Line(Call& call, std::size_t index) { return static_cast<int>(call.Long(index)); }

Variant Parent(Call& call) { return ObjectOf(call, call.Shared<WorkComponent>()); }

Variant Name(Call& call) { return Variant(Component(call).Name()); }
Variant SetName(Call& call) {
  Component(call).SetName(call.Text(0));
  return Variant();
}

Variant Lines(Call& call) { return Variant(Self(call).Lines(Line(call, 0), Line(call, 1))); }
Variant CountOfLines(Call& call) { return Variant(Self(call).CountOfLines()); }
Variant CountOfDeclarationLines(Call& call) {
  return Variant(Self(call).CountOfDeclarationLines());
}

Variant InsertLines(Call& call) {
  Self(call).InsertLines(Line(call, 0), call.Text(1));
  return Variant();
}

Variant DeleteLines(Call& call) {
  Self(call).DeleteLines(Line(call, 0), static_cast<int>(call.LongOr(1, 1)));
  return Variant();
}

Variant ReplaceLine(Call& call) {
  Self(call).ReplaceLine(Line(call, 0), call.Text(1));
  return Variant();
}

// Text that is added without a place goes in front of the first procedure.
void Add(CodeModule& module, std::string_view text) {
  module.InsertLines(module.CountOfDeclarationLines() + 1, text);
}

Variant AddFromString(Call& call) {
  Add(Self(call), call.Text(0));
  return Variant();
}

Variant AddFromFile(Call& call) {
  const std::string path = call.Text(0);
  Add(Self(call),
      FromDisk([&] { return ComponentFile::Read(PathOf(path)).Source().TakeText().Joined(); }));
  return Variant();
}

ProcKind KindOf(Call& call, std::size_t index) {
  const long kind = call.Long(index);
  if (kind < 0 || kind > 3) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  return static_cast<ProcKind>(kind);
}

Variant ProcStartLine(Call& call) {
  return Variant(Self(call).ProcStartLine(call.Text(0), KindOf(call, 1)));
}
Variant ProcCountLines(Call& call) {
  return Variant(Self(call).ProcCountLines(call.Text(0), KindOf(call, 1)));
}
Variant ProcBodyLine(Call& call) {
  return Variant(Self(call).ProcBodyLine(call.Text(0), KindOf(call, 1)));
}

Variant ProcOfLine(Call& call) {
  const ProcedureName procedure = Self(call).ProcOfLine(Line(call, 0));
  call.Return(1, static_cast<long>(procedure.kind));
  return Variant(procedure.name);
}

// The procedure comes at the end of the module, with a line between it and what stands above.
Variant CreateEventProc(Call& call) {
  CodeModule& module = Self(call);
  const std::string declaration = "Private Sub " + call.Text(1) + "_" + call.Text(0) + "()";
  const int behind = module.CountOfLines() + 1;
  const bool isFirst = behind == 1;
  module.InsertLines(behind, (isFirst ? "" : "\r\n") + declaration + "\r\n\r\nEnd Sub");
  return Variant(isFirst ? behind : behind + 1);
}

Variant Find(Call& call) {
  Selection range =
      InCharacters(Self(call), {Line(call, 1), Line(call, 2), Line(call, 3), Line(call, 4)});
  const SearchOptions options{call.BoolOr(5, false), call.BoolOr(6, false), call.BoolOr(7, false)};
  const bool found = FindInModule(Self(call), call.Text(0), options, range);
  if (!found) return Variant(false);
  range = InUnits(Self(call), range);
  call.Return(1, range.startLine);
  call.Return(2, range.startColumn);
  call.Return(3, range.endLine);
  call.Return(4, range.endColumn);
  return Variant(true);
}

Variant CodePaneOf(Call& call) {
  return ObjectOf(call, WorkbenchOf(call).PaneOf(call.Shared<WorkComponent>()));
}

constexpr Parameters kProcedure(L"ProcName", L"ProcKind");

constexpr Member kMembers[] = {
    GetPut(L"Name", DISPID_VALUE, Name, SetName),
    Get(L"Parent", 0x60020000, Parent),
    Get(L"VBE", 0x60020001, VbeOf),
    Method(L"AddFromString", 0x60020004, AddFromString, Parameters(L"String")),
    Method(L"AddFromFile", 0x60020005, AddFromFile, Parameters(L"FileName")),
    Get(L"Lines", 0x60020006, Lines, Parameters(L"StartLine", L"Count")),
    Get(L"CountOfLines", 0x60020007, CountOfLines),
    Method(L"InsertLines", 0x60020008, InsertLines, Parameters(L"Line", L"String")),
    Method(L"DeleteLines", 0x60020009, DeleteLines, Parameters(L"StartLine", L"?Count")),
    Method(L"ReplaceLine", 0x6002000A, ReplaceLine, Parameters(L"Line", L"String")),
    Get(L"ProcStartLine", 0x6002000B, ProcStartLine, kProcedure),
    Get(L"ProcCountLines", 0x6002000C, ProcCountLines, kProcedure),
    Get(L"ProcBodyLine", 0x6002000D, ProcBodyLine, kProcedure),
    Get(L"ProcOfLine", 0x6002000E, ProcOfLine, Parameters(L"Line", L"ProcKind")),
    Get(L"CountOfDeclarationLines", 0x6002000F, CountOfDeclarationLines),
    Method(L"CreateEventProc", 0x60020010, CreateEventProc,
           Parameters(L"EventName", L"ObjectName")),
    Method(L"Find", 0x60020011, Find,
           Parameters(L"Target", L"StartLine", L"StartColumn", L"EndLine", L"EndColumn",
                      L"?WholeWord", L"?MatchCase", L"?PatternSearch")),
    Get(L"CodePane", 0x60020012, CodePaneOf),
    Get(L"Members", 0x60020013, NotOffered),
};

}  // namespace code_module_interface

constinit const InterfaceTable kCodeModule{"CodeModule", iid::kCodeModule,
                                           code_module_interface::kMembers};

}  // namespace brimwork::bench
