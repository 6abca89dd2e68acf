#include "bench/automation/session.h"

#include <algorithm>

#include "bench/automation/interfaces.h"

namespace brimwork::bench {

std::shared_ptr<Session> Session::Open(Workbench& workbench, Surface& surface, AddInList& addIns) {
  return std::shared_ptr<Session>(new Session(workbench, surface, addIns));
}

win32::ComPointer<IDispatch> Session::Vbe() { return ObjectOf(kVbe, &workbench_, std::any()); }

win32::ComPointer<IDispatch> Session::AddIn(const std::shared_ptr<AddInEntry>& entry) {
  return ObjectOf(kAddIn, entry.get(), entry);
}

std::vector<HeldObject> Session::Held() const {
  std::vector<HeldObject> held;
  for (const CountedObject* object : objects_) {
    if (object->References() > 0) held.push_back({object->Name(), object->References()});
  }
  return held;
}

void Session::End() {
  ended_ = true;
  const auto endings = std::exchange(endings_, {});
  for (const auto& ending : endings) {
    if (const auto callback = ending.lock()) (*callback)();
  }
}

void Session::Enter(CountedObject& object) { objects_.push_back(&object); }

void Session::Leave(CountedObject& object) { std::erase(objects_, &object); }

void Session::Forget(AutomationObject& object) {
  automationObjects_.erase({&object.Table(), object.Identity()});
}

std::shared_ptr<void> Session::OnEnd(std::function<void()> callback) {
  const auto shared = std::make_shared<std::function<void()>>(std::move(callback));
  std::erase_if(endings_, [](const auto& ending) { return ending.expired(); });
  endings_.push_back(shared);
  return shared;
}

win32::ComPointer<IDispatch> Session::ObjectOf(const InterfaceTable& table, const void* identity,
                                               std::any target) {
  AutomationObject*& object = automationObjects_[{&table, identity}];
  if (object == nullptr) {
    object = new AutomationObject(shared_from_this(), table, identity, std::move(target));
  }
  return win32::ComPointer<IDispatch>(object);
}

}  // namespace brimwork::bench
