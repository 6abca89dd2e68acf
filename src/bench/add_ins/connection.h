// One add-in's connection to the environment, from its loading to its end.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <string>
#include <vector>

#include "bench/add_ins/extensibility.h"
#include "bench/automation/session.h"
#include "win32/com_pointer.h"

namespace brimwork::bench {

/// What an add-in did at each step, and what it left behind.
struct ConnectionRecord {
  std::string progId;
  ConnectMode mode = ConnectMode::kAfterStartup;
  bool isConnected = false;  // it was loaded and took the connection
  std::string failure;       // why it was not; "" when it was
  bool hasEnded = false;
  DisconnectMode disconnectMode = DisconnectMode::kUserClosed;
  /// Steps of the connection that the add-in answered with an error: "OnDisconnection: words".
  std::vector<std::string> complaints;
  /// What the add-in held when it had been told of the disconnection and been released.
  std::vector<HeldObject> held;
};

/// An add-in that could not be loaded or refused the connection.
class ConnectionFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Connection {
 public:
  /// Loads the class and connects it: OnConnection, and OnAddInsUpdate is the caller's. record
  /// outlives the connection and says the failure as well. Throws ConnectionFailure.
  Connection(std::shared_ptr<Session> session, const std::shared_ptr<AddInEntry>& entry,
             ConnectMode mode, ConnectionRecord& record);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  void TellStartupComplete();
  void TellAddInsUpdate();
  void TellBeginShutdown();

  /// OnDisconnection; the add-in is released, its session ends, and the record says what it held.
  void Disconnect(DisconnectMode mode);

 private:
  void Load(const std::string& progId);
  void Note(const char* step, HRESULT result);

  std::shared_ptr<Session> session_;
  ConnectionRecord& record_;
  win32::ComPointer<IExtensibility> addIn_;
};

}  // namespace brimwork::bench
