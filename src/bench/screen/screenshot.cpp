#include "bench/screen/screenshot.h"

#include <objidl.h>

#include <algorithm>

#include <gdiplus.h>

#include "bench/screen/faults.h"
#include "bench/screen/handles.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace {

constexpr CLSID kPng = {
    0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

/// The system's library of pictures, for as long as it is needed.
class PictureLibrary {
 public:
  PictureLibrary() {
    const Gdiplus::GdiplusStartupInput input;
    started_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
    CheckSystem(started_, "the library of pictures could not be started");
  }
  PictureLibrary(const PictureLibrary&) = delete;
  PictureLibrary& operator=(const PictureLibrary&) = delete;
  ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }

 private:
  ULONG_PTR token_ = 0;
  bool started_ = false;
};

GdiObject<HBITMAP> CopyOfScreen(const RECT& area) {
  const int width = static_cast<int>(area.right - area.left);
  const int height = static_cast<int>(area.bottom - area.top);
  const WindowContext screen(nullptr);
  const MemoryContext copy;
  GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(screen.get(), width, height));
  const SelectedObject selected(copy.get(), bitmap.get());
  const bool isCopied =
      BitBlt(copy.get(), 0, 0, width, height, screen.get(), static_cast<int>(area.left),
             static_cast<int>(area.top), SRCCOPY) != 0;
  CheckSystem(isCopied, "the screen could not be copied");
  return bitmap;
}

}  // namespace

void SaveWindowPicture(HWND window, const std::filesystem::path& file) {
  RECT area{};
  GetWindowRect(window, &area);
  const GdiObject<HBITMAP> bitmap = CopyOfScreen(area);
  const PictureLibrary library;
  Gdiplus::Bitmap picture(bitmap.get(), nullptr);
  if (picture.Save(file.c_str(), &kPng, nullptr) != Gdiplus::Ok) {
    throw RunTimeError(error_number::kPathFileAccess, "the picture could not be written");
  }
}

void PumpUntilQuiet() {
  constexpr DWORD kQuiet = 300;  // milliseconds without a message
  while (MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuiet, QS_ALLINPUT) == WAIT_OBJECT_0) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

}  // namespace brimwork::bench
