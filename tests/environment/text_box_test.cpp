#include "environment/text_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace text_box_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(TextBox, ShowsItsDesignedText) {
  ShownSample sample;
  EXPECT_EQ(sample.form.txtName.Text, "Anne");
  EXPECT_EQ(sample.form.txtName.SelStart(), 0);
}

TEST(TextBox, TakesTypedCharactersAtTheCaretAndTellsOfEach) {
  ShownSample sample;
  sample.form.txtName.SetSelStart(4);
  sample.form.txtName.Type("tt");
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Change Annet", "txtName Change Annett"));
  EXPECT_EQ(sample.form.txtName.SelStart(), 6);
}

TEST(TextBox, ReplacesTheSelectedTextByWhatIsTyped) {
  ShownSample sample;
  sample.form.txtName.SelectAll();
  EXPECT_EQ(sample.form.txtName.SelText(), "Anne");
  sample.form.txtName.Type("Bo");
  EXPECT_EQ(sample.form.txtName.Text, "Bo");
}

TEST(TextBox, CountsCharactersAndNotBytes) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Text = "Zoë!";
  box.SetSelStart(2);
  box.SetSelLength(1);
  EXPECT_EQ(box.SelText(), "ë");
  box.Type("ö");
  EXPECT_EQ(box.Text, "Zoö!");
  EXPECT_EQ(box.SelStart(), 3);
}

TEST(TextBox, DrawsAPositionBehindTheTextBackToItsEnd) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.SetSelStart(99);
  EXPECT_EQ(box.SelStart(), 4);
  box.SetSelStart(-1);
  box.SetSelLength(99);
  EXPECT_EQ(box.SelStart(), 0);
  EXPECT_EQ(box.SelLength(), 4);
}

TEST(TextBox, PutsTheCaretAtTheStartWhenCodeSetsItsText) {
  ShownSample sample;
  sample.form.txtName.SelectAll();
  sample.form.txtName.Text = "Cleo";
  EXPECT_EQ(sample.form.txtName.SelStart(), 0);
  EXPECT_EQ(sample.form.txtName.SelLength(), 0);
}

TEST(TextBox, RaisesChangeWhenCodeChangesItsText) {
  ShownSample sample;
  sample.form.txtName.Text = "Cleo";
  sample.form.txtName.Text = "Cleo";
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Change Cleo"));
}

TEST(TextBox, TakesTextFromCodeAtTheSelection) {
  ShownSample sample;
  sample.form.txtName.SetSelStart(1);
  sample.form.txtName.SetSelLength(2);
  sample.form.txtName.SetSelText("liv");
  EXPECT_EQ(sample.form.txtName.Text, "Alive");
  EXPECT_EQ(sample.form.txtName.SelStart(), 4);
}

TEST(TextBox, MovesTheCaretBehindATextThatReplacesTheSame) {
  ShownSample sample;
  sample.form.txtName.SelectAll();
  sample.form.txtName.SetSelText("Anne");
  EXPECT_EQ(sample.form.txtName.SelStart(), 4);
  EXPECT_EQ(sample.form.txtName.SelLength(), 0);
}

TEST(TextBox, TakesNoMoreCharactersThanItHasRoomFor) {
  ShownSample sample;
  sample.form.txtName.SelectAll();
  sample.form.txtName.Type("123456789012");
  EXPECT_EQ(sample.form.txtName.Text, "1234567890");
}

TEST(TextBox, StartsANewLineOnlyWhereItHasSeveral) {
  ShownSample sample;
  sample.form.txtNotes.Type("Zero\n");
  sample.form.txtName.Type("\n");
  EXPECT_EQ(sample.form.txtNotes.Text, "Zero\r\nOne\r\nTwo");
  EXPECT_EQ(sample.form.txtName.Text, "Anne");
}

TEST(TextBox, ErasesTheCharacterBeforeTheCaretOrTheSelection) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Erase();
  EXPECT_EQ(box.Text, "Anne");
  box.SetSelStart(4);
  box.Erase();
  EXPECT_EQ(box.Text, "Ann");
  box.SelectAll();
  box.Erase();
  EXPECT_EQ(box.Text, "");
}

TEST(TextBox, ErasesALineEndAsAWhole) {
  ShownSample sample;
  sample.form.txtNotes.SetSelStart(5);
  sample.form.txtNotes.Erase();
  EXPECT_EQ(sample.form.txtNotes.Text, "OneTwo");
}

TEST(TextBox, KeepsItsTextWhileItIsLocked) {
  ShownSample sample;
  sample.form.txtNotes.Locked = true;
  sample.form.txtNotes.Type("x");
  sample.form.txtNotes.SelectAll();
  sample.form.txtNotes.Erase();
  EXPECT_EQ(sample.form.txtNotes.Text, "One\r\nTwo");
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtNotes);
}

TEST(TextBox, KeepsItsTextWhileItIsDisabled) {
  ShownSample sample;
  sample.form.txtNotes.Enabled = false;
  sample.form.txtNotes.Type("x");
  sample.form.txtNotes.Erase();
  EXPECT_THAT(sample.form.events, Not(Contains("txtNotes Change")));
}

TEST(TextBox, TakesOverWhatWasEditedWithItsSelection) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Edit("Zo\u00eb", 1, 2);
  EXPECT_EQ(box.Text, "Zo\u00eb");
  EXPECT_EQ(box.SelText(), "o\u00eb");
  EXPECT_THAT(sample.form.events, Contains("txtName Change Zo\u00eb"));
  EXPECT_EQ(sample.form.ActiveControl(), &box);
}

TEST(TextBox, TellsOfAnEditedTextAndItsSelectionOnceEach) {
  ShownSample sample;
  sample.form.txtName.SetFocus();
  std::vector<PropertyId> changes;
  sample.host.onChange = [&](Form&, Control*, PropertyId id) { changes.push_back(id); };
  sample.form.txtName.Edit("Bert", 2, 0);
  EXPECT_EQ(changes, (std::vector{PropertyId::kText, PropertyId::kSelection}));
}

TEST(TextBox, LeavesTheCaretAtTheStartWhenCodeSetsItsTextAfterAnEdit) {
  ShownSample sample;
  sample.form.txtName.Edit("Bert", 4, 0);
  sample.form.txtName.Text = "Carl";
  EXPECT_EQ(sample.form.txtName.SelStart(), 0);
}

TEST(TextBox, RefusesAnEditThatItDoesNotAllow) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Edit("12345678901", 0, 0);
  EXPECT_EQ(box.Text, "Anne");
  box.Locked = true;
  box.Edit("Bert", 0, 0);
  EXPECT_EQ(box.Text, "Anne");
  box.Locked = false;
  box.Enabled = false;
  box.Edit("Bert", 0, 0);
  EXPECT_EQ(box.Text, "Anne");
}

TEST(TextBox, LetsAnEditShortenATextThatCodeMadeTooLong) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Text = "123456789012";
  box.Edit("12345678901", 0, 0);
  EXPECT_EQ(box.Text, "12345678901");
}

TEST(TextBox, SelectsFromACharacterOnAsFarAsItsTextGoes) {
  ShownSample sample;
  TextBox& box = sample.form.txtName;
  box.Select(2, 9);
  EXPECT_EQ(box.SelText(), "ne");
  box.Select(9, 1);
  EXPECT_EQ(box.SelStart(), 4);
  EXPECT_EQ(box.SelLength(), 0);
}

}  // namespace text_box_test
}  // namespace brimwork
