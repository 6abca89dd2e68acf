#include "support/basic_execution.h"

#include <stdexcept>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "support/basic_expression.h"

namespace brimwork {

BasicExecution::BasicExecution(BasicInterpreter& module, const BasicProcedure& procedure,
                               BasicInterpreter::Arguments& arguments)
    : module_(module), procedure_(procedure), arguments_(arguments) {}

BasicValue BasicExecution::Run() {
  const std::string& type = procedure_.returnType;
  if (!type.empty()) locals_[FoldName(procedure_.name)] = {type, module_.Initial(type)};
  TakeArguments();
  while (next_ < procedure_.body.size()) {
    const BasicLine& line = procedure_.body[next_++];
    try {
      Execute(line);
    } catch (const RunTimeError&) {
      if (!resumesNext_) throw;
    }
  }
  GiveArgumentsBack();
  return type.empty() ? BasicValue() : locals_[FoldName(procedure_.name)].value;
}

BasicInterpreter::Variable* BasicExecution::Find(std::string_view name) {
  const auto local = locals_.find(FoldName(name));
  return local != locals_.end() ? &local->second : module_.ModuleVariable(name);
}

void BasicExecution::TakeArguments() {
  if (arguments_.size() > procedure_.parameters.size()) {
    throw std::logic_error("too many arguments for " + procedure_.name);
  }
  for (std::size_t i = 0; i < procedure_.parameters.size(); ++i) {
    const BasicParameter& parameter = procedure_.parameters[i];
    if (i >= arguments_.size() && !parameter.isOptional) {
      throw std::logic_error("too few arguments for " + procedure_.name);
    }
    const BasicValue value = i < arguments_.size()    ? arguments_[i]
                             : parameter.defaultValue ? *parameter.defaultValue
                                                      : module_.Initial(parameter.type);
    locals_[FoldName(parameter.name)] = {parameter.type, Coerced(value, parameter.type)};
  }
}

void BasicExecution::GiveArgumentsBack() {
  for (std::size_t i = 0; i < arguments_.size(); ++i) {
    const BasicParameter& parameter = procedure_.parameters[i];
    if (parameter.isByRef) arguments_[i] = locals_[FoldName(parameter.name)].value;
  }
}

void BasicExecution::Execute(const BasicLine& line) {
  const BasicToken& word = line[0];
  if (word.Is("Dim")) return Declare(line);
  if (word.Is("On")) return void(resumesNext_ = true);
  if (word.Is("If")) return ExecuteIf(line);
  if (word.Is("Else")) return void(next_ = FindInBlock("End"));
  if (word.Is("Select")) return ExecuteSelect(line);
  if (word.Is("Case")) return void(next_ = FindInBlock("End"));
  if (word.Is("For")) return ExecuteFor(line);
  if (word.Is("Next")) return ExecuteNext();
  if (word.Is("End")) return;
  if (word.Is("Exit")) return void(next_ = procedure_.body.size());
  if (word.Is("Set")) return Assign(line, 1);
  ExecuteSimple(line, 0);
}

void BasicExecution::ExecuteIf(const BasicLine& line) {
  BasicExpression expression(*this, line, 1);
  const bool holds = AsBoolean(expression.Evaluate());
  expression.Expect("Then");
  if (expression.AtEnd()) {
    if (!holds) next_ = FindInBlock("Else") + 1;
  } else if (holds) {
    line[expression.At()].Is("Exit") ? void(next_ = procedure_.body.size())
                                     : ExecuteSimple(line, expression.At());
  }
}

/// Each Case of the block holds one value.
void BasicExecution::ExecuteSelect(const BasicLine& line) {
  const BasicValue chosen = BasicExpression(*this, line, 2).Evaluate();
  for (next_ = FindInBlock("Case"); procedure_.body[next_][0].Is("Case");
       next_ = FindInBlock("Case")) {
    const BasicLine& label = procedure_.body[next_++];
    if (AsBoolean(Applied("=", chosen, BasicExpression(*this, label, 1).Evaluate()))) return;
  }
}

void BasicExecution::ExecuteFor(const BasicLine& line) {
  BasicInterpreter::Variable* counter = Find(line.at(1).text);
  if (counter == nullptr) throw std::logic_error("there is no " + line[1].text);
  BasicExpression expression(*this, line, 3);
  counter->value = Coerced(expression.Evaluate(), counter->type);
  expression.Expect("To");
  loops_.push_back({counter, AsLong(expression.Evaluate()), next_});
  if (AsLong(counter->value) <= loops_.back().last) return;
  next_ = FindInBlock("Next") + 1;
  loops_.pop_back();
}

void BasicExecution::ExecuteNext() {
  Loop& loop = loops_.back();
  loop.counter->value =
      Coerced(Applied("+", loop.counter->value, std::int16_t{1}), loop.counter->type);
  if (AsLong(loop.counter->value) <= loop.last) return void(next_ = loop.body);
  loops_.pop_back();
}

void BasicExecution::ExecuteSimple(const BasicLine& line, std::size_t at) {
  if (line.size() > at + 1 && line[at + 1].Is("=")) return Assign(line, at);
  const std::string& name = line[at].text;
  if (!module_.IsCallable(name)) throw std::logic_error("there is no procedure " + name);
  BasicExpression expression(*this, line, at + 1);
  const auto arguments =
      expression.AtEnd() ? BasicExpression::CallArguments() : expression.EvaluateArguments();
  if (!expression.AtEnd()) throw std::logic_error("something stands behind a call of " + name);
  module_.CallAny(name, arguments.values, arguments.byVal);
}

void BasicExecution::Assign(const BasicLine& line, std::size_t at) {
  BasicInterpreter::Variable* variable = Find(line.at(at).text);
  if (variable == nullptr) throw std::logic_error("there is no " + line[at].text);
  BasicExpression expression(*this, line, at + 2);
  const BasicValue value = expression.Evaluate();
  if (!expression.AtEnd()) throw std::logic_error("something stands behind an assignment");
  variable->value = Coerced(value, variable->type);
}

void BasicExecution::Declare(const BasicLine& line) {
  const std::string& type = line.at(3).text;
  locals_[FoldName(line[1].text)] = {type, module_.Initial(type)};
}

bool BasicExecution::OpensBlock(const BasicLine& line) const {
  return line[0].Is("For") || line[0].Is("Select") || (line[0].Is("If") && line.back().Is("Then"));
}

bool BasicExecution::ClosesBlock(const BasicLine& line) {
  return line[0].Is("Next") || (line[0].Is("End") && line.size() == 2);
}

std::size_t BasicExecution::FindInBlock(std::string_view word) const {
  int depth = 0;
  for (std::size_t at = next_; at < procedure_.body.size(); ++at) {
    const BasicLine& line = procedure_.body[at];
    if (depth == 0 && (line[0].Is(word) || ClosesBlock(line))) return at;
    if (OpensBlock(line)) ++depth;
    if (ClosesBlock(line)) --depth;
  }
  throw std::logic_error("a block is not closed in " + procedure_.name);
}

}  // namespace brimwork
