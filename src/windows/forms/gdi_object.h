// Owners of what the system's drawing hands out and wants back.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace brimwork::windows {

struct GdiDeleter {
  void operator()(void* object) const { DeleteObject(object); }
};

/// A font, brush or bitmap: GdiObject<HFONT>.
template <class Handle>
using GdiObject = std::unique_ptr<std::remove_pointer_t<Handle>, GdiDeleter>;

struct IconDeleter {
  void operator()(HICON icon) const { DestroyIcon(icon); }
};

using IconObject = std::unique_ptr<std::remove_pointer_t<HICON>, IconDeleter>;

/// A drawing context in memory that is like the screen's.
class MemoryContext {
 public:
  MemoryContext() : context_(CreateCompatibleDC(nullptr)) {}
  MemoryContext(const MemoryContext&) = delete;
  MemoryContext& operator=(const MemoryContext&) = delete;
  ~MemoryContext() { DeleteDC(context_); }

  operator HDC() const { return context_; }

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

}  // namespace brimwork::windows
