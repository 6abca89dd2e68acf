#include "bench/add_ins/connection.h"

#include <objbase.h>

#include <new>
#include <utility>

#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

/// The empty array that comes with each call.
class EmptyArray {
 public:
  EmptyArray() : array_(SafeArrayCreateVector(VT_VARIANT, 0, 0)) {
    if (array_ == nullptr) throw std::bad_alloc();
  }
  ~EmptyArray() { SafeArrayDestroy(array_); }
  EmptyArray(const EmptyArray&) = delete;
  EmptyArray& operator=(const EmptyArray&) = delete;

  SAFEARRAY** Get() { return &array_; }

 private:
  SAFEARRAY* array_;
};

std::string WordsOf(HRESULT result) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string code = "0x";
  for (int shift = 28; shift >= 0; shift -= 4) {
    code += kDigits[(static_cast<unsigned long>(result) >> shift) & 0xF];
  }
  return win32::SystemWords(static_cast<DWORD>(result)) + " (" + code + ")";
}

void Require(HRESULT result, const std::string& what) {
  if (FAILED(result)) throw ConnectionFailure(what + ": " + WordsOf(result));
}

}  // namespace

Connection::Connection(std::shared_ptr<Session> session, const std::shared_ptr<AddInEntry>& entry,
                       ConnectMode mode, ConnectionRecord& record)
    : session_(std::move(session)), record_(record) {
  record_.progId = entry->ProgId();
  record_.mode = mode;
  try {
    Load(record_.progId);
    EmptyArray custom;
    Require(addIn_->OnConnection(session_->Vbe().get(), mode, session_->AddIn(entry).get(),
                                 custom.Get()),
            "the add-in refuses the connection");
    record_.isConnected = true;
  } catch (const ConnectionFailure& failure) {
    record_.failure = failure.what();
    addIn_ = nullptr;
    record_.held = session_->Held();
    session_->End();
    throw;
  }
}

void Connection::Load(const std::string& progId) {
  CLSID clsid;
  Require(CLSIDFromProgID(win32::Wide(progId).c_str(), &clsid),
          "the class \"" + progId + "\" is not registered");
  Require(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, kExtensibilityIid,
                           addIn_.ReceiveAny()),
          "the class \"" + progId + "\" cannot be loaded, or is no add-in");
}

void Connection::Note(const char* step, HRESULT result) {
  if (FAILED(result)) record_.complaints.push_back(std::string(step) + ": " + WordsOf(result));
}

void Connection::TellStartupComplete() {
  EmptyArray custom;
  Note("OnStartupComplete", addIn_->OnStartupComplete(custom.Get()));
}

void Connection::TellAddInsUpdate() {
  EmptyArray custom;
  Note("OnAddInsUpdate", addIn_->OnAddInsUpdate(custom.Get()));
}

void Connection::TellBeginShutdown() {
  EmptyArray custom;
  Note("OnBeginShutdown", addIn_->OnBeginShutdown(custom.Get()));
}

void Connection::Disconnect(DisconnectMode mode) {
  EmptyArray custom;
  Note("OnDisconnection", addIn_->OnDisconnection(mode, custom.Get()));
  addIn_ = nullptr;
  CoFreeUnusedLibrariesEx(0, 0);
  record_.hasEnded = true;
  record_.disconnectMode = mode;
  record_.held = session_->Held();
  session_->End();
}

}  // namespace brimwork::bench
