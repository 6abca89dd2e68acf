#include "windows/desktop/late_bound_word.h"

#include <utility>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

using win32::ComPointer;
using win32::Variant;

/// How a document is closed, as the word processor counts it.
constexpr int kDoNotSaveChanges = 0;
constexpr int kSaveChanges = -1;

std::shared_ptr<Connection> PatientConnection() {
  auto connection = std::make_shared<Connection>();
  connection->patience.pauses = {20, 50, 100, 200, 400, 800, 1600, 3200};
  return connection;
}

[[noreturn]] void RaiseNoProgram(std::string_view programId, HRESULT status) {
  throw RunTimeError(
      error_number::kCannotCreateObject,
      std::string(programId) + ": " + win32::SystemWords(static_cast<DWORD>(status)));
}

}  // namespace

LateBoundWord::LateBoundWord(ComPointer<IDispatch> application)
    : LateBoundWord(std::move(application), PatientConnection()) {}

LateBoundWord::LateBoundWord(ComPointer<IDispatch> application,
                             std::shared_ptr<Connection> connection)
    : application_(std::move(application), std::move(connection), ObjectKind::kWord) {}

void LateBoundWord::AddDocument() {
  application_.Part(ObjectKind::kDocuments, L"Documents").Call(L"Add");
}

void LateBoundWord::SetActiveWindowState(int state) {
  application_.Part(ObjectKind::kDocumentWindow, L"ActiveWindow")
      .Put(L"WindowState", Argument(state));
}

void LateBoundWord::PasteIntoSelection() { Selection().Call(L"Paste"); }

// The dialog is another program's: it comes to the front only with this one's leave.
void LateBoundWord::CheckSpellingOfDocument() {
  AllowSetForegroundWindow(ASFW_ANY);
  ActiveDocument().Call(L"CheckSpelling");
}

void LateBoundWord::SelectDocument() { ActiveDocument().Call(L"Select"); }

void LateBoundWord::CutSelection() { Selection().Call(L"Cut"); }

void LateBoundWord::CloseDocument(bool saveChanges) {
  ActiveDocument().CallNamed(L"Close", L"SaveChanges",
                             saveChanges ? kSaveChanges : kDoNotSaveChanges);
}

void LateBoundWord::Quit() { application_.CallNamed(L"Quit", L"SaveChanges", kDoNotSaveChanges); }

DispatchObject LateBoundWord::ActiveDocument() const {
  return application_.Part(ObjectKind::kDocument, L"ActiveDocument");
}

DispatchObject LateBoundWord::Selection() const {
  return application_.Part(ObjectKind::kSelection, L"Selection");
}

std::shared_ptr<WordProcessor> LateBoundWords::CreateObject(std::string_view programId) {
  CLSID program;
  HRESULT status = CLSIDFromProgID(win32::Wide(programId).c_str(), &program);
  ComPointer<IDispatch> application;
  if (SUCCEEDED(status)) {
    status = CoCreateInstance(program, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                              application.ReceiveAny());
  }
  if (FAILED(status)) RaiseNoProgram(programId, status);
  return std::make_shared<LateBoundWord>(std::move(application));
}

}  // namespace brimwork::windows
