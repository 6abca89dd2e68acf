#include "cli/setup_questions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/setup_dialogs.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "support/typed_answers.h"

namespace brimwork {
namespace setup_questions_test {

using testing::HasSubstr;

/// The number of answers when Enter keeps everything.
constexpr std::size_t kQuestions = 13;

struct Setup : testing::Test {
  void Store(std::string_view key, std::string_view value) { SaveSetting(parts, key, value); }
  std::string Stored(std::string_view key) { return GetSetting(parts, key, "(not stored)"); }

  void Answer(std::deque<std::string> answers) {
    user.lines = std::move(answers);
    form.Show();
    SetupQuestions(form, prompts).AskAll();
    EXPECT_TRUE(user.lines.empty()) << user.lines.front() << " was not asked for";
    form.cmdExit.Click();
  }

  /// Shows the user's Enter keys as well, as a terminal does.
  TerminalPrompts Echoing() {
    UserTerminal terminal = user.Terminal();
    terminal.readLine = [this, readLine = terminal.readLine] {
      user.shown += '\n';
      return readLine();
    };
    return TerminalPrompts(terminal);
  }

  TypedAnswers user;
  TerminalPrompts prompts{user.Terminal()};
  SetupDialogs dialogs{prompts};
  MemoryEnvironment memory;
  Environment parts = memory.Parts({.dialogs = &dialogs});
  frmSetup form{parts};
};

/// What is stored when the form is closed at once.
std::vector<std::string> StoredUnchanged(const std::vector<std::string_view>& keys,
                                         const std::vector<std::string>& values) {
  MemoryEnvironment memory;
  Environment parts = memory.Parts();
  for (std::size_t i = 0; i < values.size(); ++i) SaveSetting(parts, keys[i], values[i]);
  frmSetup form(parts);
  form.Show();
  form.Close();
  std::vector<std::string> stored;
  for (const SettingKey& key : SettingKeys()) {
    stored.push_back(GetSetting(parts, key.key, "(not stored)"));
  }
  return stored;
}

TEST_F(Setup, KeepsEverySettingOnEnter) {
  Answer(std::deque<std::string>(kQuestions, ""));
  std::vector<std::string> stored;
  for (const SettingKey& key : SettingKeys()) stored.push_back(Stored(key.key));
  EXPECT_EQ(stored, StoredUnchanged({}, {}));
  EXPECT_EQ(Stored(setting::kFirstRun), "False");
}

TEST_F(Setup, KeepsWhatIsStoredOnEnter) {
  const std::vector<std::string_view> keys{setting::kHeader, setting::kKeyWordList,
                                           setting::kSeparator, setting::kAutoLoad,
                                           setting::kCleanUpCodeOptions};
  const std::vector<std::string> values{"'a\r\n'b", "Dim,Dim", "", "True", "indent"};
  for (std::size_t i = 0; i < keys.size(); ++i) Store(keys[i], values[i]);
  Answer(std::deque<std::string>(kQuestions, ""));
  std::vector<std::string> stored;
  for (const SettingKey& key : SettingKeys()) stored.push_back(Stored(key.key));
  EXPECT_EQ(stored, StoredUnchanged(keys, values));
}

TEST_F(Setup, StoresEveryAnswer) {
  Answer({"Stop", "Resume", ".", "'One", "'Two", ".", "'Adapted", ".", "a Foo", "", "'--",
          "E:\\Out", "1", "n", "n", "y", "", "n", "N"});
  EXPECT_EQ(Stored(setting::kErrorHandling), "Stop\r\nResume");
  EXPECT_EQ(Stored(setting::kHeader), "'One\r\n'Two");
  EXPECT_EQ(Stored(setting::kAdaptedHeader), "'Adapted");
  EXPECT_THAT(Stored(setting::kKeyWordList), testing::EndsWith(",Write,Foo"));
  EXPECT_EQ(Stored(setting::kSeparator), "'--");
  EXPECT_EQ(Stored(setting::kQuickExportPath), "E:\\Out");
  EXPECT_EQ(Stored(setting::kAutoLoad), "True");
  EXPECT_EQ(Stored(setting::kSplashScreen), "False");
  EXPECT_EQ(Stored(setting::kCleanUpCodeOptions), "Error,Indent");
}

TEST_F(Setup, StoresEmptyTexts) {
  Store(setting::kErrorHandling, "Stop");
  Answer({".", ".", ".", "", ".", ".", "", "", "n", "n", "n", "n", "n"});
  for (const auto key :
       {setting::kErrorHandling, setting::kHeader, setting::kAdaptedHeader, setting::kSeparator,
        setting::kQuickExportPath, setting::kCleanUpCodeOptions}) {
    EXPECT_EQ(Stored(key), "") << key;
  }
}

TEST_F(Setup, TicksAndUnticks) {
  Store(setting::kCleanUpCodeOptions, "Header");
  Store(setting::kSplashScreen, "False");
  Store(setting::kAutoLoad, "True");
  Answer({"", "", "", "", "", "", "2", "y", "n", "y", "y", "n", ""});
  EXPECT_EQ(Stored(setting::kCleanUpCodeOptions), "Error,Indent");
  EXPECT_EQ(Stored(setting::kSplashScreen), "True");
  EXPECT_EQ(Stored(setting::kAutoLoad), "False");
}

TEST_F(Setup, ShowsEachTabAndWhatIsStored) {
  Store(setting::kSeparator, "'my line");
  Store(setting::kErrorHandling, "Stop\r\nResume");
  Answer(std::deque<std::string>(kQuestions, ""));
  for (const char* text :
       {"Brimwork Setup\n", "\n1 of 4: Error Handling\n----------------------\n",
        "Lines put behind the label ErrorTrap:\n  | Stop\n  | Resume\n", "\n2 of 4: Headers\n",
        "Standard header:\n  | '=====", "Adapted header:\n  | '=====", "\n3 of 4: Keywords\n",
        "\n4 of 4: Other\n", "Separator line in comments:\n  | 'my line\n",
        "Folder for quick export:\n", "Open the last project on start:\n  1 On\n  2 Off\n",
        "  Show the splash screen (y/n, Enter is y): ",
        "Clean up code:\n  Insert header (y/n, Enter is y): "}) {
    EXPECT_THAT(user.shown, HasSubstr(text));
  }
}

TEST_F(Setup, FitsInto80Columns) {
  user.lines = std::deque<std::string>(kQuestions, "");
  form.Show();
  const TerminalPrompts echoing = Echoing();
  SetupQuestions(form, echoing).AskAll();
  for (const std::string_view line : SplitLines(user.shown)) {
    EXPECT_LE(CharacterCount(line), 80) << line;
  }
}

TEST_F(Setup, StoresNothingWhenTheAnswersEndWhereverThatIs) {
  for (std::size_t answers = 0; answers < kQuestions; ++answers) {
    user.lines = std::deque<std::string>(answers, "");
    frmSetup broken(parts);
    broken.Show();
    EXPECT_THROW(SetupQuestions(broken, prompts).AskAll(), AnswersEnded) << answers;
  }
  for (const SettingKey& key : SettingKeys()) EXPECT_EQ(Stored(key.key), "(not stored)");
}

TEST_F(Setup, KeepsWhatTheUserIsOnlyToldForTheEnd) {
  EXPECT_EQ(dialogs.MsgBox("It failed", 16, "Error Encountered"), 1);
  EXPECT_THAT(dialogs.Messages(),
              testing::ElementsAre(ShownMessage{"It failed", 16, "Error Encountered"}));
  EXPECT_EQ(user.shown, "");
}

}  // namespace setup_questions_test
}  // namespace brimwork
