#include "windows/desktop/rich_edit_box.h"

#include <algorithm>
#include <utility>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"
#include "windows/desktop/control_rich_text.h"
#include "windows/desktop/handles.h"
#include "windows/desktop/new_file.h"
#include "windows/desktop/rich_edit_stream.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

constexpr LONG kTwipsOfAPoint = 20;
constexpr int kMostPoints = 2160;
constexpr WPARAM kUtf8RichText = SF_RTF | SF_USECODEPAGE | (WPARAM{CP_UTF8} << 16);

CHARFORMAT2W EmptyFormat() {
  CHARFORMAT2W format = {};
  format.cbSize = sizeof format;
  return format;
}

CHARFORMAT2W FontFormat(std::wstring_view name) {
  CHARFORMAT2W format = EmptyFormat();
  format.dwMask = CFM_FACE | CFM_CHARSET;
  format.bCharSet = DEFAULT_CHARSET;
  name.copy(format.szFaceName, LF_FACESIZE - 1);
  return format;
}

/// The format of a new control.
CHARFORMAT2W DefaultFormat() {
  constexpr LONG kPoints = 8;
  CHARFORMAT2W format = FontFormat(L"MS Sans Serif");
  format.dwMask |= CFM_SIZE | CFM_COLOR | CFM_BOLD | CFM_ITALIC;
  format.yHeight = kPoints * kTwipsOfAPoint;
  format.dwEffects = CFE_AUTOCOLOR;
  return format;
}

HWND MakeControl() {
  const HWND window =
      CreateWindowExW(0, RICHEDIT_CLASSW, nullptr, ES_MULTILINE | ES_AUTOHSCROLL | ES_AUTOVSCROLL,
                      0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  if (window == nullptr) RaiseSystemError("CreateWindowEx");
  return window;
}

[[noreturn]] void RaiseNoRichText() {
  throw RunTimeError(error_number::kInvalidFileFormat, "this is no rich text");
}

std::string_view BytesOf(const std::wstring& units) {
  return {reinterpret_cast<const char*>(units.data()), units.size() * sizeof(wchar_t)};
}

}  // namespace

RichEditBox::RichEditBox(std::shared_ptr<win32::SystemLibrary> library,
                         const CodePageText& encoding)
    : library_(std::move(library)), encoding_(encoding), window_(MakeControl()) {
  constexpr LPARAM kMostUnits = 0x7FFFFFFE;
  Send(WM_SETREDRAW, FALSE);
  Send(EM_HIDESELECTION, TRUE);  // it need not be brought into view, either
  Send(EM_SETUNDOLIMIT, 0);
  Send(EM_SETEVENTMASK, 0, 0);
  Send(EM_EXLIMITTEXT, 0, kMostUnits);
  Send(EM_SETLANGOPTIONS, 0, 0);  // fonts stay as they are set, whatever the characters
  CHARFORMAT2W format = DefaultFormat();
  Send(EM_SETCHARFORMAT, SCF_DEFAULT, reinterpret_cast<LPARAM>(&format));
}

RichEditBox::~RichEditBox() { DestroyWindow(window_); }

WindowHandle RichEditBox::hWnd() { return AsHandle(window_); }

std::string RichEditBox::Text() { return TextOfUnits(Content().Units()); }

// As a stream, text is never taken for anything else, whatever it begins with.
void RichEditBox::SetText(std::string text) {
  RichEditText content(ControlUnits(text));
  selected_.reset();
  if (!StreamIn(window_, SF_TEXT | SF_UNICODE, BytesOf(WithStandIns(content.Units())))) {
    throw RunTimeError(error_number::kOverflow, "the text box cannot hold the text");
  }
  text_ = std::move(content);
  richText_.reset();
  isUnread_ = false;
  SetSelStart(0);
  CHARFORMAT2W format = DefaultFormat();
  Send(EM_SETCHARFORMAT, SCF_ALL, reinterpret_cast<LPARAM>(&format));
}

void RichEditBox::SetSelStart(int position) {
  selStart_ = std::clamp(position, 0, Content().Size());
  selLength_ = 0;
}

void RichEditBox::SetSelLength(int length) {
  selLength_ = std::clamp(length, 0, Content().Size() - selStart_);
}

void RichEditBox::SetSelColor(Color color) {
  CHARFORMAT2W format = EmptyFormat();
  format.dwMask = CFM_COLOR;
  format.crTextColor = color & 0xFFFFFF;
  Format(format);
}

void RichEditBox::SetSelFontName(std::string_view name) { Format(FontFormat(win32::Wide(name))); }

void RichEditBox::SetSelFontSize(int points) {
  if (points < 1 || points > kMostPoints) {
    throw RunTimeError(error_number::kInvalidProcedureCall,
                       "no font has a size of " + std::to_string(points) + " points");
  }
  CHARFORMAT2W format = EmptyFormat();
  format.dwMask = CFM_SIZE;
  format.yHeight = points * kTwipsOfAPoint;
  Format(format);
}

void RichEditBox::SetSelText(std::string_view text) {
  BecomeOwn();
  const std::wstring units = ControlUnits(text);
  const UnitRange range = Selection();
  Select(range);
  const bool isThere = text_.Units().compare(range.start, range.Size(), units) == 0;
  if (!isThere || !HasOneFormat()) {
    Insert(WithStandIns(units));
    text_.Replace(range, units);
  }
  SetSelStart(text_.PositionOf(range.start + units.size()));
}

std::string RichEditBox::SelRTF() { return RichTextOf(Selection()); }

// What is only saved afterwards never needs to go into the control.
void RichEditBox::SetTextRTF(std::string_view richText) {
  if (!IsRichText(richText)) RaiseNoRichText();
  richText_ = richText;
  isUnread_ = true;
  selStart_ = selLength_ = 0;
}

void RichEditBox::SaveFile(std::string_view path, SaveAs type) {
  const bool isRich = type == SaveAs::kRichText;
  NewFile file(path);
  if (isRich && richText_) {
    file.Write(*richText_);
  } else {
    file.Write(isRich ? RichTextOf({0, Content().Units().size()}) : PlainText());
  }
  file.PutInPlace();
}

void RichEditBox::SetWordWrap(bool wraps) { Send(EM_SETTARGETDEVICE, 0, wraps ? 0 : 1); }

void RichEditBox::ReadLine(int line, std::string& text) {
  const bool isThere = line >= 0 && line < LineCount();
  text = isThere ? win32::Narrow(Content().Line(line)) : std::string();
}

LRESULT RichEditBox::Send(UINT message, WPARAM wide, LPARAM longer) const {
  return SendMessageW(window_, message, wide, longer);
}

void RichEditBox::Select(UnitRange range) {
  if (selected_ == range) return;
  CHARRANGE characters = {static_cast<LONG>(range.start), static_cast<LONG>(range.end)};
  Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&characters));
  selected_ = range;
}

/// A line end that the selection cuts is taken in whole.
UnitRange RichEditBox::Selection() {
  const RichEditText& text = Content();
  const std::size_t start = text.UnitAt(selStart_);
  return {start, selLength_ == 0 ? start : text.UnitBehind(selStart_ + selLength_)};
}

/// A line end takes the format given to its CR.
void RichEditBox::Format(CHARFORMAT2W format) {
  const RichEditText& text = Content();
  const UnitRange range = {text.UnitBehind(selStart_), text.UnitBehind(selStart_ + selLength_)};
  const bool isEmpty = text.Units().empty();
  if (range.Size() == 0 && !isEmpty) return;
  BecomeOwn();
  Select(range);
  Send(EM_SETCHARFORMAT, isEmpty ? SCF_ALL : SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
}

/// Whether all that is selected in the control has the same format.
bool RichEditBox::HasOneFormat() const {
  constexpr DWORD kAsked = CFM_COLOR | CFM_FACE | CFM_SIZE;
  CHARFORMAT2W format = EmptyFormat();
  Send(EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
  return (format.dwMask & kAsked) == kAsked;
}

/// The text of the control, which takes in what it was given.
const RichEditText& RichEditBox::Content() {
  if (isUnread_) TakeIn();
  return text_;
}

void RichEditBox::TakeIn() {
  selected_.reset();
  if (!StreamIn(window_, SF_RTF, *richText_)) RaiseNoRichText();
  text_ = RichEditText(ControlText());
  isUnread_ = false;
}

std::wstring RichEditBox::ControlText() const {
  constexpr UINT kUtf16 = 1200;
  GETTEXTLENGTHEX wanted = {GTL_NUMCHARS | GTL_PRECISE, kUtf16};
  const LRESULT length = Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&wanted));
  std::wstring units(static_cast<std::size_t>(length), L'\0');
  GETTEXTEX room = {static_cast<DWORD>((units.size() + 1) * sizeof(wchar_t)), GT_DEFAULT, kUtf16,
                    nullptr, nullptr};
  units.resize(static_cast<std::size_t>(
      Send(EM_GETTEXTEX, reinterpret_cast<WPARAM>(&room), reinterpret_cast<LPARAM>(units.data()))));
  return units;
}

/// The content is no longer the rich text that was taken in.
void RichEditBox::BecomeOwn() {
  if (!richText_) return;
  const std::wstring& units = Content().Units();
  const std::wstring held = WithStandIns(units);
  for (std::size_t unit = 0; unit < held.size(); ++unit) {
    if (held[unit] == units[unit]) continue;
    Select({unit, unit + 1});
    Insert(held.substr(unit, 1));
  }
  richText_.reset();
}

/// Puts units in place of what is selected in the control.
void RichEditBox::Insert(const std::wstring& units) {
  Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(units.c_str()));
  selected_.reset();
}

std::string RichEditBox::RichTextOf(UnitRange range) {
  BecomeOwn();
  Select(range);
  return PortableRichText(StreamOut(window_, kUtf8RichText | SFF_SELECTION),
                          std::wstring_view(text_.Units()).substr(range.start, range.Size()));
}

std::string RichEditBox::PlainText() {
  std::string bytes;
  encoding_.Append(Text(), UnencodableText::kFails, bytes);
  return bytes;
}

std::unique_ptr<RichTextBox> RichEditBoxes::Create() {
  if (!library_) library_ = std::make_shared<win32::SystemLibrary>(L"riched20.dll");
  if (!*library_) {
    throw RunTimeError(error_number::kCannotCreateObject, "this system has no rich text control");
  }
  return std::make_unique<RichEditBox>(library_, encoding_);
}

}  // namespace brimwork::windows
