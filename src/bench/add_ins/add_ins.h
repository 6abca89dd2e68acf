// All add-ins of the environment: those that are registered, their connections, and what became of
// each.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "bench/add_ins/connection.h"
#include "bench/add_ins/registered_add_in.h"
#include "bench/automation/add_in_list.h"
#include "bench/model/surface.h"
#include "bench/model/workbench.h"

namespace brimwork::bench {

class AddIn;

class AddIns : public AddInList {
 public:
  /// Both outlive this object. Reads what is registered; connects nothing.
  AddIns(Workbench& workbench, Surface& surface);
  ~AddIns() override;

  std::vector<std::shared_ptr<AddInEntry>> Entries() override;
  void Update() override;

  /// Connects those that are to be loaded at startup. One that fails is among the records.
  void Start();

  /// Tells those that were connected so that the startup is complete.
  void CompleteStart();

  /// Ends all connections, the latest first. No add-in can be connected any more.
  void Shutdown();

  /// The same as Entries, for the Add-In Manager.
  const std::vector<std::shared_ptr<AddIn>>& All() const { return addIns_; }

  /// Connects with a mode that says from where. Throws ConnectionFailure; the add-in is then among
  /// the records with the reason.
  void Connect(AddIn& addIn, ConnectMode mode);
  void Disconnect(AddIn& addIn, DisconnectMode mode);

  /// All connections since the start, in their order.
  const std::deque<ConnectionRecord>& Records() const { return records_; }

 private:
  std::shared_ptr<AddIn> Known(const std::string& progId) const;
  void TellAddInsUpdate();

  Workbench& workbench_;
  Surface& surface_;
  std::vector<std::shared_ptr<AddIn>> addIns_;
  std::vector<std::shared_ptr<AddIn>> started_;  // not told of the startup's end yet
  std::deque<ConnectionRecord> records_;
  bool isShutDown_ = false;
};

/// One registered add-in.
class AddIn : public AddInEntry, public std::enable_shared_from_this<AddIn> {
 public:
  AddIn(AddIns& all, RegisteredAddIn registered);

  std::string ProgId() override { return registered_.progId; }
  std::string Guid() override;
  std::string Description() override { return registered_.description; }
  void SetDescription(std::string_view description) override;
  bool IsConnected() override { return connection_ != nullptr; }
  /// For clients of the object model: the mode is that of another program's call.
  void Connect(bool connect) override;
  win32::ComPointer<IDispatch> Object() override { return object_; }
  void SetObject(win32::ComPointer<IDispatch> object) override { object_ = std::move(object); }

  const RegisteredAddIn& Registered() const { return registered_; }
  /// Takes what the registry says now.
  void SetRegistered(RegisteredAddIn registered) { registered_ = std::move(registered); }
  /// Writes it to the registry as well. Throws RunTimeError when that fails.
  void SetLoadBehavior(unsigned long behavior);

  /// Why it could not be connected the last time; "" when it could.
  const std::string& LastFailure() const { return lastFailure_; }

 private:
  friend class AddIns;

  AddIns& all_;
  RegisteredAddIn registered_;
  std::unique_ptr<Connection> connection_;
  win32::ComPointer<IDispatch> object_;
  std::string lastFailure_;
  bool isConnecting_ = false;  // an add-in may ask for its own connection meanwhile
};

}  // namespace brimwork::bench
