// The declarations of a Visual Basic module, read from its source.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/basic_tokens.h"
#include "support/basic_value.h"

namespace brimwork {

struct BasicParameter {
  std::string name;
  std::string type;
  bool isByRef = true;
  bool isOptional = false;
  std::optional<BasicValue> defaultValue;
};

struct BasicVariable {
  std::string name;
  std::string type;
};

struct BasicConstant {
  std::string name;
  std::string type;
  BasicValue value;
};

struct BasicDeclare {
  std::string name;
  std::string library;
  std::string alias;  // "" when the function has the name that it is declared with
  std::vector<BasicParameter> parameters;
};

struct BasicProcedure {
  std::string name;
  bool isPublic = false;
  std::vector<BasicParameter> parameters;
  std::string returnType;  // "" for a Sub
  std::vector<BasicLine> body;
};

struct BasicProgram {
  bool hasOptionExplicit = false;
  std::vector<BasicVariable> variables;
  std::vector<BasicConstant> constants;
  std::map<std::string, std::vector<BasicVariable>> types;
  std::vector<BasicDeclare> declares;
  std::vector<BasicProcedure> procedures;
};

/// Throws std::invalid_argument for a declaration that is not understood.
BasicProgram ReadBasicProgram(std::string_view source);

/// The element of that name, in any case; null when there is none.
template <class Element>
const Element* NamedIn(const std::vector<Element>& elements, std::string_view name) {
  for (const Element& element : elements) {
    if (BasicToken{BasicToken::Kind::kName, element.name}.Is(name)) return &element;
  }
  return nullptr;
}

}  // namespace brimwork
