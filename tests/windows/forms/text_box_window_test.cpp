// Text between the data and the system's box.
#include "windows/forms/text_box_window.h"

#include <gmock/gmock.h>

#include "environment/text.h"
#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace text_box_window_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::pair<DWORD, DWORD> SelectionOf(HWND box) {
  DWORD start = 0, end = 0;
  SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {start, end};
}

TEST(TextBoxWindow, WhatIsTypedComesIntoTheDataWithTheCaret) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("{END}ö!");
  EXPECT_EQ(sample.form.txtName.Text, "Anneö!");
  EXPECT_EQ(sample.form.txtName.SelStart(), 6);
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Change Anneö", "txtName Change Anneö!"));
  sample.Type("{BS}{HOME}{DEL}");
  EXPECT_EQ(sample.form.txtName.Text, "nneö");
}

TEST(TextBoxWindow, WhatIsSelectedComesIntoTheData) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("{END}+{LEFT}+{LEFT}");
  EXPECT_EQ(sample.form.txtName.SelText(), "ne");
  sample.Type("+{LEFT}");
  EXPECT_EQ(sample.form.txtName.SelText(), "nne");
  sample.Type("^a");
  EXPECT_EQ(sample.form.txtName.SelText(), "Anne");
}

TEST(TextBoxWindow, CharactersOfTwoUnitsCountAsOne) {
  NativeSample sample;
  sample.form.txtName.Text = "a\U0001F600b";
  sample.form.txtName.SetSelStart(1);
  sample.form.txtName.SetSelLength(1);
  EXPECT_EQ(SelectionOf(sample.WindowOf(sample.form.txtName)), std::pair(1ul, 3ul));
  SendMessageW(sample.WindowOf(sample.form.txtName), EM_REPLACESEL, TRUE,
               reinterpret_cast<LPARAM>(L"xy"));
  EXPECT_EQ(sample.form.txtName.Text, "axyb");
  EXPECT_EQ(sample.form.txtName.SelStart(), 3);
}

TEST(TextBoxWindow, AChangeByCodeIsShownAndDoesNotComeBack) {
  NativeSample sample;
  sample.form.txtName.Text = "Bert";
  sample.form.txtNotes.Text = "One\r\nThree\r\nTwo";
  sample.form.txtName.SetSelStart(2);
  EXPECT_EQ(sample.TextOf(sample.form.txtName), "Bert");
  EXPECT_EQ(sample.TextOf(sample.form.txtNotes), "One\r\nThree\r\nTwo");
  EXPECT_EQ(SelectionOf(sample.WindowOf(sample.form.txtName)), std::pair(2ul, 2ul));
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Change Bert", "txtNotes Change"));
}

TEST(TextBoxWindow, WhatAnEventMakesOfTheTextIsShown) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.txtName.OnChange = [&] {
    if (sample.form.txtName.Text != "fixed") sample.form.txtName.Text = "fixed";
  };
  sample.Type("x");
  EXPECT_EQ(sample.TextOf(sample.form.txtName), "fixed");
  EXPECT_EQ(sample.form.txtName.Text, "fixed");
}

TEST(TextBoxWindow, ALockedBoxKeepsItsText) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.txtName.Locked = true;
  sample.Type("x{DEL}");
  EXPECT_EQ(sample.TextOf(sample.form.txtName), "Anne");
  SetWindowTextW(sample.WindowOf(sample.form.txtName), L"forced");
  EXPECT_EQ(sample.TextOf(sample.form.txtName), "Anne");
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(TextBoxWindow, NoMoreIsTypedThanThereIsRoomFor) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Type("{END}1234567890");
  EXPECT_EQ(sample.form.txtName.Text, "Anne123456");
}

TEST(TextBoxWindow, ALineEndIsTypedWithEnterOrWithControlAndEnter) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.txtNotes.SetFocus();
  sample.Type("^{ENTER}");
  EXPECT_EQ(sample.form.txtNotes.Text, "\r\nOne\r\nTwo");
  sample.form.cmdOk.Enabled = false;
  sample.Type("a{ENTER}");
  EXPECT_EQ(sample.form.txtNotes.Text, "\r\na\r\nOne\r\nTwo");
  EXPECT_EQ(sample.TextOf(sample.form.txtNotes), "\r\na\r\nOne\r\nTwo");
  EXPECT_EQ(sample.form.txtNotes.SelStart(), 5);
}

TEST(TextBoxWindow, TheLinesInSightStayWhenCodeAddsSome) {
  NativeSample sample;
  std::string text;
  for (int i = 0; i < 50; ++i) text += "line " + std::to_string(i) + "\r\n";
  TextBox& box = sample.form.txtNotes;
  box.Text = text;
  const HWND window = sample.WindowOf(box);
  box.Select(CharacterCount(text), 0);
  const auto firstLine = SendMessageW(window, EM_GETFIRSTVISIBLELINE, 0, 0);
  EXPECT_GT(firstLine, 30);
  box.SetSelText("more");
  EXPECT_EQ(SendMessageW(window, EM_GETFIRSTVISIBLELINE, 0, 0), firstLine);
  EXPECT_EQ(sample.form.txtNotes.Text, text + "more");
}

TEST(TextBoxWindow, AnyTextReplacesAnyOther) {
  NativeSample sample;
  for (const char* text :
       {"", "a", "a\r\nb", "a\r\n\r\nb", "a\r\nb\r\n", "\r\n", "\r\r\n\n", "\U0001F600",
        "\U0001F601", "a\U0001F601\U0001F600b", "\U0001F600\r\n", "ab", "aab", "aaab", "b"}) {
    sample.form.txtNotes.Text = text;
    EXPECT_EQ(sample.TextOf(sample.form.txtNotes), text);
  }
}

TEST(TextBoxWindow, PastingAndUndoingComeIntoTheData) {
  NativeSample sample;
  const HWND box = sample.WindowOf(sample.form.txtNotes);
  SendMessageW(box, EM_SETSEL, 0, 3);
  SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"Ten"));
  EXPECT_EQ(sample.form.txtNotes.Text, "Ten\r\nTwo");
  SendMessageW(box, EM_UNDO, 0, 0);
  EXPECT_EQ(sample.form.txtNotes.Text, "One\r\nTwo");
}

}  // namespace text_box_window_test
}  // namespace brimwork::windows
