#include "support/module_generator_oddities.h"

#include <array>

namespace brimwork::module_generator {
namespace {

constexpr std::array<std::string_view, 25> kDeclarations = {
    "#Const DEBUGGING = False",
    "#If DEBUGGING Then",
    "Private Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
    "#Else",
    "Private Declare Function Nap% Lib \"clock\" ()",
    "#End If",
    "' Sub InAComment()",
    "Rem Public Function InARemark()",
    "Private Const HELP_TEXT = \"Sub InALiteral()\"",
    "Private Type PartRecord",
    "    Sub As Long",
    "    Function As String",
    "    Static As Long: Property As Long",
    "End Type",
    "public enum PartState",
    "    Sub",
    "    Friend Sub",
    "    Größe = 3 ' £",
    "End Enum ' End Sub",
    "' this comment goes on _",
    "Sub StillAComment()",
    "Dim first As Long, _",
    "    second As Long",
    "Dim subTotal As Long, endDate As Date",
    "",
};

using Shape = void (*)(Writer&, Procedures&);

void WritePropertyTrio(Writer& writer, Procedures& procedures) {
  GeneratedProcedure property = procedures.Invent();
  property.word = "Property";
  for (const ProcKind kind :
       {ProcKind::kPropertyGet, ProcKind::kPropertyLet, ProcKind::kPropertySet}) {
    property.kind = kind;
    procedures.Open(property, writer.OneIn(2) ? "Public " : "");
    procedures.WriteBody();
    procedures.Close(property);
  }
}

void WriteOneLiner(Writer& writer, Procedures& procedures) {
  const GeneratedProcedure procedure = procedures.Invent();
  procedures.List(procedure);
  writer.Line("Public " + HeadOf(procedure) + ": total = 1: End " + procedure.word);
}

void WriteEmpty(Writer&, Procedures& procedures) {
  const GeneratedProcedure procedure = procedures.Invent();
  procedures.Open(procedure, "Private ");
  procedures.Close(procedure);
}

/// No # line may stand here: it would make the next declaration an alternative head of this one.
void WriteWithoutClosingLine(Writer& writer, Procedures& procedures) {
  procedures.Open(procedures.Invent(), "Public ");
  writer.Line("total = 0");
  writer.Line("If total = 0 Then");
  writer.Line("' End Sub is missing below");
}

void WriteUnclosedThenOrdinary(Writer& writer, Procedures& procedures) {
  WriteWithoutClosingLine(writer, procedures);
  procedures.WriteOrdinary();
}

void WriteAlternativeHeads(Writer& writer, Procedures& procedures) {
  const GeneratedProcedure procedure = procedures.Invent();
  writer.Line("#If DEBUGGING Then");
  procedures.Open(procedure, "Public ");
  writer.Line("#Else");
  writer.Breakable("Private " + HeadOf(procedure));
  writer.Line("#End If");
  procedures.WriteBody();
  procedures.Close(procedure);
}

void WriteAlternativeProcedures(Writer& writer, Procedures& procedures) {
  const GeneratedProcedure procedure = procedures.Invent();
  for (const std::string_view condition : {"#If DEBUGGING Then", "#Else"}) {
    writer.Line(condition);
    procedures.Open(procedure, "");
    procedures.WriteBody();
    procedures.Close(procedure);
  }
  writer.Line("#End If");
}

void WriteUnusualClosing(Writer& writer, Procedures& procedures) {
  constexpr std::array<std::string_view, 8> kClosings = {
      "end sub",  "END  FUNCTION ' the End Sub's end", "990: End Property", "\t990 End Sub",
      "End\tSub", "total = 0: End Function",           "End Sub: Rem done", "done: end property",
  };
  procedures.Open(procedures.Invent(), "");
  procedures.WriteBody();
  writer.Line(writer.AnyOf(kClosings));
}

void WriteNamesThatDifferByCase(Writer&, Procedures& procedures) {
  GeneratedProcedure procedure = procedures.InventNamed("SHELFÄÖÜ");
  for (const std::string_view stem : {"SHELFÄÖÜ", "Shelfäöü"}) {
    procedure.name.replace(0, stem.size(), stem);
    procedures.Open(procedure, "");
    procedures.WriteBody();
    procedures.Close(procedure);
  }
}

void WriteUnusualName(Writer& writer, Procedures& procedures) {
  constexpr std::array<std::string_view, 6> kStems = {"PrüfeGröße", "EndGame",  "Subtract",
                                                      "ÉtatSub",    "ExitSub_", "CaseEnd"};
  const GeneratedProcedure procedure = procedures.InventNamed(writer.AnyOf(kStems));
  procedures.Open(procedure, "Friend ");
  procedures.WriteBody();
  procedures.Close(procedure);
}

void WriteUnusualDeclaration(Writer& writer, Procedures& procedures) {
  GeneratedProcedure procedure = procedures.Invent();
  procedure.kind = ProcKind::kProcedure;
  procedure.word = "Function";
  procedures.List(procedure);
  const std::array<std::string, 4> declarations = {
      "public  static\tFunction " + procedure.name + "$ (a)",
      "Function\t" + procedure.name + "' no parentheses",
      "Static Public Function " + procedure.name + ": total = 1",
      "PRIVATE Function  " + procedure.name + "&() As Long ' End Function",
  };
  writer.Line(declarations[writer.Below(declarations.size())]);
  procedures.WriteBody();
  procedures.Close(procedure);
}

constexpr std::array<Shape, 10> kShapes = {
    WritePropertyTrio,
    WriteOneLiner,
    WriteEmpty,
    WriteUnclosedThenOrdinary,
    WriteAlternativeHeads,
    WriteAlternativeProcedures,
    WriteUnusualClosing,
    WriteNamesThatDifferByCase,
    WriteUnusualName,
    WriteUnusualDeclaration,
};

}  // namespace

void WriteOddDeclarations(Writer& writer) {
  for (const std::string_view line : kDeclarations) writer.Raw(line);
}

void WriteOddProcedure(Writer& writer, Procedures& procedures) {
  if (writer.OneIn(2)) writer.Line("' the next one is for End users");
  kShapes[writer.Below(kShapes.size())](writer, procedures);
  if (writer.OneIn(4)) writer.Line("Rem End Sub of all that");
}

void WriteOddEnding(Writer& writer, Procedures& procedures) {
  if (writer.OneIn(3)) WriteWithoutClosingLine(writer, procedures);
  writer.Blank();
  writer.Line("' that is the End, Sub and Function alike");
  writer.Blank();
}

}  // namespace brimwork::module_generator
