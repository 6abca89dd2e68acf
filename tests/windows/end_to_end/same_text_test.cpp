// The commands that rewrite code make the same of generated modules through the library, with the
// bench's object model around it, as in plain data.
#include <windows.h>

#include <gtest/gtest.h>

#include "core/modButtonClicked.h"
#include "memory/memory_environment.h"
#include "support/commanded_module.h"
#include "support/windows/registered_library.h"
#include "windows/desktop/system_clock.h"
#include "windows/end_to_end/loaded_add_in.h"

namespace brimwork {
namespace same_text_test {

constexpr unsigned kModules = 200;

constexpr const char* kCommands[] = {
    "Comment Procedure", "Comment All Procedures", "Insert Error Handling",
    "Code Clean Up",     "Indent All Procedures",  "Standard Header",
    "Adapted Header",    "Add Line Numbers",       "Remove Line Numbers"};

/// Without the last line's end: who inserts text need not end it.
std::string TextOf(unsigned seed) {
  std::string text = GenerateModule(NumberedOptions(seed)).text;
  while (text.ends_with("\r\n")) text.resize(text.size() - 2);
  return text;
}

std::string InPlainData(const CatalogueEntry& entry, const std::string& text, int caret) {
  MemoryEnvironment memory;
  const auto pane = memory.Open("Parts", ModuleText::FromText(text));
  pane->Code()->GiveLinesBelowToTheLastProcedure();
  pane->SetSelection({caret, 1, caret, 1});
  windows::SystemClock clock;
  AddIn addIn(memory.Parts({.clock = &clock}));
  ButtonClicked(addIn, entry.caption, entry.wholeModule);
  return pane->Module()->Lines(1, pane->Module()->CountOfLines());
}

struct SameText : bench::AutomationTest {
  SameText() {
    ForgetAddInSettings();
    SetAddInSetting("SplashScreen", "False");
    surface.faceOnClipboard = "faces/indent";  // so that pasting one works
    OpenModule("Sub Main()\r\nEnd Sub\r\n");
  }
  ~SameText() override { ForgetAddInSettings(); }
};

TEST_F(SameText, ComesOfEachCommandForGeneratedModules) {
  LoadedAddIn addIn;
  ASSERT_EQ(addIn.Connect(session->Vbe()), S_OK);
  for (const char* caption : kCommands) {
    const CatalogueEntry& entry = MenuEntry(caption);
    unsigned changed = 0;
    for (unsigned seed = 1; seed <= kModules; ++seed) {
      const std::string text = TextOf(seed);
      const int caret = static_cast<int>(SplitLines(text).size()) / 2;
      ShowText(Pane(), text, caret);
      AddInsEntry(Vbe(), entry).Call(L"Execute");
      const std::string made = TextIn(Pane());
      ASSERT_EQ(made, InPlainData(entry, text, caret)) << caption << ", seed " << seed;
      if (made != text) ++changed;
    }
    EXPECT_GT(changed, kModules / 2) << caption;
  }
  EXPECT_EQ(addIn.Disconnect(), S_OK);
  EXPECT_TRUE(session->Held().empty());
}

}  // namespace same_text_test
}  // namespace brimwork
