// A code module as plain data: the lines, the procedures in them, and the environment's operations.
#pragma once

#include <cstdint>
#include <string>

#include "environment/code_module.h"
#include "memory/module_text.h"
#include "memory/procedure_index.h"

namespace brimwork {

class MemoryCodeModule : public CodeModule {
 public:
  MemoryCodeModule(std::string name, ModuleText text);

  std::string Name() override { return name_; }
  void SetName(std::string name) { name_ = std::move(name); }
  std::uintptr_t Identity() override { return reinterpret_cast<std::uintptr_t>(this); }
  int CountOfLines() override { return text_.Count(); }
  int CountOfDeclarationLines() override { return index_.DeclarationLines(text_); }
  std::string Lines(int startLine, int count) override;
  void ReadLine(int line, std::string& text) override;
  void InsertLines(int line, std::string_view text) override;
  void DeleteLines(int startLine, int count) override;
  void ReplaceLine(int line, std::string_view text) override;
  ProcedureName ProcOfLine(int line) override;
  int ProcStartLine(std::string_view name, ProcKind kind) override;
  int ProcCountLines(std::string_view name, ProcKind kind) override;
  int ProcBodyLine(std::string_view name, ProcKind kind) override;
  bool Find(std::string_view target, Selection& range) override;

  const ModuleText& Text() const { return text_; }

  /// From now on the lines behind the last procedure's closing line belong to that procedure.
  void GiveLinesBelowToTheLastProcedure() {
    index_ = ProcedureIndex(LinesBelow::kTheLastProcedures);
  }

  /// Goes up with each edit of the text.
  std::uint64_t Revision() const { return revision_; }

 private:
  const ProcedureIndex::Procedure& Named(std::string_view name, ProcKind kind);

  std::string name_;
  ModuleText text_;
  ProcedureIndex index_;
  std::uint64_t revision_ = 0;
  int latestBody_ =
      0;  // declaration of the procedure that ProcOfLine named last, 0 when it is gone
};

}  // namespace brimwork
