// The add-in in an environment of plain data with the usual windows and command bars.
#pragma once

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Connect.h"
#include "memory/memory_environment.h"
#include "memory/usual_command_bars.h"
#include "settings/settings.h"
#include "support/faulty_environment.h"

namespace brimwork {

/// Not connected at first.
struct ConnectedAddIn {
  void ConnectIt() { connect.AddinInstance_OnConnection(memory.Parts()); }
  /// Connects it to the environment with calls that fail.
  void ConnectIt(Fault fault) {
    Disconnect();
    faulty = std::make_unique<FaultyEnvironment>(memory.Parts(), std::move(fault));
    connect.AddinInstance_OnConnection(faulty->Parts());
  }
  void Disconnect() { connect.AddinInstance_OnDisconnection(); }

  void Set(std::string_view key, std::string_view value) {
    Environment parts = memory.Parts();
    SaveSetting(parts, key, value);
  }
  std::string Get(std::string_view key) {
    Environment parts = memory.Parts();
    return GetSetting(parts, key, "nothing");
  }

  /// Null when there is none.
  std::shared_ptr<MemoryCommandBar> Toolbar() const {
    return memory.vbe.commandBars.OfName("Brimwork");
  }
  /// A loaded form. Throws std::out_of_range when there is none of that name.
  Form& LoadedForm(std::string_view name) const {
    for (Form* form : memory.formHost.LoadedForms()) {
      if (form->Layout().name == name) return *form;
    }
    throw std::out_of_range(std::string(name) + " is not loaded");
  }
  bool IsLoaded(std::string_view name) const {
    return std::ranges::any_of(memory.formHost.LoadedForms(),
                               [&](const Form* form) { return form->Layout().name == name; });
  }
  bool IsVisible(std::string_view name) const {
    return IsLoaded(name) && memory.formHost.IsVisible(LoadedForm(name));
  }

  const MemoryCommandBarControls& AddInsMenu() const { return *bars.addIns->Entries(); }
  const MemoryCommandBarControls& CodeWindow() const { return *bars.codeWindow->Entries(); }
  const MemoryCommandBarControls& ImmediateWindow() const {
    return *bars.immediateWindow->Entries();
  }

  MemoryEnvironment memory;
  UsualCommandBars bars = AddUsualCommandBars(memory.vbe);
  std::unique_ptr<FaultyEnvironment> faulty;
  Connect connect;
};

/// A fault that lets the n-th call to an operation raise an error.
inline Fault RaisingAt(std::string operation, int n) {
  return {Fault::Kind::kRaises,
          [operation = std::move(operation), n, calls = 0](int, std::string_view called) mutable {
            return called == operation && ++calls == n;
          }};
}

/// A fault that lets every call to the operations raise an error.
inline Fault RaisingAlways(std::vector<std::string> operations) {
  return {Fault::Kind::kRaises, [operations = std::move(operations)](int, std::string_view called) {
            return std::ranges::find(operations, called) != operations.end();
          }};
}

/// A control of a collection by its caption. Raises error 5 when there is none.
inline MemoryCommandBarControl& EntryOf(const MemoryCommandBarControls& controls,
                                        std::string_view caption) {
  for (const auto& control : controls.All()) {
    if (control->LastCaption() == caption) return *control;
  }
  throw RunTimeError(error_number::kInvalidProcedureCall, "no entry " + std::string(caption));
}

/// The entries of a popup.
inline const MemoryCommandBarControls& SubmenuOf(const MemoryCommandBarControls& controls,
                                                 std::string_view caption) {
  return *EntryOf(controls, caption).Entries();
}

}  // namespace brimwork
