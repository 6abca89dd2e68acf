// The Add-In Manager: the window in which the user loads and unloads add-ins.
#pragma once

#include <windows.h>

#include <vector>

#include "bench/add_ins/add_ins.h"
#include "bench/manager/add_in_choices.h"
#include "bench/screen/fonts.h"
#include "bench/screen/native_window.h"

namespace brimwork::bench {

class AddInManager : public NativeWindow {
 public:
  /// All three outlive the window.
  AddInManager(HWND owner, AddIns& addIns, const Fonts& fonts);
  ~AddInManager() override;

  /// Shows the window and returns when the user has closed it, with his choices done. The owner
  /// takes no input meanwhile.
  void Run();

 private:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;
  void MakeControls();
  HWND MakeControl(const wchar_t* className, const wchar_t* text, DWORD style, const Bounds& place,
                   int id);
  void FillList();
  void ShowRow(std::size_t row);
  void ShowChoice();
  void TakeChoice();
  void ShowTick(int id, bool isTicked);
  bool IsTicked(int id) const;
  void OnCommand(int id);
  void OnNotify(const NMHDR& notice);
  void Accept();

  HWND owner_;
  AddIns& addIns_;
  const Fonts& fonts_;
  std::vector<AddInChoice> choices_;
  HWND list_ = nullptr;
  int chosen_ = -1;  // a row of the list; -1 for none
  bool isOpen_ = false;
};

}  // namespace brimwork::bench
