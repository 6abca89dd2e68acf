#include "bench/screen/faces.h"

#include <algorithm>
#include <span>

#include "bench/screen/face_dib.h"
#include "bench/screen/faults.h"
#include "bench/screen/glyphs.h"

namespace brimwork::bench {
namespace {

constexpr std::string_view kPrefix = "face-";

/// The clipboard, held for as long as this lives. Other programs hold it for moments only, so it
/// is tried a few times.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    constexpr int kTries = 10;
    for (int tried = 0; tried < kTries && !isOpen_; ++tried) {
      if (tried > 0) Sleep(20);
      isOpen_ = OpenClipboard(owner) != 0;
    }
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;
  ~OpenedClipboard() {
    if (isOpen_) CloseClipboard();
  }

  bool IsOpen() const { return isOpen_; }

 private:
  bool isOpen_ = false;
};

UINT FaceFormat() { return RegisterClipboardFormatW(L"Toolbar Button Face"); }
UINT MaskFormat() { return RegisterClipboardFormatW(L"Toolbar Button Mask"); }

std::vector<std::byte> BytesOf(UINT format) {
  const HANDLE data = GetClipboardData(format);
  const void* locked = data == nullptr ? nullptr : GlobalLock(data);
  if (locked == nullptr) return {};
  const auto* first = static_cast<const std::byte*>(locked);
  std::vector<std::byte> bytes(first, first + GlobalSize(data));
  GlobalUnlock(data);
  return bytes;
}

void PutBytes(UINT format, std::span<const std::byte> bytes) {
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  CheckSystem(memory != nullptr, "the face could not be copied");
  std::ranges::copy(bytes, static_cast<std::byte*>(GlobalLock(memory)));
  GlobalUnlock(memory);
  if (SetClipboardData(format, memory) == nullptr) GlobalFree(memory);
}

}  // namespace

std::string Faces::Keep(const Picture& picture) {
  auto kept = std::ranges::find(kept_, picture);
  if (kept == kept_.end()) kept = kept_.insert(kept_.end(), picture);
  return std::string(kPrefix) + std::to_string(kept - kept_.begin() + 1);
}

const Picture* Faces::Named(std::string_view name) const {
  for (std::size_t place = 0; place < kept_.size(); ++place) {
    if (name == std::string(kPrefix) + std::to_string(place + 1)) return &kept_[place];
  }
  return nullptr;
}

std::optional<Picture> Faces::Of(const MemoryCommandBarControl& control) const {
  if (const Picture* pasted = Named(control.Face())) return *pasted;
  const int number = control.Details().faceId;
  Glyph glyph = CommandGlyph(number != 0 ? number : control.Command());
  if (glyph.empty() && number != 0 && !control.IsBuiltIn()) glyph = PlainGlyph();
  if (glyph.empty()) return std::nullopt;
  return Drawn(glyph);
}

std::optional<Picture> FaceOnClipboard(HWND owner) {
  const OpenedClipboard clipboard(owner);
  if (!clipboard.IsOpen()) return std::nullopt;
  if (auto face = PictureOfDib(BytesOf(FaceFormat()))) {
    ApplyMask(*face, BytesOf(MaskFormat()));
    return face;
  }
  return PictureOfDib(BytesOf(CF_DIB));
}

void PutFaceOnClipboard(HWND owner, const Picture& face) {
  const OpenedClipboard clipboard(owner);
  CheckSystem(clipboard.IsOpen(), "the clipboard could not be opened");
  EmptyClipboard();
  PutBytes(CF_DIB, DibOf(face));
  PutBytes(FaceFormat(), DibOf(face));
  PutBytes(MaskFormat(), MaskOf(face));
}

}  // namespace brimwork::bench
