// One client's view of the object model: an add-in's, or a script's. All objects that a client gets
// belong to its session, so the session knows how many references the client holds.
#pragma once

#include <windows.h>

#include <oaidl.h>

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "bench/automation/add_in_list.h"
#include "bench/automation/automation_object.h"
#include "bench/automation/member.h"
#include "bench/model/surface.h"
#include "bench/model/workbench.h"
#include "win32/variant.h"

namespace brimwork::bench {

/// What a client holds of one object.
struct HeldObject {
  std::string name;
  unsigned long references = 0;
};

class Session : public std::enable_shared_from_this<Session> {
 public:
  /// All three outlive the session's End.
  static std::shared_ptr<Session> Open(Workbench& workbench, Surface& surface, AddInList& addIns);

  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The root of the object model. The session must not have ended.
  win32::ComPointer<IDispatch> Vbe();

  /// The object for an add-in of the list.
  win32::ComPointer<IDispatch> AddIn(const std::shared_ptr<AddInEntry>& entry);

  /// What the client holds now, nothing that has no reference.
  std::vector<HeldObject> Held() const;

  /// From now on every call of an object that is left answers RPC_E_DISCONNECTED, and no event
  /// reaches the client any more.
  void End();
  bool HasEnded() const { return ended_; }

  // For the objects of the session.

  Workbench& TheWorkbench() const { return workbench_; }
  Surface& TheSurface() const { return surface_; }
  AddInList& AddIns() const { return addIns_; }

  /// The one object that stands for target in this session. Null targets are "nothing".
  template <typename Target>
  win32::Variant ObjectFor(const InterfaceTable& table, const std::shared_ptr<Target>& target) {
    if (target == nullptr) return win32::Variant(static_cast<IDispatch*>(nullptr));
    return win32::Variant(ObjectOf(table, target.get(), target));
  }

  void Enter(CountedObject& object);
  void Leave(CountedObject& object);
  void Forget(AutomationObject& object);

  /// Calls back when the session ends, as long as the result lives.
  std::shared_ptr<void> OnEnd(std::function<void()> callback);

 private:
  using Key = std::pair<const InterfaceTable*, const void*>;

  Session(Workbench& workbench, Surface& surface, AddInList& addIns)
      : workbench_(workbench), surface_(surface), addIns_(addIns) {}

  win32::ComPointer<IDispatch> ObjectOf(const InterfaceTable& table, const void* identity,
                                        std::any target);

  Workbench& workbench_;
  Surface& surface_;
  AddInList& addIns_;
  std::vector<CountedObject*> objects_;
  std::map<Key, AutomationObject*> automationObjects_;
  std::vector<std::weak_ptr<std::function<void()>>> endings_;
  bool ended_ = false;
};

}  // namespace brimwork::bench
