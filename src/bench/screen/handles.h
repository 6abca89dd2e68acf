// Owners of what the system hands out and wants back.
#pragma once

#include <windows.h>

#include <utility>

namespace brimwork::bench {

/// A font, brush, bitmap or pen.
template <typename Handle>
class GdiObject {
 public:
  GdiObject() = default;
  explicit GdiObject(Handle handle) : handle_(handle) {}
  GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~GdiObject() {
    if (handle_ != nullptr) DeleteObject(handle_);
  }

  Handle get() const { return handle_; }

 private:
  Handle handle_ = nullptr;
};

/// A drawing context in memory.
class MemoryContext {
 public:
  MemoryContext() : context_(CreateCompatibleDC(nullptr)) {}
  MemoryContext(const MemoryContext&) = delete;
  MemoryContext& operator=(const MemoryContext&) = delete;
  ~MemoryContext() { DeleteDC(context_); }

  HDC get() const { return context_; }

 private:
  HDC context_;
};

/// Draws with an object until the end of the block.
class SelectedObject {
 public:
  SelectedObject(HDC context, HGDIOBJ object)
      : context_(context), before_(SelectObject(context, object)) {}
  SelectedObject(const SelectedObject&) = delete;
  SelectedObject& operator=(const SelectedObject&) = delete;
  ~SelectedObject() { SelectObject(context_, before_); }

 private:
  HDC context_;
  HGDIOBJ before_;
};

/// A window's drawing context.
class WindowContext {
 public:
  explicit WindowContext(HWND window) : window_(window), context_(GetDC(window)) {}
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  ~WindowContext() { ReleaseDC(window_, context_); }

  HDC get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

/// The answer to WM_PAINT.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window) { BeginPaint(window, &paint_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;
  ~Painting() { EndPaint(window_, &paint_); }

  HDC Context() const { return paint_.hdc; }

 private:
  HWND window_;
  PAINTSTRUCT paint_;
};

class IconHandle {
 public:
  IconHandle() = default;
  explicit IconHandle(HICON icon) : icon_(icon) {}
  IconHandle(IconHandle&& other) noexcept : icon_(std::exchange(other.icon_, nullptr)) {}
  IconHandle& operator=(IconHandle&& other) noexcept {
    std::swap(icon_, other.icon_);
    return *this;
  }
  ~IconHandle() {
    if (icon_ != nullptr) DestroyIcon(icon_);
  }

  HICON get() const { return icon_; }

 private:
  HICON icon_ = nullptr;
};

class MenuHandle {
 public:
  MenuHandle() = default;
  explicit MenuHandle(HMENU menu) : menu_(menu) {}
  MenuHandle(MenuHandle&& other) noexcept : menu_(std::exchange(other.menu_, nullptr)) {}
  MenuHandle& operator=(MenuHandle&& other) noexcept {
    std::swap(menu_, other.menu_);
    return *this;
  }
  ~MenuHandle() {
    if (menu_ != nullptr) DestroyMenu(menu_);
  }

  HMENU get() const { return menu_; }

 private:
  HMENU menu_ = nullptr;
};

}  // namespace brimwork::bench
