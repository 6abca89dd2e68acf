// One run of one procedure of a Visual Basic module.
#pragma once

#include <string_view>
#include <vector>

#include "support/basic_interpreter.h"

namespace brimwork {

class BasicExecution {
 public:
  /// arguments: written back where the procedure takes them by reference.
  BasicExecution(BasicInterpreter& module, const BasicProcedure& procedure,
                 BasicInterpreter::Arguments& arguments);

  BasicValue Run();

  // For expressions.

  BasicInterpreter& Module() { return module_; }
  /// A variable of the procedure or the module, null when there is none.
  BasicInterpreter::Variable* Find(std::string_view name);

 private:
  struct Loop {
    BasicInterpreter::Variable* counter;
    std::int32_t last;
    std::size_t body;
  };

  void TakeArguments();
  void GiveArgumentsBack();

  void Execute(const BasicLine& line);
  void ExecuteIf(const BasicLine& line);
  void ExecuteSelect(const BasicLine& line);
  void ExecuteFor(const BasicLine& line);
  void ExecuteNext();
  void ExecuteSimple(const BasicLine& line, std::size_t at);
  void Assign(const BasicLine& line, std::size_t at);
  void Declare(const BasicLine& line);

  bool OpensBlock(const BasicLine& line) const;
  static bool ClosesBlock(const BasicLine& line);
  /// The line behind pc_ where the block is at its own level again and opens with that word; the
  /// closing line when none does.
  std::size_t FindInBlock(std::string_view word) const;

  BasicInterpreter& module_;
  const BasicProcedure& procedure_;
  BasicInterpreter::Arguments& arguments_;
  BasicInterpreter::Variables locals_;
  std::vector<Loop> loops_;
  std::size_t next_ = 0;  // the line to be executed next
  bool resumesNext_ = false;
};

}  // namespace brimwork
