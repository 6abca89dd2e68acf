// The commands of a Visual Basic environment by number. Where a control's Id tells a command from
// all others, that is its number; the many that share one Id have numbers of their own here.
#pragma once

#include "environment/command_bar.h"

namespace brimwork::command {

/// The Id that the commands from kFirstShared on share.
inline constexpr int kSharedId = 746;
inline constexpr int kFirstShared = 100001;

// clang-format off
enum Number : int {
  kNone = 0,

  // The Ids of their controls.
  kSaveProject = 3, kPrint = 4, kIndent = 14, kOutdent = 15, kCopy = 19, kCut = 21, kPaste = 22,
  kOpenProject = 23, kToggleBreakpoint = 51, kUndo = 128, kRedo = 129, kFind = 141, kStart = 186,
  kBreak = 189, kCommentBlock = control_id::kCommentBlock, kPropertiesWindow = 222, kEnd = 228,
  kObjectBrowser = 473, kToolbox = 548, kToggleBookmark = 2525, kNextBookmark = 2526,
  kPreviousBookmark = 2527, kClearBookmarks = 2528, kListMembers = 2529, kListConstants = 2530,
  kQuickInfo = 2531, kParameterInfo = 2532, kCompleteWord = 2533,
  kUncommentBlock = control_id::kUncommentBlock, kViewObject = 2553, kImmediateWindow = 2554,
  kLocalsWindow = 2555, kWatchWindow = 2556, kProjectExplorer = 2557, kViewCode = 2558,
  kProjectProperties = 2578, kFormLayout = 3046,

  // Those that share an Id.
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
