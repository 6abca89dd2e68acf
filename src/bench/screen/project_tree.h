// The Project window: the open projects with their components, by kind.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "bench/screen/subclass.h"
#include "bench/screen/tool_window.h"

namespace brimwork::bench {

class ProjectTree : public ToolContent, public SubclassedControl {
 public:
  ProjectTree(const ScreenParts& parts, const ToolWindow& owner);
  ~ProjectTree() override;

  HWND Handle() const override { return SubclassedControl::Handle(); }
  void Refresh() override;
  std::optional<LRESULT> OnNotify(const NMHDR& note) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) override;

 private:
  struct Entry {
    std::shared_ptr<WorkProject> project;
    std::shared_ptr<WorkComponent> component = nullptr;  // null for projects and folders
    HTREEITEM item = nullptr;
  };

  void Rebuild();
  void AddProject(const std::shared_ptr<WorkProject>& project);
  HTREEITEM Add(HTREEITEM parent, const std::string& text, int image, const Entry& entry);
  int ImageOf(int componentType);
  const Entry* Chosen() const;
  void SelectChosen();
  void OpenChosen();
  void OpenMenu(LPARAM longer);

  ScreenParts parts_;
  HIMAGELIST images_;
  std::map<int, int> imageOfType_;
  std::vector<Entry> entries_;  // by the number that an item bears
  std::string shown_;           // what the tree shows, to see whether that changed
  std::uint64_t revision_ = 0;
  bool isFilled_ = false;
  bool isFilling_ = false;
};

}  // namespace brimwork::bench
