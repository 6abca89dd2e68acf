// Brimwork.dll in this program, connected to an environment of this program, too: without the
// system between them, what they do can be told call by call and timed.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "bench/automation/automation_fixture.h"
#include "core/catalogue.h"
#include "windows/component/extensibility.h"

namespace brimwork {

class LoadedAddIn {
 public:
  /// Throws std::runtime_error when the library cannot be used.
  LoadedAddIn();
  ~LoadedAddIn();
  LoadedAddIn(const LoadedAddIn&) = delete;
  LoadedAddIn& operator=(const LoadedAddIn&) = delete;

  HRESULT Connect(const win32::ComPointer<IDispatch>& vbe);
  HRESULT Disconnect();

 private:
  HMODULE library_;
  win32::ComPointer<windows::IExtensibility> object_;
};

/// The entry of the Add-Ins menu for a command.
bench::Client AddInsEntry(const bench::Client& vbe, const CatalogueEntry& entry);

/// The catalogue's entry of the Add-Ins menu with that caption. Throws std::out_of_range.
const CatalogueEntry& MenuEntry(std::string_view caption);

/// Puts text into a module in the place of what is there, and the caret to a line.
void ShowText(const bench::Client& pane, const std::string& text, int line);
std::string TextIn(const bench::Client& pane);

}  // namespace brimwork
