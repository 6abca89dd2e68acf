#include "memory/memory_word_processor.h"

#include <optional>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

[[noreturn]] void Refuse(const std::string& reason) {
  throw RunTimeError(error_number::kInvalidProcedureCall, reason);
}

/// A document ends in a paragraph mark of its own, which is cut along with the text.
class MemoryWordProcessor : public WordProcessor {
 public:
  MemoryWordProcessor(MemoryWordProcessors& program, Clipboard& clipboard)
      : program_(program), clipboard_(clipboard) {}

  void AddDocument() override {
    document_ = "";
    ++program_.log.documentsOpened;
  }

  void SetActiveWindowState(int state) override {
    Document();
    program_.log.windowState = state;
  }

  void PasteIntoSelection() override {
    Document() = clipboard_.GetText();
    isSelected_ = false;
  }

  void CheckSpellingOfDocument() override {
    ++program_.log.spellingChecks;
    if (program_.dialog) Document() = program_.dialog(Document());
  }

  void SelectDocument() override {
    Document();
    isSelected_ = true;
  }

  void CutSelection() override {
    if (!isSelected_) Refuse("there is no selection to cut");
    clipboard_.SetText(std::exchange(Document(), "") + "\r\n");
    isSelected_ = false;
  }

  void CloseDocument(bool saveChanges) override {
    Document();
    document_.reset();
    ++program_.log.documentsClosed;
    if (saveChanges) ++program_.log.documentsSaved;
  }

  void Quit() override { ++program_.log.quit; }

 private:
  std::string& Document() {
    if (!document_) Refuse("no document is open");
    return *document_;
  }

  MemoryWordProcessors& program_;
  Clipboard& clipboard_;
  std::optional<std::string> document_;
  bool isSelected_ = false;
};

}  // namespace

std::shared_ptr<WordProcessor> MemoryWordProcessors::CreateObject(std::string_view programId) {
  if (!isInstalled || !EqualNames(programId, kProgramId)) {
    throw RunTimeError(error_number::kCannotCreateObject,
                       "there is no program " + std::string(programId));
  }
  ++log.started;
  return std::make_shared<MemoryWordProcessor>(*this, clipboard_);
}

}  // namespace brimwork
