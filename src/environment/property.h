// A property that is read and set like a plain value and tells its owner of each change, so that
// the code of a form says cmdAdd.Enabled = true.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace brimwork {

/// Which property changed. A host redraws by it.
enum class PropertyId {
  kPlace,
  kVisible,
  kEnabled,
  kFocus,
  kFont,
  kColor,
  kToolTipText,
  kTag,
  kCaption,
  kText,
  kSelection,
  kLocked,
  kValue,
  kList,
  kListIndex,
  kBorderStyle,
  kPicture,
  kDrawing,
  kInterval,
};

class PropertyOwner {
 public:
  /// Called behind each change of one of its properties.
  virtual void Changed(PropertyId property) = 0;

 protected:
  ~PropertyOwner() = default;
};

template <class T>
class Property {
 public:
  Property(PropertyOwner& owner, PropertyId id, T value = T())
      : owner_(owner), id_(id), value_(std::move(value)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) { return *this = other.value_; }

  /// A value that it has already changes nothing, so nobody is told.
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    owner_.Changed(id_);
    return *this;
  }

  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

  /// Sets the value without telling anybody.
  void Preset(T value) { value_ = std::move(value); }

  friend bool operator==(const Property& property, const T& value) {
    return property.value_ == value;
  }

 private:
  PropertyOwner& owner_;
  PropertyId id_;
  T value_;
};

/// A property that is text.
class TextProperty {
 public:
  TextProperty(PropertyOwner& owner, PropertyId id) : value_(owner, id) {}
  TextProperty(const TextProperty&) = delete;
  TextProperty& operator=(const TextProperty& other) { return *this = other.Get(); }
  TextProperty& operator=(std::string_view value) {
    value_ = std::string(value);
    return *this;
  }

  operator std::string_view() const { return value_.Get(); }
  operator const std::string&() const { return value_.Get(); }
  const std::string& Get() const { return value_.Get(); }
  bool IsEmpty() const { return Get().empty(); }

  void Preset(std::string_view value) { value_.Preset(std::string(value)); }

  friend bool operator==(const TextProperty& property, std::string_view value) {
    return property.Get() == value;
  }
  friend bool operator==(const TextProperty& a, const TextProperty& b) {
    return a.Get() == b.Get();
  }

 private:
  Property<std::string> value_;
};

}  // namespace brimwork
