#include "support/basic_interpreter.h"

#include <stdexcept>
#include <utility>

#include "environment/text.h"
#include "support/basic_execution.h"

namespace brimwork {
namespace {

[[noreturn]] void Complain(std::string_view what, std::string_view name) {
  throw std::logic_error(std::string(what) + ' ' + std::string(name));
}

}  // namespace

BasicValue BasicRecord::Member(std::string_view name,
                               const std::vector<BasicValue>& /*arguments*/) {
  const auto member = members.find(FoldName(name));
  if (member == members.end()) Complain("the record has no member", name);
  return member->second;
}

BasicInterpreter::BasicInterpreter(BasicProgram program) : program_(std::move(program)) {
  for (const auto& [name, type] : program_.variables) {
    variables_[FoldName(name)] = {type, Initial(type)};
  }
}

void BasicInterpreter::Bind(std::string_view name, Function function) {
  functions_[FoldName(name)] = std::move(function);
}

void BasicInterpreter::Bind(std::string_view name, std::shared_ptr<BasicObject> object) {
  objects_[FoldName(name)] = std::move(object);
}

BasicValue BasicInterpreter::Call(std::string_view procedure, Arguments& arguments) {
  const BasicProcedure* called = NamedIn(program_.procedures, procedure);
  if (called == nullptr) Complain("there is no procedure", procedure);
  return BasicExecution(*this, *called, arguments).Run();
}

std::string BasicInterpreter::ProcedureAt(std::int32_t address) const {
  return program_.procedures.at(static_cast<std::size_t>(address - 1)).name;
}

BasicValue BasicInterpreter::Initial(std::string_view type) const {
  const auto record = program_.types.find(std::string(type));
  if (record == program_.types.end()) return InitialValue(type);
  auto value = std::make_shared<BasicRecord>();
  for (const auto& member : record->second) {
    value->members[FoldName(member.name)] = InitialValue(member.type);
  }
  return value;
}

BasicInterpreter::Variable* BasicInterpreter::ModuleVariable(std::string_view name) {
  const auto variable = variables_.find(FoldName(name));
  return variable == variables_.end() ? nullptr : &variable->second;
}

const BasicConstant* BasicInterpreter::Constant(std::string_view name) const {
  return NamedIn(program_.constants, name);
}

std::shared_ptr<BasicObject> BasicInterpreter::Object(std::string_view name) const {
  const auto object = objects_.find(FoldName(name));
  return object == objects_.end() ? nullptr : object->second;
}

bool BasicInterpreter::IsCallable(std::string_view name) const {
  return NamedIn(program_.procedures, name) != nullptr || functions_.contains(FoldName(name));
}

BasicValue BasicInterpreter::CallAny(std::string_view name, Arguments arguments,
                                     const std::vector<bool>& byVal) {
  if (NamedIn(program_.procedures, name) != nullptr) return Call(name, arguments);
  const BasicDeclare* declare = NamedIn(program_.declares, name);
  if (declare != nullptr) return CallDeclared(*declare, std::move(arguments), byVal);
  return Bound(name)(arguments);
}

std::int32_t BasicInterpreter::AddressOf(std::string_view procedure) const {
  const BasicProcedure* found = NamedIn(program_.procedures, procedure);
  if (found == nullptr) Complain("there is no procedure", procedure);
  return static_cast<std::int32_t>(found - program_.procedures.data()) + 1;
}

/// A parameter of any type takes a number only where the call says ByVal.
BasicValue BasicInterpreter::CallDeclared(const BasicDeclare& declare, Arguments arguments,
                                          const std::vector<bool>& byVal) {
  if (arguments.size() != declare.parameters.size()) Complain("wrong arguments for", declare.name);
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (byVal[i] != EqualNames(declare.parameters[i].type, "Any")) {
      Complain("an argument is passed the wrong way to", declare.name);
    }
    arguments[i] = Coerced(arguments[i], declare.parameters[i].type);
  }
  return Bound(declare.name)(arguments);
}

const BasicInterpreter::Function& BasicInterpreter::Bound(std::string_view name) const {
  const auto function = functions_.find(FoldName(name));
  if (function == functions_.end()) Complain("nothing is bound to", name);
  return function->second;
}

}  // namespace brimwork
