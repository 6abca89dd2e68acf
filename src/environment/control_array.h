// Controls that share a name and are told apart by their index, from 0.
#pragma once

#include <array>
#include <functional>
#include <string_view>
#include <utility>

#include "environment/form_layout.h"
#include "environment/run_time_error.h"

namespace brimwork {

class Form;

template <class T, int kCount>
class ControlArray {
 public:
  ControlArray(Form& form, std::string_view name)
      : ControlArray(form, name, std::make_integer_sequence<int, kCount>()) {}

  static constexpr int Count() { return kCount; }

  /// Raises error 340 for an index that no element has.
  T& operator()(int index) { return elements_[Checked(index)]; }
  const T& operator()(int index) const { return elements_[Checked(index)]; }

  auto begin() { return elements_.begin(); }
  auto end() { return elements_.end(); }
  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

  /// Sets an event of every element: the handler is called with the element's index first.
  template <class Event, class Handler>
  void Handle(Event T::*event, Handler handler) {
    for (T& element : elements_) {
      element.*event = [handler, index = element.Index()](auto&&... arguments) {
        handler(index, std::forward<decltype(arguments)>(arguments)...);
      };
    }
  }

 private:
  template <int... kIndexes>
  ControlArray(Form& form, std::string_view name, std::integer_sequence<int, kIndexes...>)
      : elements_{{T(form, name, kIndexes)...}} {}

  static std::size_t Checked(int index) {
    if (index >= 0 && index < kCount) return static_cast<std::size_t>(index);
    throw RunTimeError(error_number::kNoSuchArrayElement, "Control array element doesn't exist");
  }

  std::array<T, kCount> elements_;
};

}  // namespace brimwork
