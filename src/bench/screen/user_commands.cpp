#include "bench/screen/user_commands.h"

#include <utility>

#include "bench/screen/command_keys.h"
#include "bench/screen/file_dialogs.h"
#include "memory/usual_commands.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

/// What can be done wherever there is a text.
constexpr int kEditing[] = {command::kCut,     command::kCopy,      command::kPaste,
                            command::kDelete,  command::kSelectAll, command::kFind,
                            command::kFindNext};

}  // namespace

UserCommands::UserCommands(const ScreenParts& parts, Workspace& workspace, ToolSet& tools,
                           std::function<void()> exit)
    : parts_(parts),
      workspace_(workspace),
      tools_(tools),
      exit_(std::move(exit)),
      find_(parts.host.Owner(), parts.fonts,
            [this](const SearchQuery& query) { parts_.host.Do([this, query] { Look(query); }); }) {
  GiveEditing();
  GiveFiles();
  GiveWindows();
}

UserCommands::~UserCommands() {
  for (const int command : given_) parts_.bench.vbe.commandBars.SetAction(command, {});
  parts_.bench.openRecent = {};
}

void UserCommands::Give(int command, std::function<void()> action) {
  parts_.bench.vbe.commandBars.SetAction(command, std::move(action));
  given_.push_back(command);
}

void UserCommands::GiveEditing() {
  const std::pair<int, void (TextView::*)()> tasks[] = {
      {command::kCut, &TextView::Cut},
      {command::kCopy, &TextView::Copy},
      {command::kPaste, &TextView::Paste},
      {command::kDelete, &TextView::Delete},
      {command::kUndo, &TextView::Undo},
      {command::kRedo, &TextView::Redo},
      {command::kSelectAll, &TextView::SelectAll}};
  for (const auto& [command, task] : tasks) {
    Give(command, [this, task = task] { OnText(task); });
  }
  Give(command::kFind, [this] { Find(); });
  Give(command::kFindNext, [this] { FindAgain(); });
}

void UserCommands::GiveFiles() {
  Give(command::kOpenProject, [this] { OpenProject(); });
  Give(command::kExit, exit_);
  parts_.bench.openRecent = [this](const std::filesystem::path& path) {
    if (MayClose()) Open(path);
  };
}

void UserCommands::GiveWindows() {
  Give(command::kHide, [this] { HideActive(); });
  Give(command::kCascade, [this] { workspace_.Cascade(); });
  Give(command::kTileHorizontally, [this] { workspace_.TileAcross(); });
  Give(command::kTileVertically, [this] { workspace_.TileDown(); });
  Give(command::kArrangeIcons, [this] { workspace_.ArrangeIcons(); });
}

/// The text that the user works on: the active window's, else that of the code window in front.
TextView* UserCommands::Text() const {
  const auto active = parts_.bench.vbe.windows.Active();
  if (active == parts_.bench.windows.immediate) return &tools_.ImmediateText();
  auto* code = dynamic_cast<CodeWindow*>(workspace_.Active());
  return code != nullptr ? &code->Text() : nullptr;
}

void UserCommands::OnText(void (TextView::*task)()) {
  if (TextView* text = Text()) (text->*task)();
}

void UserCommands::Find() {
  TextView* text = Text();
  find_.Open(text != nullptr ? text->SelectedWord() : std::wstring());
}

void UserCommands::FindAgain() {
  if (find_.Query().wanted.empty()) return Find();
  Look(find_.Query());
}

void UserCommands::Look(const SearchQuery& query) {
  TextView* text = Text();
  if (text != nullptr && text->Find(query)) return;
  MessageBoxW(parts_.host.Owner(), L"The specified region has been searched.", L"Find",
              MB_OK | MB_ICONINFORMATION);
}

void UserCommands::Open(const std::filesystem::path& path) {
  parts_.bench.Open(path);
  const auto first = parts_.bench.SelectedComponent();
  if (first != nullptr) parts_.bench.PaneOf(first);
}

void UserCommands::OpenProject() {
  const auto path = AskForProject(parts_.host.Owner(), win32::Wide(parts_.bench.lastUsedPath));
  if (path && MayClose()) Open(*path);
}

bool UserCommands::MayClose() {
  if (!parts_.bench.HasUnsavedChanges()) return true;
  const int answer = MessageBoxW(parts_.host.Owner(), L"Save the changes to the open projects?",
                                 L"Workbench", MB_YESNOCANCEL | MB_ICONQUESTION);
  if (answer == IDYES) parts_.bench.SaveAll();
  return answer != IDCANCEL;
}

/// Hides a tool window and closes another one.
void UserCommands::HideActive() {
  if (const auto active = parts_.bench.vbe.windows.Active()) parts_.host.CloseByUser(active);
}

void UserCommands::ShowStates() {
  const TextView* text = Text();
  ShowState(command::kUndo, text != nullptr && text->CanUndo());
  ShowState(command::kRedo, text != nullptr && text->CanRedo());
  for (const int editing : kEditing) ShowState(editing, text != nullptr);
  const auto component = parts_.bench.SelectedComponent();
  ShowState(command::kViewObject, component != nullptr && component->HasDesigner());
  ShowState(command::kViewCode, component != nullptr && component->Code() != nullptr);
}

/// Says it once: an add-in may see to it that a command is disabled all the same.
void UserCommands::ShowState(int command, bool isEnabled) {
  const auto known = enabled_.find(command);
  if (known != enabled_.end() && known->second == isEnabled) return;
  enabled_[command] = isEnabled;
  parts_.bench.vbe.commandBars.SetEnabled(command, isEnabled);
}

bool UserCommands::TakesKeyOfDialog(MSG& message) const { return find_.TakesKey(message); }

bool UserCommands::TakesKeyOfCommand(const MSG& message) {
  const int command = CommandOfKey(message);
  if (command == command::kNone) return false;
  parts_.host.RunCommand(command);
  return true;
}

}  // namespace brimwork::bench
