// The commands of a Visual Basic environment by number. Where a control's Id tells a command from
// all others, that is its number; the many that share one Id have numbers of their own here.
#pragma once

#include "environment/command_bar.h"

namespace brimwork::command {

inline constexpr int kNone = 0;

// Their controls' Ids.
inline constexpr int kSaveProject = 3;
inline constexpr int kPrint = 4;
inline constexpr int kIndent = 14;
inline constexpr int kOutdent = 15;
inline constexpr int kCopy = 19;
inline constexpr int kCut = 21;
inline constexpr int kPaste = 22;
inline constexpr int kOpenProject = 23;
inline constexpr int kToggleBreakpoint = 51;
inline constexpr int kUndo = 128;
inline constexpr int kRedo = 129;
inline constexpr int kFind = 141;
inline constexpr int kStart = 186;
inline constexpr int kBreak = 189;
inline constexpr int kCommentBlock = control_id::kCommentBlock;
inline constexpr int kPropertiesWindow = 222;
inline constexpr int kEnd = 228;
inline constexpr int kObjectBrowser = 473;
inline constexpr int kToolbox = 548;
inline constexpr int kToggleBookmark = 2525;
inline constexpr int kNextBookmark = 2526;
inline constexpr int kPreviousBookmark = 2527;
inline constexpr int kClearBookmarks = 2528;
inline constexpr int kListMembers = 2529;
inline constexpr int kListConstants = 2530;
inline constexpr int kQuickInfo = 2531;
inline constexpr int kParameterInfo = 2532;
inline constexpr int kCompleteWord = 2533;
inline constexpr int kUncommentBlock = control_id::kUncommentBlock;
inline constexpr int kViewObject = 2553;
inline constexpr int kImmediateWindow = 2554;
inline constexpr int kLocalsWindow = 2555;
inline constexpr int kWatchWindow = 2556;
inline constexpr int kProjectExplorer = 2557;
inline constexpr int kViewCode = 2558;
inline constexpr int kProjectProperties = 2578;
inline constexpr int kFormLayout = 3046;

/// The Id that the commands below share.
inline constexpr int kSharedId = 746;
inline constexpr int kFirstShared = 100001;

// clang-format off
enum Shared {
  kNewProject = kFirstShared, kAddProject, kRemoveProject, kSaveProjectAs, kSaveFile, kSaveFileAs,
  kSaveSelection, kSaveChangeScript, kPrintSetup, kMakeProgram, kMakeGroup, kRecentProject, kExit,
  kDelete, kSelectAll, kFindNext, kReplace,
  kDefinition, kLastPosition, kCallStack, kShowStandard, kShowEdit, kShowDebug,
  kAddForm, kAddMdiForm, kAddModule, kAddClassModule, kAddFile, kRemoveFile, kReferences,
  kComponents,
  kAlignToGrid, kCenterInForm, kBringToFront, kSendToBack, kLockControls,
  kStepInto, kStepOver, kStepOut, kRunToCursor, kAddWatch, kEditWatch, kQuickWatch,
  kClearBreakpoints, kSetNextStatement, kShowNextStatement,
  kStartWithFullCompile, kRestart,
  kDataManager, kAddInManager,
  kSplit, kTileHorizontally, kTileVertically, kCascade, kArrangeIcons, kHelpContents, kAbout,
  kHide,
  kSomeMenu,  // stands for every menu
};
// clang-format on

/// The Id of a command's controls.
constexpr int IdOf(int command) { return command < kFirstShared ? command : kSharedId; }

}  // namespace brimwork::command

namespace brimwork::control_id {
inline constexpr int kWindowMenu = 30009;
}  // namespace brimwork::control_id
