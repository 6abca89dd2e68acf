// The add-in's entry point: what the environment calls when it connects the add-in, when it has
// started, and when it disconnects the add-in.
#pragma once

#include <memory>

#include "core/add_in.h"
#include "core/menus.h"

namespace brimwork {

/// None of the three calls raises a run-time error. The environment may connect and disconnect
/// several times; each connection builds everything anew.
class Connect {
 public:
  Connect() = default;
  Connect(const Connect&) = delete;
  Connect& operator=(const Connect&) = delete;

  /// Shows the splash form where the user wants it, and builds the toolbar, the Add-Ins submenu and
  /// the pop-up entries. The user is told of a failure, and what was built by then stays.
  /// owner keeps application alive: it is held until the disconnection, and by a command that
  /// waits for messages until that has ended. Without one application outlives all of that.
  void AddinInstance_OnConnection(const Environment& application,
                                  std::shared_ptr<const void> owner = nullptr);

  /// Reopens the most recent project where the user wants it.
  void AddinInstance_OnStartupComplete();

  /// Removes the entries, saves the toolbar's place, and unloads the forms and the help windows.
  /// Nothing when the add-in is not connected.
  void AddinInstance_OnDisconnection();

  bool IsConnected() const { return addIn_ != nullptr; }

  /// What lives as long as the connection, and longer while somebody holds it, as whoever calls
  /// into its forms should. Null when the add-in is not connected.
  std::shared_ptr<const void> Connected() const { return addIn_; }

  /// Whether the environment's templates are its own, as far as the start-up's completion has
  /// asked.
  bool UsesOwnTemplates() const { return usesOwnTemplates_; }

 private:
  void StartUp();
  /// Lets pending messages run. False when one of them has ended the connection.
  bool RunMessages(AddIn& addIn);
  void ReopenProject(Environment& environment);

  std::shared_ptr<AddIn> addIn_;
  std::shared_ptr<Menus> menus_;
  bool usesOwnTemplates_ = false;
};

}  // namespace brimwork
