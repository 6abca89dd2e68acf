#include "cli/setup_questions.h"

#include <optional>
#include <vector>

#include "cli/keyword_questions.h"
#include "cli/printable.h"
#include "cli/typing.h"

namespace brimwork {
namespace {

constexpr int kErrorHandlingTab = 1;
constexpr int kHeadersTab = 2;
constexpr int kKeyWordsTab = 3;
constexpr int kOtherTab = 4;

}  // namespace

void SetupQuestions::AskAll() {
  prompts_.Show(form_.Caption.Get() +
                "\nEnter keeps what is shown. Until the last answer nothing is stored.\n");
  OpenTab(kErrorHandlingTab);
  AskErrorHandling();
  OpenTab(kHeadersTab);
  AskHeaders();
  OpenTab(kKeyWordsTab);
  KeywordQuestions(form_, prompts_).AskAll();
  OpenTab(kOtherTab);
  AskOtherSettings();
}

void SetupQuestions::OpenTab(int tab) {
  form_.tabOptions.Choose(tab);
  const auto tabs = form_.tabOptions.Tabs();
  const std::string heading = std::to_string(tab) + " of " + std::to_string(tabs.size()) + ": " +
                              ShownCaption(tabs[static_cast<std::size_t>(tab - 1)].caption);
  prompts_.Show('\n' + heading + '\n' + std::string(heading.size(), '-') + '\n');
}

void SetupQuestions::AskErrorHandling() {
  prompts_.Show(WordWrapped(form_.lblPlaceholder.Caption, ""));
  AskLines(ShownCaption(form_.lblErrorHandling.Caption), form_.txtErrorHandling);
}

void SetupQuestions::AskHeaders() {
  for (OptionButton& header : form_.optHeader) {
    header.Click();
    AskLines(ShownCaption(header.Caption) + ':', form_.txtHeader(header.Index()));
  }
}

void SetupQuestions::AskOtherSettings() {
  AskText(form_.lblSeparator, form_.txtSeparator);
  AskText(form_.lblQuickExportPath, form_.txtQuickExportPath);
  AskAutoLoad();
  AskCheckBox(form_.chkSplashScreen);
  prompts_.Show(ShownCaption(form_.fraCleanUp.Caption) + ":\n");
  for (CheckBox& step : form_.chkCleanUp) AskCheckBox(step);
}

void SetupQuestions::AskText(const Label& label, TextBox& box) {
  prompts_.Show(ShownCaption(label.Caption) + '\n');
  if (const auto text = prompts_.AskText(box.Text)) Retype(box, *text);
}

void SetupQuestions::AskLines(std::string_view label, TextBox& box) {
  prompts_.Show(std::string(label) + '\n');
  if (const auto text = prompts_.AskLines(box.Text)) Retype(box, *text);
}

void SetupQuestions::AskCheckBox(CheckBox& box) {
  const bool isWanted = prompts_.AskYesOrNo("  " + ShownCaption(box.Caption), box.Value);
  if (isWanted != box.Value) box.Click();
}

void SetupQuestions::AskAutoLoad() {
  prompts_.Show(ShownCaption(form_.fraAutoLoad.Caption) + ":\n");
  std::vector<std::string> choices;
  int present = 0;
  for (const OptionButton& option : form_.optAutoLoad) {
    choices.push_back(ShownCaption(option.Caption));
    if (option.Value) present = static_cast<int>(choices.size());
  }
  form_.optAutoLoad(prompts_.AskChoice(choices, present) - 1).Click();
}

}  // namespace brimwork
