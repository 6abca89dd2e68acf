#include "settings/frmSetup.h"

#include "environment/resume_next.h"
#include "environment/text.h"
#include "settings/frmSetup_layout.h"
#include "settings/modBrowseForPath.h"
#include "settings/setting_defaults.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"

namespace brimwork {
namespace {

constexpr std::string_view kTrue = "True";
constexpr std::string_view kFalse = "False";
constexpr std::string_view kErrorTitle = "Error Encountered";

constexpr int kOkCancel = 1;
constexpr int kSecondButtonIsDefault = 256;
constexpr int kOkPressed = 1;

std::string ShownSetting(Environment& environment, std::string_view key) {
  const SettingKey* const entry = FindSettingKey(key);
  return GetSetting(environment, key, DefaultText(environment, *entry->setupDefault));
}

/// A box keeps its designed text where nothing is stored.
void ShowUnlessEmpty(TextBox& box, std::string_view text) {
  if (!text.empty()) box.Text = text;
}

bool HasWord(std::string_view text) { return !Trim(text).empty(); }

std::string_view TrueOrFalse(bool value) { return value ? kTrue : kFalse; }

void AppendListed(std::string& list, std::string_view item) {
  if (!list.empty()) list += ',';
  list += item;
}

/// Stores what it can, and remembers the first error for the user.
class SettingWriter {
 public:
  explicit SettingWriter(Environment& environment) : environment_(environment) {}

  void Save(std::string_view key, std::string_view value) {
    const auto error = ResumeNext([&] { SaveSetting(environment_, key, value); });
    if (error && firstError_.empty()) firstError_ = error->what();
  }

  const std::string& FirstError() const { return firstError_; }  // "" when there was none

 private:
  Environment& environment_;
  std::string firstError_;
};

}  // namespace

frmSetup::frmSetup(const Environment& environment)
    : Form(environment.formHost, SetupLayout()), environment_(environment) {
  tabOptions.OnClick = [this] { tabOptions_Click(); };
  optHeader.Handle(&OptionButton::OnClick, [this](int index) { optHeader_Click(index); });
  txtAdd.OnChange = [this] { txtAdd_Change(); };
  cmdAdd.OnClick = [this] { cmdAdd_Click(); };
  txtDelete.OnChange = [this] { txtDelete_Change(); };
  cmdDelete.OnClick = [this] { cmdDelete_Click(); };
  chkEnable.OnClick = [this] { chkEnable_Click(); };
  cmdReset.OnClick = [this] { cmdReset_Click(); };
  cmdBrowse.OnClick = [this] { cmdBrowse_Click(); };
  cmdExit.OnClick = [this] { cmdExit_Click(); };
}

void frmSetup::Form_Load() {
  const auto shown = [this](std::string_view key) { return ShownSetting(environment_, key); };
  ShowUnlessEmpty(txtHeader(0), shown(setting::kHeader));
  ShowUnlessEmpty(txtHeader(1), shown(setting::kAdaptedHeader));
  ShowUnlessEmpty(txtErrorHandling, shown(setting::kErrorHandling));
  AddKeyWords(shown(setting::kKeyWordList));
  txtSeparator.Text = shown(setting::kSeparator);
  txtQuickExportPath.Text = shown(setting::kQuickExportPath);
  const std::string autoLoad = shown(setting::kAutoLoad);
  if (autoLoad == kTrue) optAutoLoad(kAutoLoadOn).Value = true;
  if (autoLoad == kFalse) optAutoLoad(kAutoLoadOff).Value = true;
  TickCleanUpOptions(shown(setting::kCleanUpCodeOptions));
  chkSplashScreen.Value = shown(setting::kSplashScreen) == kTrue;
}

void frmSetup::Form_Unload() {
  SettingWriter writer(environment_);
  writer.Save(setting::kHeader, txtHeader(0).Text);
  writer.Save(setting::kAdaptedHeader, txtHeader(1).Text);
  writer.Save(setting::kErrorHandling, txtErrorHandling.Text);
  // An empty list leaves the stored one as it is.
  const std::string keyWords = KeyWordList();
  if (!keyWords.empty()) writer.Save(setting::kKeyWordList, keyWords);
  writer.Save(setting::kSeparator, txtSeparator.Text);
  writer.Save(setting::kQuickExportPath, txtQuickExportPath.Text);
  writer.Save(setting::kAutoLoad, TrueOrFalse(optAutoLoad(kAutoLoadOn).Value));
  writer.Save(setting::kCleanUpCodeOptions, CleanUpCodeOptions());
  writer.Save(setting::kFirstRun, kFalse);
  writer.Save(setting::kSplashScreen, TrueOrFalse(chkSplashScreen.Value));
  if (writer.FirstError().empty()) return;
  TellError("Could not store every setting: " + writer.FirstError());
}

void frmSetup::AddKeyWords(std::string_view list) {
  if (list.empty()) return;
  for (const std::string_view word : Split(list, ",")) lstKeyWord.AddItem(word);
}

std::string frmSetup::KeyWordList() const {
  std::string list;
  for (const std::string& word : lstKeyWord.Items()) {
    if (!word.empty()) AppendListed(list, word);
  }
  return list;
}

void frmSetup::TickCleanUpOptions(std::string_view options) {
  const std::string folded = FoldName(options);
  for (CheckBox& box : chkCleanUp) box.Value = Contains(folded, FoldName(box.Tag));
}

std::string frmSetup::CleanUpCodeOptions() const {
  std::string options;
  for (const CheckBox& box : chkCleanUp) {
    if (box.Value) AppendListed(options, box.Tag);
  }
  return options;
}

void frmSetup::TellError(const std::string& message) {
  ResumeNext([&] {
    environment_.dialogs.MsgBox(message, message_box::kCritical + message_box::kOkOnly,
                                kErrorTitle);
  });
}

void frmSetup::tabOptions_Click() {
  for (Frame& frame : fraTabFrames) frame.Visible = frame.Index() + 1 == tabOptions.SelectedItem;
}

void frmSetup::optHeader_Click(int index) {
  for (TextBox& box : txtHeader) box.Visible = box.Index() == index;
}

void frmSetup::txtAdd_Change() { cmdAdd.Enabled = HasWord(txtAdd.Text); }

void frmSetup::cmdAdd_Click() {
  lstKeyWord.AddItem(txtAdd.Text);
  txtAdd.SetFocus();  // for the next word; the emptied box disables the button
  txtAdd.Text = "";
}

void frmSetup::txtDelete_Change() { cmdDelete.Enabled = HasWord(txtDelete.Text); }

// The walk does not look at the word that slides into the place of a deleted one, so of two equal
// words side by side the second one stays.
void frmSetup::cmdDelete_Click() {
  const int last = lstKeyWord.ListCount() - 1;
  for (int index = 0; index <= last; ++index) {
    if (lstKeyWord.List(index) == txtDelete.Text.Get()) lstKeyWord.RemoveItem(index);
  }
  txtDelete.SetFocus();
  txtDelete.Text = "";
}

void frmSetup::chkEnable_Click() { cmdReset.Enabled = !cmdReset.Enabled; }

void frmSetup::cmdReset_Click() {
  const auto error = ResumeNext([this] {
    const int pressed = environment_.dialogs.MsgBox(
        "This will reset your current Key Word List\r\nAre you sure you want to do this",
        kOkCancel + message_box::kInformation + kSecondButtonIsDefault, "Reset List");
    if (pressed != kOkPressed) return;
    lstKeyWord.Clear();
    AddKeyWords(kBuiltInKeyWordList);
  });
  if (error) TellError("Could not reset the key word list: " + std::string(error->what()));
}

// Cancelling the browser empties the box.
void frmSetup::cmdBrowse_Click() {
  txtQuickExportPath.Text = BrowseForFolder(
      environment_, "Browse for where you would like the file created by Quick Export to be placed",
      hWnd());
}

void frmSetup::cmdExit_Click() { Unload(); }

}  // namespace brimwork
