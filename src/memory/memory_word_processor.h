// A word processor as plain data: one document at a time, and a function in the place of the
// spelling dialog.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "environment/desktop.h"
#include "environment/word_processor.h"

namespace brimwork {

/// Gets a text and gives it back as the user leaves it.
using SpellingDialog = std::function<std::string(const std::string& text)>;

/// What became of the program's instances.
struct WordProcessorLog {
  int started = 0;
  int quit = 0;
  int documentsOpened = 0;
  int documentsClosed = 0;
  int documentsSaved = 0;
  int windowState = 0;
  int spellingChecks = 0;
};

class MemoryWordProcessors : public WordProcessors {
 public:
  static constexpr const char* kProgramId = "Word.Application";

  explicit MemoryWordProcessors(Clipboard& clipboard) : clipboard_(clipboard) {}

  std::shared_ptr<WordProcessor> CreateObject(std::string_view programId) override;

  bool isInstalled = true;

  /// Without one, every text is left as it is.
  SpellingDialog dialog;

  WordProcessorLog log;

 private:
  Clipboard& clipboard_;
};

}  // namespace brimwork
