// Runs a Visual Basic module's source, as far as the modules that Brimwork hands out need it, so
// that tests can hold them to what they promise. What is undeclared, misspelt or called with the
// wrong arguments throws std::logic_error; errors of the run time are RunTimeError.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "support/basic_program.h"

namespace brimwork {

/// A variable of a user-defined type.
class BasicRecord : public BasicObject {
 public:
  BasicValue Member(std::string_view name, const std::vector<BasicValue>& arguments) override;

  std::map<std::string, BasicValue> members;
};

class BasicInterpreter {
 public:
  using Arguments = std::vector<BasicValue>;
  using Function = std::function<BasicValue(const Arguments& arguments)>;

  struct Variable {
    std::string type;
    BasicValue value;
  };
  using Variables = std::map<std::string, Variable>;  // by their folded names

  explicit BasicInterpreter(BasicProgram program);

  /// What a declared function, or one of the run time, does.
  void Bind(std::string_view name, Function function);
  /// An object of the run time.
  void Bind(std::string_view name, std::shared_ptr<BasicObject> object);

  /// Runs a procedure and returns a Function's result. Parameters passed by reference are written
  /// back. Arguments that are left out take their defaults.
  BasicValue Call(std::string_view procedure, Arguments& arguments);

  /// The procedure that AddressOf gave as that number.
  std::string ProcedureAt(std::int32_t address) const;

  const BasicProgram& Program() const { return program_; }

  // For the procedures that run.

  BasicValue Initial(std::string_view type) const;
  Variable* ModuleVariable(std::string_view name);
  const BasicConstant* Constant(std::string_view name) const;
  std::shared_ptr<BasicObject> Object(std::string_view name) const;
  bool IsCallable(std::string_view name) const;
  /// byVal says which arguments were written with ByVal.
  BasicValue CallAny(std::string_view name, Arguments arguments, const std::vector<bool>& byVal);
  std::int32_t AddressOf(std::string_view procedure) const;

 private:
  BasicValue CallDeclared(const BasicDeclare& declare, Arguments arguments,
                          const std::vector<bool>& byVal);
  const Function& Bound(std::string_view name) const;

  BasicProgram program_;
  Variables variables_;
  std::map<std::string, Function> functions_;
  std::map<std::string, std::shared_ptr<BasicObject>> objects_;
};

}  // namespace brimwork
