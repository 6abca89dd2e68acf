#include "support/basic_program.h"

#include <stdexcept>
#include <utility>

namespace brimwork {
namespace {

/// Reads the declarations on one line.
class Cursor {
 public:
  explicit Cursor(const BasicLine& line) : line_(line) {}

  bool AtEnd() const { return at_ == line_.size(); }

  bool TakeIf(std::string_view word) {
    if (AtEnd() || !line_[at_].Is(word)) return false;
    ++at_;
    return true;
  }

  void Expect(std::string_view word) {
    if (!TakeIf(word)) Complain("missing " + std::string(word));
  }

  std::string Take(BasicToken::Kind kind) {
    if (AtEnd() || line_[at_].kind != kind) Complain("unexpected token");
    return line_[at_++].text;
  }
  std::string TakeName() { return Take(BasicToken::Kind::kName); }

  /// "name As type" or "name() As type".
  BasicVariable TakeVariable() {
    BasicVariable variable{TakeName(), ""};
    const bool isArray = TakeIf("(");
    if (isArray) Expect(")");
    Expect("As");
    variable.type = TakeName() + (isArray ? "()" : "");
    return variable;
  }

  BasicValue TakeLiteral() {
    const bool isNegative = TakeIf("-");
    if (!AtEnd() && line_[at_].kind == BasicToken::Kind::kString) {
      return Take(BasicToken::Kind::kString);
    }
    const BasicValue number = NumberLiteral(Take(BasicToken::Kind::kNumber));
    return isNegative ? Applied("-", std::int16_t{0}, number) : number;
  }

  std::vector<BasicParameter> TakeParameters() {
    std::vector<BasicParameter> parameters;
    Expect("(");
    while (!TakeIf(")")) {
      parameters.push_back(TakeParameter());
      TakeIf(",");
    }
    return parameters;
  }

  [[noreturn]] void Complain(const std::string& what) const {
    std::string text = what + " in:";
    for (const BasicToken& token : line_) text += ' ' + token.text;
    throw std::invalid_argument(text);
  }

 private:
  BasicParameter TakeParameter() {
    BasicParameter parameter;
    parameter.isOptional = TakeIf("Optional");
    parameter.isByRef = !TakeIf("ByVal");
    if (parameter.isByRef) TakeIf("ByRef");
    const BasicVariable variable = TakeVariable();
    parameter.name = variable.name;
    parameter.type = variable.type;
    if (TakeIf("=")) parameter.defaultValue = Coerced(TakeLiteral(), parameter.type);
    return parameter;
  }

  const BasicLine& line_;
  std::size_t at_ = 0;
};

class Reader {
 public:
  explicit Reader(std::string_view source) : lines_(BasicLinesOf(source)) {}

  BasicProgram Read() {
    while (at_ < lines_.size()) ReadDeclaration();
    return std::move(program_);
  }

 private:
  void ReadDeclaration() {
    Cursor cursor(lines_[at_++]);
    if (cursor.TakeIf("Option")) {
      cursor.Expect("Explicit");
      program_.hasOptionExplicit = true;
      return;
    }
    const bool isPublic = cursor.TakeIf("Public");
    if (!isPublic) cursor.Expect("Private");
    if (cursor.TakeIf("Const")) return ReadConstant(cursor);
    if (cursor.TakeIf("Type")) return ReadType(cursor);
    if (cursor.TakeIf("Declare")) return ReadDeclare(cursor);
    if (cursor.TakeIf("Function")) return ReadProcedure(cursor, isPublic, "Function");
    if (cursor.TakeIf("Sub")) return ReadProcedure(cursor, isPublic, "Sub");
    program_.variables.push_back(cursor.TakeVariable());
  }

  void ReadConstant(Cursor& cursor) {
    const BasicVariable constant = cursor.TakeVariable();
    cursor.Expect("=");
    const BasicValue value = Coerced(cursor.TakeLiteral(), constant.type);
    program_.constants.push_back({constant.name, constant.type, value});
  }

  void ReadType(Cursor& cursor) {
    auto& members = program_.types[cursor.TakeName()];
    while (!lines_.at(at_)[0].Is("End")) members.push_back(Cursor(lines_[at_++]).TakeVariable());
    ++at_;
  }

  void ReadDeclare(Cursor& cursor) {
    BasicDeclare declare;
    cursor.Expect("Function");
    declare.name = cursor.TakeName();
    cursor.Expect("Lib");
    declare.library = cursor.Take(BasicToken::Kind::kString);
    if (cursor.TakeIf("Alias")) declare.alias = cursor.Take(BasicToken::Kind::kString);
    declare.parameters = cursor.TakeParameters();
    cursor.Expect("As");
    cursor.Expect("Long");
    program_.declares.push_back(std::move(declare));
  }

  void ReadProcedure(Cursor& cursor, bool isPublic, std::string_view word) {
    BasicProcedure procedure{.name = cursor.TakeName(),
                             .isPublic = isPublic,
                             .parameters = cursor.TakeParameters(),
                             .returnType = {},
                             .body = {}};
    if (cursor.TakeIf("As")) procedure.returnType = cursor.TakeName();
    while (!EndsProcedure(lines_.at(at_), word)) procedure.body.push_back(lines_[at_++]);
    ++at_;
    program_.procedures.push_back(std::move(procedure));
  }

  static bool EndsProcedure(const BasicLine& line, std::string_view word) {
    return line.size() == 2 && line[0].Is("End") && line[1].Is(word);
  }

  std::vector<BasicLine> lines_;
  std::size_t at_ = 0;
  BasicProgram program_;
};

}  // namespace

BasicProgram ReadBasicProgram(std::string_view source) { return Reader(source).Read(); }

}  // namespace brimwork
