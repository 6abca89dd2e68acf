#include "bench/screen/procedure_boxes.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "bench/screen/faults.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr const char* kGeneral = "(General)";
constexpr const char* kDeclarations = "(Declarations)";

const ListedProcedure kModuleStart = {"", "", 1, 1, 1};

HWND NewList(HWND parent, HFONT font) {
  const HWND list =
      CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, 0,
                      0, 0, 0, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
  CheckSystem(list != nullptr, "a list could not be made");
  SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  return list;
}

void Append(HWND list, const std::string& text) {
  SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(win32::Wide(text).c_str()));
}

/// Choosing what is chosen already would be drawn all the same.
void Choose(HWND list, std::size_t entry) {
  if (static_cast<std::size_t>(SendMessageW(list, CB_GETCURSEL, 0, 0)) == entry) return;
  SendMessageW(list, CB_SETCURSEL, entry, 0);
}

}  // namespace

ProcedureBoxes::ProcedureBoxes(HWND parent, HFONT font,
                               std::function<void(const ListedProcedure&)> go)
    : go_(std::move(go)), objects_(NewList(parent, font)), procedures_(NewList(parent, font)) {}

void ProcedureBoxes::Refresh(MemoryCodeModule& module, bool handlesEvents, int line) {
  if (!isFilled_ || revision_ != module.Revision()) {
    auto procedures = ListProcedures(module, handlesEvents);
    revision_ = module.Revision();
    const auto isSameEntry = [](const ListedProcedure& left, const ListedProcedure& right) {
      return left.object == right.object && left.label == right.label;
    };
    const bool areSame = isFilled_ && std::ranges::equal(all_, procedures, isSameEntry);
    all_ = std::move(procedures);
    if (!areSame) ShowObjects();
    isFilled_ = true;
  }
  ShowCurrent(line);
}

void ProcedureBoxes::ShowObjects() {
  SendMessageW(objects_, CB_RESETCONTENT, 0, 0);
  Append(objects_, kGeneral);
  for (const std::string& object : ObjectsOf(all_)) Append(objects_, object);
  ShowProceduresOf("");
}

void ProcedureBoxes::ShowProceduresOf(const std::string& object) {
  object_ = object;
  shown_.clear();
  std::ranges::copy_if(all_, std::back_inserter(shown_), [&](const ListedProcedure& procedure) {
    return procedure.object == object;
  });
  std::ranges::stable_sort(shown_, {}, &ListedProcedure::label);
  SendMessageW(procedures_, CB_RESETCONTENT, 0, 0);
  if (object.empty()) Append(procedures_, kDeclarations);
  for (const ListedProcedure& procedure : shown_) Append(procedures_, procedure.label);
}

void ProcedureBoxes::ShowCurrent(int line) {
  const ListedProcedure* current = ProcedureAt(all_, line);
  const std::string object = current != nullptr ? current->object : "";
  const auto objects = ObjectsOf(all_);
  const auto place = std::ranges::find(objects, object) - objects.begin();
  Choose(objects_, object.empty() ? 0 : static_cast<std::size_t>(place) + 1);
  if (object != object_) ShowProceduresOf(object);
  const std::size_t first = object.empty() ? 1 : 0;
  if (current == nullptr) return Choose(procedures_, 0);
  const auto shown = std::ranges::find(shown_, current->label, &ListedProcedure::label);
  Choose(procedures_, static_cast<std::size_t>(shown - shown_.begin()) + first);
}

void ProcedureBoxes::Place(int left, int top, int width) {
  constexpr int kDropped = 300;
  const int half = width / 2;
  SetWindowPos(objects_, nullptr, left, top, half - 1, kDropped, SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(procedures_, nullptr, left + half + 1, top, width - half - 1, kDropped,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ProcedureBoxes::OnCommand(HWND list, int notification) {
  if (list == nullptr || (list != objects_ && list != procedures_)) return false;
  if (notification == CBN_SELENDOK) {
    if (list == objects_) {
      GoToChosenObject();
    } else {
      GoToChosenProcedure();
    }
  }
  return true;
}

std::string ProcedureBoxes::ChosenObject() const {
  const auto chosen = static_cast<int>(SendMessageW(objects_, CB_GETCURSEL, 0, 0));
  const auto objects = ObjectsOf(all_);
  return chosen < 1 ? "" : objects[static_cast<std::size_t>(chosen) - 1];
}

void ProcedureBoxes::GoToChosenObject() {
  const std::string object = ChosenObject();
  const auto first = std::ranges::find(all_, object, &ListedProcedure::object);
  if (object.empty() || first == all_.end()) {
    go_(kModuleStart);
  } else {
    go_(*first);
  }
}

void ProcedureBoxes::GoToChosenProcedure() {
  const auto chosen = static_cast<int>(SendMessageW(procedures_, CB_GETCURSEL, 0, 0));
  const int entry = object_.empty() ? chosen - 1 : chosen;
  if (entry < 0) return go_(kModuleStart);
  const ListedProcedure& shown = shown_[static_cast<std::size_t>(entry)];
  // It may have moved since the list was filled.
  const auto now = std::ranges::find_if(all_, [&](const ListedProcedure& procedure) {
    return procedure.label == shown.label && procedure.object == shown.object;
  });
  if (now != all_.end()) go_(*now);
}

}  // namespace brimwork::bench
