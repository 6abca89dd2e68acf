// Names, declarations and closing lines of generated procedures, and the list of those written.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/module_generator_writer.h"

namespace brimwork::module_generator {

class Procedures {
 public:
  explicit Procedures(Writer& writer) : writer_(writer) {}

  /// A procedure of any kind under a name not used before; not yet in the list.
  GeneratedProcedure Invent();

  /// The same under a name that ends in the given stem.
  GeneratedProcedure InventNamed(std::string_view stem);

  /// Enters the procedure in the list and writes its declaration, behind the access word.
  void Open(const GeneratedProcedure& procedure, std::string_view access);

  /// Enters the procedure in the list; the caller writes its declaration.
  void List(const GeneratedProcedure& procedure);

  void WriteBody();

  void Close(const GeneratedProcedure& procedure);

  /// Comment and blank lines, then a well-formed procedure.
  void WriteOrdinary();

  std::vector<GeneratedProcedure> TakeList() { return std::move(list_); }

 private:
  Writer& writer_;
  std::vector<GeneratedProcedure> list_;
  int invented_ = 0;
};

/// What declares the procedure, from its word on ("Property Get Price12() As Long").
std::string HeadOf(const GeneratedProcedure& procedure);

}  // namespace brimwork::module_generator
