#include "bench/add_ins/add_ins.h"

#include <objbase.h>

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "win32/wide_text.h"

namespace brimwork::bench {

AddIns::AddIns(Workbench& workbench, Surface& surface) : workbench_(workbench), surface_(surface) {
  Update();
}

AddIns::~AddIns() = default;

std::vector<std::shared_ptr<AddInEntry>> AddIns::Entries() {
  return {addIns_.begin(), addIns_.end()};
}

std::shared_ptr<AddIn> AddIns::Known(const std::string& progId) const {
  const auto found = std::ranges::find_if(
      addIns_, [&](const auto& addIn) { return EqualNames(addIn->ProgId(), progId); });
  return found == addIns_.end() ? nullptr : *found;
}

// One that is connected stays, even when it is registered no more.
void AddIns::Update() {
  std::vector<std::shared_ptr<AddIn>> present;
  for (RegisteredAddIn& registered : RegisteredAddIns()) {
    auto addIn = Known(registered.progId);
    if (addIn == nullptr) {
      addIn = std::make_shared<AddIn>(*this, std::move(registered));
    } else {
      addIn->SetRegistered(std::move(registered));
    }
    present.push_back(std::move(addIn));
  }
  for (const auto& addIn : addIns_) {
    if (addIn->IsConnected() && std::ranges::find(present, addIn) == present.end()) {
      present.push_back(addIn);
    }
  }
  addIns_ = std::move(present);
}

void AddIns::Start() {
  const auto all = addIns_;  // an add-in may change the list
  for (const auto& addIn : all) {
    if ((addIn->Registered().loadBehavior & load_behavior::kAtStartup) == 0) continue;
    try {
      Connect(*addIn, ConnectMode::kStartup);
      started_.push_back(addIn);
    } catch (const ConnectionFailure&) {
      continue;  // the record says why; the others start all the same
    }
  }
}

void AddIns::CompleteStart() {
  const auto started = std::exchange(started_, {});
  for (const auto& addIn : started) {
    if (addIn->connection_ != nullptr) addIn->connection_->TellStartupComplete();
  }
}

void AddIns::Shutdown() {
  isShutDown_ = true;
  const auto all = addIns_;
  for (const auto& addIn : all) {
    if (addIn->connection_ != nullptr) addIn->connection_->TellBeginShutdown();
  }
  for (auto addIn = all.rbegin(); addIn != all.rend(); ++addIn) {
    Disconnect(**addIn, DisconnectMode::kHostShutdown);
  }
}

void AddIns::Connect(AddIn& addIn, ConnectMode mode) {
  if (addIn.IsConnected() || addIn.isConnecting_) return;
  if (isShutDown_) throw ConnectionFailure("the environment is closing");
  const auto stays = addIn.shared_from_this();
  records_.emplace_back();
  addIn.isConnecting_ = true;
  try {
    addIn.connection_ = std::make_unique<Connection>(Session::Open(workbench_, surface_, *this),
                                                     stays, mode, records_.back());
    addIn.lastFailure_.clear();
    addIn.isConnecting_ = false;
  } catch (const ConnectionFailure& failure) {
    addIn.lastFailure_ = failure.what();
    addIn.isConnecting_ = false;
    throw;
  }
  surface_.ShowChanges();
  if (mode != ConnectMode::kStartup) TellAddInsUpdate();
}

void AddIns::Disconnect(AddIn& addIn, DisconnectMode mode) {
  if (!addIn.IsConnected()) return;
  const auto stays = addIn.shared_from_this();
  const auto connection = std::move(addIn.connection_);
  addIn.object_ = nullptr;
  connection->Disconnect(mode);
  surface_.ShowChanges();
  if (mode == DisconnectMode::kUserClosed) TellAddInsUpdate();
}

void AddIns::TellAddInsUpdate() {
  const auto all = addIns_;
  for (const auto& addIn : all) {
    if (addIn->connection_ != nullptr) addIn->connection_->TellAddInsUpdate();
  }
}

AddIn::AddIn(AddIns& all, RegisteredAddIn registered)
    : all_(all), registered_(std::move(registered)) {}

std::string AddIn::Guid() {
  constexpr int kSize = 39;
  CLSID clsid;
  if (FAILED(CLSIDFromProgID(win32::Wide(registered_.progId).c_str(), &clsid))) return "";
  wchar_t text[kSize];
  StringFromGUID2(clsid, text, kSize);
  return win32::Narrow(text);
}

void AddIn::SetDescription(std::string_view description) { registered_.description = description; }

void AddIn::Connect(bool connect) {
  if (!connect) {
    all_.Disconnect(*this, DisconnectMode::kUserClosed);
    return;
  }
  try {
    all_.Connect(*this, ConnectMode::kExternal);
  } catch (const ConnectionFailure& failure) {
    throw RunTimeError(error_number::kCannotCreateObject, failure.what());
  }
}

void AddIn::SetLoadBehavior(unsigned long behavior) {
  bench::SetLoadBehavior(registered_.progId, behavior);
  registered_.loadBehavior = behavior;
}

}  // namespace brimwork::bench
