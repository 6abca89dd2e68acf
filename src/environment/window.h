// The windows of the environment, as far as commands look at them. Every operation may raise
// RunTimeError.
#pragma once

#include <cstdint>
#include <string>

namespace brimwork {

/// The environment's own numbers for its windows.
namespace window_type {
inline constexpr int kCodeWindow = 0;
inline constexpr int kDesigner = 1;
inline constexpr int kWatch = 3;
inline constexpr int kLocals = 4;
inline constexpr int kImmediate = 5;
inline constexpr int kProject = 6;
inline constexpr int kProperties = 7;
inline constexpr int kToolbox = 10;
inline constexpr int kMainWindow = 12;
inline constexpr int kToolWindow = 15;  // an add-in's own
}  // namespace window_type

class Window {
 public:
  virtual ~Window() = default;

  /// The same for two objects that stand for one window, different for two windows.
  virtual std::uintptr_t Identity() = 0;

  virtual std::string Caption() = 0;
  virtual int Type() = 0;  // window_type::k...
  virtual bool Visible() = 0;
  virtual void SetVisible(bool visible) = 0;

  /// Gives the window the keyboard's focus; a hidden one raises an error.
  virtual void SetFocus() = 0;

  /// Closes a code window or designer; hides any other.
  virtual void Close() = 0;
};

}  // namespace brimwork
