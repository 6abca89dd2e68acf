// The clients' sinks at one connection point for clicks.
#pragma once

#include <windows.h>

#include <oaidl.h>
#include <ocidl.h>

#include <map>
#include <vector>

#include "memory/memory_command_bars.h"
#include "win32/variant.h"

namespace brimwork::bench {

class ClickSinks {
 public:
  /// The results are those of IConnectionPoint.
  HRESULT Add(IUnknown* sink, DWORD* cookie);
  HRESULT Remove(DWORD cookie);
  void RemoveAll() { sinks_.clear(); }

  /// Calls Click of each sink; one that fails keeps no other from its call. answer: what they say
  /// about the command.
  void Click(const win32::Variant& control, ClickAnswer& answer) const;

  struct Connection {
    win32::ComPointer<IUnknown> sink;
    DWORD cookie;
  };
  std::vector<Connection> All() const;

 private:
  std::map<DWORD, win32::ComPointer<IDispatch>> sinks_;
  DWORD lastCookie_ = 0;
};

}  // namespace brimwork::bench
