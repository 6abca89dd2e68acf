#include "support/module_generator_procedures.h"

#include <array>

#include "support/module_generator_body.h"

namespace brimwork::module_generator {
namespace {

constexpr unsigned kShortestBody = 16;
constexpr unsigned kLongestBody = 25;

constexpr std::array<std::string_view, 6> kVerbs = {"Update", "Find", "Print",
                                                    "Check",  "Load", "Reserve"};
constexpr std::array<std::string_view, 6> kNouns = {"Stock", "Price",   "Order",
                                                    "Shelf", "Invoice", "Customer"};
constexpr std::array<std::string_view, 6> kAccess = {"",        "Public ", "Private ",
                                                     "Static ", "Friend ", "Private Static "};

constexpr std::string_view kParameters = "(ByVal partCode As String,~Optional quantity As Long)";

struct Form {
  std::string_view word, accessor;
  ProcKind kind;
};

constexpr std::array<Form, 6> kForms = {{
    {"Sub", "", ProcKind::kProcedure},
    {"Sub", "", ProcKind::kProcedure},
    {"Function", "", ProcKind::kProcedure},
    {"Property", "Get ", ProcKind::kPropertyGet},
    {"Property", "Let ", ProcKind::kPropertyLet},
    {"Property", "Set ", ProcKind::kPropertySet},
}};

std::string_view AccessorOf(ProcKind kind) {
  for (const Form& form : kForms) {
    if (form.kind == kind) return form.accessor;
  }
  return {};
}

std::string ParametersOf(const GeneratedProcedure& procedure) {
  switch (procedure.kind) {
    case ProcKind::kPropertyGet:
      return "() As Currency";
    case ProcKind::kPropertyLet:
      return "(ByVal amount As Currency)";
    case ProcKind::kPropertySet:
      return "(ByVal source As Object)";
    case ProcKind::kProcedure:
      break;
  }
  return std::string(kParameters) + (procedure.word == "Function" ? " As Long" : "");
}

}  // namespace

GeneratedProcedure Procedures::InventNamed(std::string_view stem) {
  const Form& form = kForms[writer_.Below(kForms.size())];
  std::string name = std::string(stem) + std::to_string(++invented_);
  return {std::move(name), std::string(form.word), form.kind};
}

GeneratedProcedure Procedures::Invent() {
  std::string stem(writer_.AnyOf(kVerbs));
  stem += writer_.AnyOf(kNouns);
  return InventNamed(stem);
}

void Procedures::List(const GeneratedProcedure& procedure) { list_.push_back(procedure); }

void Procedures::Open(const GeneratedProcedure& procedure, std::string_view access) {
  List(procedure);
  writer_.StartProcedure();
  writer_.Breakable(std::string(access) + HeadOf(procedure));
}

void Procedures::WriteBody() {
  const unsigned budget = kShortestBody + writer_.Below(kLongestBody - kShortestBody + 1);
  module_generator::WriteBody(writer_, static_cast<int>(budget));
}

void Procedures::Close(const GeneratedProcedure& procedure) {
  writer_.Line("End " + procedure.word);
}

void Procedures::WriteOrdinary() {
  const GeneratedProcedure procedure = Invent();
  writer_.Blank();
  if (writer_.OneIn(3)) writer_.Line("' what becomes of " + procedure.name);
  Open(procedure, writer_.AnyOf(kAccess));
  WriteBody();
  Close(procedure);
}

std::string HeadOf(const GeneratedProcedure& procedure) {
  std::string head = procedure.word + " ";
  head += AccessorOf(procedure.kind);
  return head + procedure.name + ParametersOf(procedure);
}

}  // namespace brimwork::module_generator
