// The environment's code module over COM.
#pragma once

#include "environment/code_module.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

/// What the environment does with lines that are not there is not told anywhere, so it is not asked
/// to: such calls are answered or drawn back into the module here. Which of several procedures of
/// one name a look-up means is the environment's choice.
class ComCodeModule : public CodeModule {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kCodeModule;

  explicit ComCodeModule(DispatchObject module) : module_(std::move(module)) {}

  std::string Name() override;
  /// Made of the names of project and module: the environment may make a new object at any time.
  /// Objects that are got after the module was renamed have another one.
  std::uintptr_t Identity() override;
  int CountOfLines() override;
  int CountOfDeclarationLines() override;
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

 private:
  void ReadLines(int startLine, int count, std::string& text);
  template <class Step>
  void ReadWhereThere(int line, Step step);

  std::string QualifiedName();

  DispatchObject module_;
  std::uintptr_t identity_ = 0;  // once it has been asked for
};

}  // namespace brimwork::windows
