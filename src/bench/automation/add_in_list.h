// The add-ins that the environment knows, as far as its object model shows them.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "win32/com_pointer.h"

namespace brimwork::bench {

/// Every operation may raise RunTimeError.
class AddInEntry {
 public:
  virtual ~AddInEntry() = default;
  virtual std::string ProgId() = 0;
  virtual std::string Guid() = 0;  // "{...}", "" while the class is not registered
  virtual std::string Description() = 0;
  virtual void SetDescription(std::string_view description) = 0;
  virtual bool IsConnected() = 0;
  /// Loads or unloads the add-in.
  virtual void Connect(bool connect) = 0;
  /// What the add-in offers to others; null for nothing.
  virtual win32::ComPointer<IDispatch> Object() = 0;
  virtual void SetObject(win32::ComPointer<IDispatch> object) = 0;
};

class AddInList {
 public:
  virtual ~AddInList() = default;
  virtual std::vector<std::shared_ptr<AddInEntry>> Entries() = 0;
  /// Reads the registered add-ins again.
  virtual void Update() = 0;
};

}  // namespace brimwork::bench
