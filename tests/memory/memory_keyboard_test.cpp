#include "memory/memory_keyboard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "environment/run_time_error.h"
#include "memory/memory_clipboard.h"

namespace brimwork {
namespace memory_keyboard_test {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what it was asked to do.
class NotingTarget : public KeyTarget {
 public:
  void Copy(Clipboard& clipboard) override {
    clipboard.SetText("selected");
    notes.push_back("copy");
  }
  void Paste(Clipboard& clipboard) override { notes.push_back("paste " + clipboard.GetText()); }
  void SelectAll() override { notes.push_back("select all"); }
  void Delete() override { notes.push_back("delete"); }
  void Type(std::string_view text) override { notes.push_back("type " + std::string(text)); }

  std::vector<std::string> notes;
};

struct MemoryKeyboardTest : testing::Test {
  MemoryKeyboardTest() { keyboard.SetFocus(&target); }

  std::vector<std::string> Sent(std::string_view keys) {
    keyboard.SendKeys(keys, true);
    return target.notes;
  }

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  NotingTarget target;
};

TEST_F(MemoryKeyboardTest, CtrlCCopiesFromTheFocusedTarget) {
  EXPECT_THAT(Sent("^(c)"), ElementsAre("copy"));
  EXPECT_EQ(clipboard.GetText(), "selected");
}

TEST_F(MemoryKeyboardTest, CtrlVPastesTheClipboard) {
  clipboard.SetText("stamp");
  EXPECT_THAT(Sent("^(v)"), ElementsAre("paste stamp"));
}

TEST_F(MemoryKeyboardTest, CtrlAAndDelClearAWindow) {
  EXPECT_THAT(Sent("^(a){Del}"), ElementsAre("select all", "delete"));
}

TEST_F(MemoryKeyboardTest, NamesOfKeysAreReadInAnyLetterCase) {
  EXPECT_THAT(Sent("^(A){DEL}{delete}"), ElementsAre("select all", "delete", "delete"));
}

TEST_F(MemoryKeyboardTest, CtrlHoldsForOneKeyOrForAGroup) {
  EXPECT_THAT(Sent("^ac^(ac)"), ElementsAre("select all", "type c", "select all", "copy"));
}

TEST_F(MemoryKeyboardTest, PlainCharactersAreTypedTogether) {
  EXPECT_THAT(Sent("Größe 5{Del}x"), ElementsAre("type Größe 5", "delete", "type x"));
}

TEST_F(MemoryKeyboardTest, CharactersInBracesAreTypedAsTheyStand) {
  EXPECT_THAT(Sent("{+}{{}{}}{^}"), ElementsAre("type +{}^"));
}

TEST_F(MemoryKeyboardTest, KeysGoNowhereWithoutFocus) {
  clipboard.SetText("mine");
  keyboard.SetFocus(nullptr);
  EXPECT_THAT(Sent("^(c)text"), IsEmpty());
  EXPECT_EQ(clipboard.GetText(), "mine");
}

TEST_F(MemoryKeyboardTest, KeysThatAreNotUnderstoodRaiseErrorFiveAndSendNothing) {
  for (const char* keys : {"a^", "a^(c", "a^(x)", "a{Del", "a{F1}", "a{}", "a%f", "a~", "a}"}) {
    try {
      keyboard.SendKeys(keys, true);
      ADD_FAILURE() << keys << " was understood";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
      EXPECT_EQ(error.what(), "the keystrokes \"" + std::string(keys) + "\" are not understood");
    }
  }
  EXPECT_THAT(target.notes, IsEmpty());
}

}  // namespace memory_keyboard_test
}  // namespace brimwork
