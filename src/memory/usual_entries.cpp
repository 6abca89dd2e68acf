#include "memory/usual_entries.h"

#include "memory/usual_commands.h"

namespace brimwork::usual {
namespace {

using namespace command;

constexpr bool kGroup = true;

// clang-format off
constexpr Entry kFileEntries[] = {
    {kNewProject, "&New Project", "Ctrl+N"}, {kOpenProject, "&Open Project...", "Ctrl+O"},
    {kAddProject, "A&dd Project...", "", kGroup}, {kRemoveProject, "&Remove Project"},
    {kSaveProject, "Sa&ve Project", "", kGroup}, {kSaveProjectAs, "Sav&e Project As..."},
    {kSaveFile, "&Save Module1", "Ctrl+S", kGroup}, {kSaveFileAs, "Save Module1 &As..."},
    {kSaveSelection, "Save Selection..."}, {kSaveChangeScript, "Save C&hange Script"},
    {kPrint, "&Print...", "Ctrl+P", kGroup}, {kPrintSetup, "Print Set&up..."},
    {kMakeProgram, "Ma&ke Project1.exe...", "", kGroup}, {kMakeGroup, "Make Project &Group..."},
    {kRecentProject, "&1 C:\\Source\\Parts.vbp", "", kGroup},
    {kRecentProject, "&2 C:\\Source\\Bills.vbp"},
    {kExit, "E&xit", "Alt+Q", kGroup}};

constexpr Entry kEditMenuEntries[] = {
    {kUndo, "&Undo", "Ctrl+Z"}, {kRedo, "&Redo", "Ctrl+Y"},
    {kCut, "Cu&t", "Ctrl+X", kGroup}, {kCopy, "&Copy", "Ctrl+C"}, {kPaste, "&Paste", "Ctrl+V"},
    {kDelete, "&Delete", "Del"}, {kSelectAll, "Select &All", "Ctrl+A"},
    {kFind, "&Find...", "Ctrl+F", kGroup}, {kFindNext, "Find &Next", "F3"},
    {kReplace, "R&eplace...", "Ctrl+H"},
    {kIndent, "&Indent", "Tab", kGroup}, {kOutdent, "&Outdent", "Shift+Tab"},
    {kListMembers, "List Properties/Met&hods", "Ctrl+J", kGroup},
    {kListConstants, "List Con&stants", "Ctrl+Shift+J"}, {kQuickInfo, "&Quick Info", "Ctrl+I"},
    {kParameterInfo, "Para&meter Info", "Ctrl+Shift+I"},
    {kCompleteWord, "Complete &Word", "Ctrl+Space"}};

constexpr Entry kBookmarkEntries[] = {
    {kToggleBookmark, "&Toggle Bookmark"}, {kNextBookmark, "&Next Bookmark"},
    {kPreviousBookmark, "&Previous Bookmark"}, {kClearBookmarks, "&Clear All Bookmarks"}};

constexpr Entry kViewEntries[] = {
    {kViewCode, "&Code"}, {kViewObject, "O&bject", "Shift+F7"},
    {kDefinition, "&Definition", "Shift+F2", kGroup},
    {kLastPosition, "Last &Position", "Ctrl+Shift+F2"},
    {kObjectBrowser, "&Object Browser", "F2", kGroup},
    {kImmediateWindow, "&Immediate Window", "Ctrl+G", kGroup}, {kLocalsWindow, "Local&s Window"},
    {kWatchWindow, "Watc&h Window"}, {kCallStack, "Call Stac&k...", "Ctrl+L"},
    {kProjectExplorer, "&Project Explorer", "Ctrl+R", kGroup},
    {kPropertiesWindow, "Properties &Window", "F4"}, {kFormLayout, "&Form Layout Window"},
    {kToolbox, "Toolbo&x"}};

constexpr Entry kToolbarEntries[] = {
    {kShowDebug, "&Debug"}, {kShowEdit, "&Edit"}, {kShowStandard, "&Standard"}};

constexpr Entry kProjectEntries[] = {
    {kAddForm, "Add &Form"}, {kAddMdiForm, "Add MD&I Form"}, {kAddModule, "Add &Module"},
    {kAddClassModule, "Add &Class Module"},
    {kAddFile, "&Add File...", "Ctrl+D", kGroup}, {kRemoveFile, "&Remove Module1"},
    {kReferences, "Refere&nces...", "", kGroup}, {kComponents, "C&omponents...", "Ctrl+T"},
    {kProjectProperties, "Project1 Prop&erties...", "", kGroup}};

constexpr Entry kFormatEntries[] = {
    {kAlignToGrid, "&Align to Grid"}, {kCenterInForm, "&Center in Form"},
    {kBringToFront, "&Bring to Front", "Ctrl+J", kGroup}, {kSendToBack, "&Send to Back", "Ctrl+K"},
    {kLockControls, "&Lock Controls", "", kGroup}};

constexpr Entry kDebugMenuEntries[] = {
    {kStepInto, "Step &Into", "F8"}, {kStepOver, "Step &Over", "Shift+F8"},
    {kStepOut, "Step O&ut", "Ctrl+Shift+F8"}, {kRunToCursor, "&Run to Cursor", "Ctrl+F8"},
    {kAddWatch, "&Add Watch...", "", kGroup}, {kEditWatch, "&Edit Watch...", "Ctrl+W"},
    {kQuickWatch, "&Quick Watch...", "Shift+F9"},
    {kToggleBreakpoint, "&Toggle Breakpoint", "F9", kGroup},
    {kClearBreakpoints, "&Clear All Breakpoints", "Ctrl+Shift+F9"},
    {kSetNextStatement, "Set &Next Statement", "Ctrl+F9", kGroup},
    {kShowNextStatement, "Show Ne&xt Statement"}};

constexpr Entry kRunEntries[] = {
    {kStart, "&Start", "F5"}, {kStartWithFullCompile, "Start With &Full Compile", "Ctrl+F5"},
    {kBreak, "Brea&k", "Ctrl+Break", kGroup}, {kEnd, "&End"}, {kRestart, "&Restart", "Shift+F5"}};

constexpr Entry kAddInsEntries[] = {
    {kDataManager, "&Visual Data Manager..."}, {kAddInManager, "&Add-In Manager..."}};

constexpr Entry kWindowEntries[] = {
    {kSplit, "S&plit"}, {kTileHorizontally, "Tile &Horizontally", "", kGroup},
    {kTileVertically, "Tile &Vertically"}, {kCascade, "&Cascade"},
    {kArrangeIcons, "&Arrange Icons"}};

constexpr Entry kHelpEntries[] = {
    {kHelpContents, "&Contents...", "F1"}, {kAbout, "&About...", "", kGroup}};

constexpr Entry kStandardEntries[] = {
    {kAddProject, "Add Project"}, {kOpenProject, "Open Project", "", kGroup},
    {kSaveProject, "Save Project"},
    {kCut, "Cut", "", kGroup}, {kCopy, "Copy"}, {kPaste, "Paste"}, {kFind, "Find"},
    {kUndo, "Undo", "", kGroup}, {kRedo, "Redo"},
    {kStart, "Start", "", kGroup}, {kBreak, "Break"}, {kEnd, "End"}};

constexpr Entry kEditEntries[] = {
    {kListMembers, "List Properties/Methods"}, {kListConstants, "List Constants"},
    {kQuickInfo, "Quick Info"}, {kParameterInfo, "Parameter Info"},
    {kCompleteWord, "Complete Word"},
    {kIndent, "Indent", "", kGroup}, {kOutdent, "Outdent"},
    {kToggleBreakpoint, "Toggle Breakpoint", "", kGroup},
    {kCommentBlock, "Comment Block", "", kGroup}, {kUncommentBlock, "Uncomment Block"},
    {kToggleBookmark, "Toggle Bookmark", "", kGroup}, {kNextBookmark, "Next Bookmark"},
    {kPreviousBookmark, "Previous Bookmark"}, {kClearBookmarks, "Clear All Bookmarks"}};

constexpr Entry kDebugEntries[] = {
    {kStart, "Start"}, {kBreak, "Break"}, {kEnd, "End"},
    {kToggleBreakpoint, "Toggle Breakpoint", "", kGroup}};

constexpr Entry kAboveToggleEntries[] = {
    {kCut, "Cu&t"}, {kCopy, "&Copy"}, {kPaste, "&Paste"},
    {kListMembers, "List Properties/Met&hods", "", kGroup}, {kListConstants, "List C&onstants"},
    {kQuickInfo, "&Quick Info"}, {kParameterInfo, "Para&meter Info"},
    {kCompleteWord, "Complete &Word"}};

constexpr Entry kToggleEntries[] = {{kToggleBreakpoint, "&Breakpoint"}, {kToggleBookmark, "B&ookmark"}};

constexpr Entry kBelowToggleEntries[] = {
    {kObjectBrowser, "O&bject Browser", "", kGroup}, {kAddWatch, "&Add Watch...", "", kGroup},
    {kDefinition, "&Definition", "", kGroup}, {kLastPosition, "&Last Position"},
    {kHide, "H&ide", "", kGroup}};

constexpr Entry kBreakOnlyEntries[] = {
    {kRunToCursor, "&Run to Cursor"}, {kSetNextStatement, "Set &Next Statement"},
    {kShowNextStatement, "Show Ne&xt Statement"}, {kQuickWatch, "Quick &Watch..."}};

constexpr Entry kImmediateWindowEntries[] = {
    {kCut, "Cu&t"}, {kCopy, "&Copy"}, {kPaste, "&Paste"},
    {kDefinition, "&Definition", "", kGroup}, {kHide, "H&ide", "", kGroup}};

constexpr Entry kProjectWindowEntries[] = {
    {kViewObject, "View O&bject"}, {kViewCode, "View &Code"},
    {kPropertiesWindow, "P&roperties", "", kGroup},
    {kSaveFile, "&Save Module1", "", kGroup}, {kSaveFileAs, "Save Module1 &As..."},
    {kRemoveFile, "&Remove Module1"}, {kPrint, "&Print...", "", kGroup},
    {kHide, "H&ide", "", kGroup}};

constexpr Entry kProjectWindowAddEntries[] = {
    {kAddForm, "&Form"}, {kAddMdiForm, "MD&I Form"}, {kAddModule, "&Module"},
    {kAddClassModule, "&Class Module"}, {kAddFile, "&Add File...", "", kGroup}};
// clang-format on

}  // namespace

const std::span<const Entry> kFile = kFileEntries;
const std::span<const Entry> kEditMenu = kEditMenuEntries;
const std::span<const Entry> kBookmarks = kBookmarkEntries;
const std::span<const Entry> kView = kViewEntries;
const std::span<const Entry> kToolbars = kToolbarEntries;
const std::span<const Entry> kProject = kProjectEntries;
const std::span<const Entry> kFormat = kFormatEntries;
const std::span<const Entry> kDebugMenu = kDebugMenuEntries;
const std::span<const Entry> kRun = kRunEntries;
const std::span<const Entry> kAddIns = kAddInsEntries;
const std::span<const Entry> kWindow = kWindowEntries;
const std::span<const Entry> kHelp = kHelpEntries;
const std::span<const Entry> kStandard = kStandardEntries;
const std::span<const Entry> kEdit = kEditEntries;
const std::span<const Entry> kDebug = kDebugEntries;
const std::span<const Entry> kAboveToggle = kAboveToggleEntries;
const std::span<const Entry> kToggle = kToggleEntries;
const std::span<const Entry> kBelowToggle = kBelowToggleEntries;
const std::span<const Entry> kBreakOnly = kBreakOnlyEntries;
const std::span<const Entry> kImmediatePopup = kImmediateWindowEntries;
const std::span<const Entry> kProjectPopup = kProjectWindowEntries;
const std::span<const Entry> kProjectPopupAdd = kProjectWindowAddEntries;

}  // namespace brimwork::usual
