// An object of the environment, called late-bound: by the names of its members.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "win32/com_pointer.h"
#include "win32/variant.h"
#include "windows/object_model/connection.h"
#include "windows/object_model/values.h"

namespace brimwork::windows {

class ExceptionInfo;

/// Every call that fails raises the RunTimeError of AutomationError. Names are literals; arguments
/// are those of Argument() in values.h, in the order of the member's own.
class DispatchObject {
 public:
  /// object is not null.
  DispatchObject(win32::ComPointer<IDispatch> object, std::shared_ptr<Connection> connection,
                 ObjectKind kind);
  /// The same object with the names of its members in a table of its own.
  DispatchObject(const DispatchObject& object, std::shared_ptr<MemberNames> names);

  template <class... Arguments>
  win32::Variant Get(std::wstring_view property, Arguments&&... arguments) const {
    // As Visual Basic asks: collections have Item as a method or as a property.
    constexpr WORD kind =
        sizeof...(arguments) == 0 ? DISPATCH_PROPERTYGET : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    return Invoke(property, kind, Values(std::forward<Arguments>(arguments)...));
  }

  template <class... Arguments>
  win32::Variant Call(std::wstring_view method, Arguments&&... arguments) const {
    return Invoke(method, DISPATCH_METHOD, Values(std::forward<Arguments>(arguments)...));
  }

  /// Calls a method with one argument by its name, the others left out. Of an object that knows no
  /// names of arguments it is the first one.
  template <class Value>
  void CallNamed(std::wstring_view method, std::wstring_view argument, Value&& value) const {
    CallWithNamed(method, argument, Argument(std::forward<Value>(value)));
  }

  /// The object that a property or method gives, as ComObject (a class with kKind and a constructor
  /// that takes a DispatchObject). Null for "nothing".
  template <class ComObject, class... Arguments>
  std::shared_ptr<ComObject> GetAs(std::wstring_view property, Arguments&&... arguments) const {
    return Wrap<ComObject>(Get(property, std::forward<Arguments>(arguments)...));
  }
  template <class ComObject, class... Arguments>
  std::shared_ptr<ComObject> CallAs(std::wstring_view method, Arguments&&... arguments) const {
    return Wrap<ComObject>(Call(method, std::forward<Arguments>(arguments)...));
  }

  /// The same for an object that is always there. Raises error 91 for "nothing".
  template <class ComObject, class... Arguments>
  std::shared_ptr<ComObject> GetExisting(std::wstring_view property,
                                         Arguments&&... arguments) const {
    return Existing(GetAs<ComObject>(property, std::forward<Arguments>(arguments)...), property);
  }
  template <class ComObject, class... Arguments>
  std::shared_ptr<ComObject> CallExisting(std::wstring_view method,
                                          Arguments&&... arguments) const {
    return Existing(CallAs<ComObject>(method, std::forward<Arguments>(arguments)...), method);
  }

  /// An object that this one always has. Raises error 91 for "nothing".
  DispatchObject Part(ObjectKind kind, std::wstring_view property) const;

  /// The items of a collection, as it counts them.
  template <class ComObject, class Seam>
  std::vector<std::shared_ptr<Seam>> Items() const {
    std::vector<std::shared_ptr<Seam>> items;
    const int count = ToNumber(Get(L"Count"));
    for (int i = 1; i <= count; ++i) {
      if (auto item = GetAs<ComObject>(L"Item", i)) items.push_back(std::move(item));
    }
    return items;
  }

  void Put(std::wstring_view property, const win32::Variant& value) const;

  /// As Set does: by reference where the object takes one, else by value.
  void PutReference(std::wstring_view property, const DispatchObject& value) const;

  /// Gives its reference back. The connection has ended; calls raise error 440 as before.
  void LetGo() { object_ = nullptr; }

  /// The same for every reference to this object.
  std::uintptr_t Identity() const;

  const win32::ComPointer<IDispatch>& Object() const { return object_; }
  const std::shared_ptr<Connection>& Connected() const { return connection_; }

 private:
  template <class... Arguments>
  static std::array<win32::Variant, sizeof...(Arguments)> Values(Arguments&&... arguments) {
    return {Argument(std::forward<Arguments>(arguments))...};
  }

  template <class ComObject>
  std::shared_ptr<ComObject> Wrap(const win32::Variant& value) const {
    auto object = ToObject(value);
    if (!object) return nullptr;
    return std::make_shared<ComObject>(
        DispatchObject(std::move(object), connection_, ComObject::kKind));
  }

  template <class ComObject>
  static std::shared_ptr<ComObject> Existing(std::shared_ptr<ComObject> object,
                                             std::wstring_view member) {
    if (!object) RaiseNothing(member);
    return object;
  }
  [[noreturn]] static void RaiseNothing(std::wstring_view member);

  win32::Variant Invoke(std::wstring_view member, WORD kind,
                        std::span<const win32::Variant> arguments) const;
  void CallWithNamed(std::wstring_view method, std::wstring_view argument,
                     win32::Variant value) const;
  HRESULT PutAs(WORD kind, std::wstring_view property, const win32::Variant& value,
                ExceptionInfo& exception) const;
  HRESULT Try(std::wstring_view member, WORD kind, DISPPARAMS& parameters, VARIANT* result,
              ExceptionInfo& exception) const;
  HRESULT TryOnce(std::wstring_view member, WORD kind, DISPPARAMS& parameters, VARIANT* result,
                  ExceptionInfo& exception) const;

  win32::ComPointer<IDispatch> object_;
  std::shared_ptr<Connection> connection_;
  std::shared_ptr<MemberNames> names_;
};

}  // namespace brimwork::windows
