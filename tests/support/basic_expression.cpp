#include "support/basic_expression.h"

#include <stdexcept>

#include "environment/run_time_error.h"

namespace brimwork {

BasicValue BasicExpression::Evaluate() {
  BasicValue value = Conjunction();
  while (TakeIf("Or")) value = Applied("Or", value, Conjunction());
  return value;
}

BasicValue BasicExpression::Conjunction() {
  BasicValue value = Comparison();
  while (TakeIf("And")) value = Applied("And", value, Comparison());
  return value;
}

BasicValue BasicExpression::Comparison() {
  BasicValue value = Sum();
  for (const std::string_view symbol : {"=", "<>", "<", ">"}) {
    if (TakeIf(symbol)) return Applied(symbol, value, Sum());
  }
  return value;
}

BasicValue BasicExpression::Sum() {
  BasicValue value = Product();
  while (IsNext("+") || IsNext("-")) {
    const std::string symbol = Take().text;
    value = Applied(symbol, value, Product());
  }
  return value;
}

BasicValue BasicExpression::Product() {
  BasicValue value = Factor();
  while (IsNext("*") || IsNext("/")) {
    const std::string symbol = Take().text;
    value = Applied(symbol, value, Factor());
  }
  return value;
}

BasicValue BasicExpression::Factor() {
  if (TakeIf("-")) return Applied("-", std::int16_t{0}, Factor());
  if (TakeIf("(")) {
    BasicValue value = Evaluate();
    Expect(")");
    return value;
  }
  if (TakeIf("AddressOf")) return execution_.Module().AddressOf(Take().text);
  if (TakeIf("Nothing")) return {};
  if (AtEnd()) throw std::logic_error("an expression breaks off");
  if (line_[at_].kind == BasicToken::Kind::kNumber) return NumberLiteral(Take().text);
  if (line_[at_].kind == BasicToken::Kind::kString) return Take().text;
  return Named();
}

BasicValue BasicExpression::Named() {
  const std::string name = Take().text;
  if (const auto* variable = execution_.Find(name)) return MembersOf(variable->value);
  if (const auto* constant = execution_.Module().Constant(name)) return constant->value;
  if (const auto object = execution_.Module().Object(name)) return MembersOf(object);
  if (execution_.Module().IsCallable(name)) return CallNamed(name);
  throw std::logic_error("there is no " + name);
}

BasicValue BasicExpression::MembersOf(BasicValue value) {
  if (const auto* list = std::get_if<std::vector<std::string>>(&value); list && IsNext("(")) {
    const auto index = static_cast<std::size_t>(AsLong(BracketedArguments().values.at(0)));
    if (index >= list->size()) {
      throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range");
    }
    return (*list)[index];
  }
  while (TakeIf(".")) {
    const std::string name = Take().text;
    const auto arguments = IsNext("(") ? BracketedArguments() : CallArguments();
    const auto* object = std::get_if<std::shared_ptr<BasicObject>>(&value);
    if (object == nullptr) throw RunTimeError(error_number::kObjectNotSet, "Object not set");
    value = (*object)->Member(name, arguments.values);
  }
  return value;
}

BasicValue BasicExpression::CallNamed(std::string_view name) {
  const auto arguments = IsNext("(") ? BracketedArguments() : CallArguments();
  return execution_.Module().CallAny(name, arguments.values, arguments.byVal);
}

BasicExpression::CallArguments BasicExpression::BracketedArguments() {
  Expect("(");
  CallArguments arguments = IsNext(")") ? CallArguments() : EvaluateArguments();
  Expect(")");
  return arguments;
}

BasicExpression::CallArguments BasicExpression::EvaluateArguments() {
  CallArguments arguments;
  do {
    arguments.byVal.push_back(TakeIf("ByVal"));
    arguments.values.push_back(Evaluate());
  } while (TakeIf(","));
  return arguments;
}

void BasicExpression::Expect(std::string_view word) {
  if (!TakeIf(word)) throw std::logic_error("missing " + std::string(word));
}

bool BasicExpression::IsNext(std::string_view word) const {
  return !AtEnd() && line_[at_].Is(word);
}

bool BasicExpression::TakeIf(std::string_view word) {
  if (!IsNext(word)) return false;
  ++at_;
  return true;
}

const BasicToken& BasicExpression::Take() {
  if (AtEnd()) throw std::logic_error("a line breaks off");
  return line_[at_++];
}

}  // namespace brimwork
