#include "memory/usual_command_bars.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace brimwork {
namespace {

struct BuiltIn {
  int id;
  std::string_view caption;
};

constexpr int kSharedId = 746;  // borne by many of the environment's commands

// clang-format off
constexpr BuiltIn kFile[] = {
    {kSharedId, "&New Project"}, {23, "&Open Project..."}, {kSharedId, "A&dd Project..."},
    {kSharedId, "&Remove Project"}, {3, "Sa&ve Project"}, {kSharedId, "Sav&e Project As..."},
    {kSharedId, "&Save Module1"}, {kSharedId, "Save Module1 &As..."},
    {kSharedId, "Save Selection..."}, {kSharedId, "Save C&hange Script"}, {4, "&Print..."},
    {kSharedId, "Print Set&up..."}, {kSharedId, "Ma&ke Project1.exe..."},
    {kSharedId, "Make Project &Group..."}, {kSharedId, "&1 C:\\Source\\Parts.vbp"},
    {kSharedId, "&2 C:\\Source\\Bills.vbp"}, {kSharedId, "E&xit"}};

constexpr BuiltIn kAddIns[] = {
    {kSharedId, "&Visual Data Manager..."}, {kSharedId, "&Add-In Manager..."}};

constexpr BuiltIn kStandard[] = {
    {kSharedId, "Add Project"}, {23, "Open Project"}, {3, "Save Project"}, {21, "Cut"},
    {19, "Copy"}, {22, "Paste"}, {141, "Find"}, {128, "Undo"}, {129, "Redo"}, {186, "Start"},
    {189, "Break"}, {228, "End"}};

constexpr BuiltIn kEdit[] = {
    {2529, "List Properties/Methods"}, {2530, "List Constants"}, {2531, "Quick Info"},
    {2532, "Parameter Info"}, {2533, "Complete Word"}, {14, "Indent"}, {15, "Outdent"},
    {51, "Toggle Breakpoint"}, {control_id::kCommentBlock, "Comment Block"},
    {control_id::kUncommentBlock, "Uncomment Block"}, {2525, "Toggle Bookmark"},
    {2526, "Next Bookmark"}, {2527, "Previous Bookmark"}, {2528, "Clear All Bookmarks"}};

constexpr BuiltIn kDebug[] = {
    {186, "Start"}, {189, "Break"}, {228, "End"}, {51, "Toggle Breakpoint"}};

constexpr BuiltIn kAboveToggle[] = {
    {21, "Cu&t"}, {19, "&Copy"}, {22, "&Paste"}, {2529, "List Properties/Met&hods"},
    {2530, "List C&onstants"}, {2531, "&Quick Info"}, {2532, "Para&meter Info"},
    {2533, "Complete &Word"}};

constexpr BuiltIn kToggle[] = {{51, "&Breakpoint"}, {2525, "B&ookmark"}};

constexpr BuiltIn kBelowToggle[] = {
    {473, "O&bject Browser"}, {kSharedId, "&Add Watch..."}, {kSharedId, "&Definition"},
    {kSharedId, "&Last Position"}, {kSharedId, "H&ide"}};

constexpr BuiltIn kImmediateWindow[] = {
    {21, "Cu&t"}, {19, "&Copy"}, {22, "&Paste"}, {kSharedId, "&Definition"}, {kSharedId, "H&ide"}};
// clang-format on

void Fill(MemoryCommandBarControls& controls, std::span<const BuiltIn> commands) {
  for (const BuiltIn& command : commands) controls.AddBuiltIn(command.id, command.caption);
}

std::shared_ptr<MemoryCommandBar> AddToolbar(MemoryVbe& vbe, std::string name,
                                             std::span<const BuiltIn> commands) {
  auto bar = std::make_shared<MemoryCommandBar>(std::move(name));
  vbe.AddCommandBar(bar);
  Fill(*bar->Entries(), commands);
  return bar;
}

std::shared_ptr<MemoryCommandBar> AddPopupMenu(MemoryVbe& vbe, std::string name,
                                               std::span<const BuiltIn> commands) {
  auto bar = AddToolbar(vbe, std::move(name), commands);
  bar->MakeMenu();
  return bar;
}

std::shared_ptr<MemoryCommandBar> AddDropDownMenu(MemoryVbe& vbe, std::string name,
                                                  std::string_view caption,
                                                  std::span<const BuiltIn> commands) {
  auto bar = AddPopupMenu(vbe, std::move(name), commands);
  if (const auto menuBar = vbe.commandBars.OfName(MemoryVbe::kMenuBarName)) {
    menuBar->Entries()->AddMenu(caption, *bar);
  }
  return bar;
}

}  // namespace

UsualCommandBars AddUsualCommandBars(MemoryVbe& vbe) {
  UsualCommandBars usual;
  usual.file = AddDropDownMenu(vbe, "File", "&File", kFile);
  usual.addIns = AddDropDownMenu(vbe, "Add-Ins", "&Add-Ins", kAddIns);
  usual.standard = AddToolbar(vbe, "Standard", kStandard);
  usual.edit = AddToolbar(vbe, "Edit", kEdit);
  usual.debug = AddToolbar(vbe, "Debug", kDebug);
  usual.debug->SetVisible(false);
  usual.codeWindow = AddPopupMenu(vbe, "Code Window", kAboveToggle);
  Fill(*usual.codeWindow->Entries()->AddBuiltInPopup("To&ggle")->Entries(), kToggle);
  Fill(*usual.codeWindow->Entries(), kBelowToggle);
  usual.immediateWindow = AddPopupMenu(vbe, "Immediate Window", kImmediateWindow);
  return usual;
}

}  // namespace brimwork
