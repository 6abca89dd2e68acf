// Generated modules, tidy to hopeless, and commands run on them one after the other.
#pragma once

#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/modButtonClicked.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "support/every_command.h"
#include "support/module_generator.h"

namespace brimwork {

inline GeneratorOptions OddOptions(unsigned seed) {
  GeneratorOptions options;
  options.seed = seed;
  options.lines = 40 + static_cast<int>(seed % 60);
  options.messy = options.continuations = options.oddities = true;
  return options;
}

inline GeneratorOptions NumberedOptions(unsigned seed) {
  GeneratorOptions options = OddOptions(seed);
  options.lineNumbers = true;
  return options;
}

/// The lines of a module in any order: procedures without an end, ends without a procedure,
/// statements that continue into anything.
inline std::string InAnyOrder(const std::string& text, unsigned seed) {
  std::vector<std::string_view> lines = SplitLines(text);
  lines.pop_back();  // behind the last line end
  std::mt19937 random(seed);
  for (std::size_t last = lines.size(); last > 1; --last) {
    std::swap(lines[last - 1], lines[static_cast<std::size_t>(random()) % last]);
  }
  std::string shuffled;
  for (const std::string_view line : lines) shuffled.append(line).append("\r\n");
  return shuffled;
}

/// Every other seed gives a module as it may be written, the others its lines in any order.
inline std::string AnyText(unsigned seed) {
  const std::string text = GenerateModule(NumberedOptions(seed)).text;
  return seed % 2 == 0 ? text : InAnyOrder(text, seed);
}

/// A module open in the environment, and commands run on it one after the other.
class CommandedModule {
 public:
  explicit CommandedModule(const std::string& text) : CommandedModule(ModuleText::FromText(text)) {}

  /// As editors do, from now on.
  void GiveLinesBelowToTheLastProcedure() { pane_->Code()->GiveLinesBelowToTheLastProcedure(); }

  explicit CommandedModule(ModuleText text)
      : pane_(memory_.Open("Module1", std::move(text))), addIn_(memory_.Parts()) {
    addIn_.onSkippedError = [this](const RunTimeError&) { ++skippedErrors_; };
  }

  std::string After(std::string_view caption) {
    ButtonClicked(addIn_, caption, true);
    return Text();
  }

  std::string After(const DispatchedCommand& command) {
    Run(addIn_, command);
    return Text();
  }

  std::string Text() { return Module().Lines(1, Module().CountOfLines()); }

  void PutCaretBehind(int line) {
    const int column = CharacterCount(Module().Lines(line, 1)) + 1;
    pane_->SetSelection({line, column, line, column});
  }

  int SkippedErrors() const { return skippedErrors_; }
  CodePane& Pane() { return *pane_; }
  MemoryCodeModule& Module() { return static_cast<MemoryCodeModule&>(*pane_->Module()); }
  Context& CommandContext() { return addIn_.context; }

 private:
  MemoryEnvironment memory_;
  std::shared_ptr<MemoryCodePane> pane_;
  AddIn addIn_;
  int skippedErrors_ = 0;
};

}  // namespace brimwork
