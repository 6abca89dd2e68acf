// What a spell check may change: the insides of literals and the text of comments, nothing else.
#include <gtest/gtest.h>

#include "cli/allowance_for.h"
#include "support/opened_module.h"
#include "support/spelling_corrector.h"
#include "support/vouched_texts.h"

namespace brimwork {
namespace vouch_spelling_test {

Allowance Spelling() {
  Allowance allowance;
  allowance.spellingMayChange = true;
  return allowance;
}

/// "" when the one line may become the other.
std::string Respelled(const std::string& before, const std::string& after) {
  return Where({"Sub A()", before, "End Sub"}, {"Sub A()", after, "End Sub"}, Spelling());
}

constexpr const char* kAtTheLine = "2/2";

TEST(VouchSpelling, TheInsidesOfLiteralsMayChange) {
  EXPECT_EQ(Respelled("MsgBox \"teh\"", "MsgBox \"the\""), "");
  EXPECT_EQ(Respelled("MsgBox \"teh\" & x & \"wrod\"", "MsgBox \"the\" & x & \"\""), "");
  EXPECT_EQ(Respelled("MsgBox \"dont\"", "MsgBox \"don't\""), "");
  EXPECT_EQ(Respelled("MsgBox \"a\"", "MsgBox \"\"\"a\"\"\""), "");
}

TEST(VouchSpelling, TheTextOfCommentsMayChange) {
  EXPECT_EQ(Respelled("x = 1 ' teh", "x = 1 ' the"), "");
  EXPECT_EQ(Respelled("' dont", "' don't \"x"), "");
  EXPECT_EQ(Respelled("Rem it's teh", "Rem it's the"), "");
  EXPECT_EQ(Respelled("x = 1: Rem it's teh", "x = 1: Rem it's the"), "");
}

TEST(VouchSpelling, ACommentThatContinuesAnotherMayChange) {
  EXPECT_EQ(Where({"' it _", "is \"teh\" one", "x = 1"}, {"' it _", "is \"the\" one", "x = 1"},
                  Spelling()),
            "");
}

TEST(VouchSpelling, NothingMayChangeWithoutLeave) {
  EXPECT_EQ(Where({"' teh"}, {"' the"}), "1/1");
  EXPECT_EQ(Where({"s = \"teh\""}, {"s = \"the\""}), "1/1");
}

TEST(VouchSpelling, CodeStaysAsItIs) {
  EXPECT_EQ(Respelled("teh = \"x\"", "the = \"x\""), kAtTheLine);
  EXPECT_EQ(Respelled("x = 1 ' teh", "x = 2 ' the"), kAtTheLine);
  EXPECT_EQ(Respelled("d = #1/2/2020#", "d = #1/3/2020#"), kAtTheLine);
}

TEST(VouchSpelling, ALiteralMustStayOneLiteral) {
  EXPECT_EQ(Respelled("MsgBox \"teh\"", "MsgBox \"the\" & \"x\""), kAtTheLine);
  EXPECT_EQ(Respelled("MsgBox \"teh\"", "MsgBox \"the"), kAtTheLine);
  EXPECT_EQ(Respelled("MsgBox \"teh\" & x", "MsgBox \"t\"h\" & x"), kAtTheLine);
  EXPECT_EQ(Respelled("MsgBox \"teh", "MsgBox \"the"), kAtTheLine);
  EXPECT_EQ(Respelled("MsgBox \"teh\"", "MsgBox the"), kAtTheLine);
}

TEST(VouchSpelling, ACommentMustStayOneComment) {
  EXPECT_EQ(Respelled("x = 1 ' teh", "x = 1"), kAtTheLine);
  EXPECT_EQ(Respelled("x = 1", "x = 1 ' new"), kAtTheLine);
  EXPECT_EQ(Respelled("x = 1: Rem teh", "x = 1: ' teh"), kAtTheLine);
}

TEST(VouchSpelling, ACommentMustNotSwallowTheNextLine) {
  EXPECT_EQ(Respelled("' teh", "' teh _"), kAtTheLine);
  EXPECT_EQ(Where({"' teh _", "end"}, {"' teh", "end"}, Spelling()), "1/1");
}

TEST(VouchSpelling, LinesStayInNumber) {
  EXPECT_EQ(Where({"' teh"}, {"' the", "' end"}, Spelling()), "2/2");
  EXPECT_EQ(Where({"' one", "' two"}, {"' one"}, Spelling()), "2/2");
}

TEST(VouchSpelling, SeparatorsMayComeAboveARespelledComment) {
  Allowance both = Commenting();
  both.spellingMayChange = true;
  EXPECT_EQ(Where({"' teh procedure", "Sub A()", "End Sub"},
                  {kSeparator, "' the procedure", "Sub A()", "End Sub 'A()", kSeparator}, both),
            "");
  EXPECT_EQ(Where({"' teh procedure", "Sub A()", "End Sub"},
                  {kSeparator, "Sub A()", "End Sub", kSeparator}, both),
            "1/2");
}

TEST(VouchSpelling, AClosingLineMayGetItsLabelAndAnotherSpelling) {
  Allowance both = Commenting();
  both.spellingMayChange = true;
  EXPECT_EQ(Where({"MsgBox \"teh\": End Sub"}, {"MsgBox \"the\": End Sub 'A()"}, both), "");
  EXPECT_EQ(Where({"MsgBox \"teh\": End Sub"}, {"MsgBox \"the\": End Sub 'A()"}, Commenting()),
            "1/1");
}

TEST(VouchSpelling, NumbersMayComeAndGoInARespelledLine) {
  Allowance both = Numbering();
  both.spellingMayChange = true;
  EXPECT_EQ(Where({"x = 1", "10: MsgBox \"teh\""}, {"x = 1", "2:  MsgBox \"the\""}, both), "");
}

TEST(VouchSpelling, IsGivenLeaveByTheSpellCheck) {
  OpenedModule opened({"' teh"});
  Environment& environment = opened.addIn.environment;
  EXPECT_TRUE(AllowanceFor("Spell Check - Quotes and Comments", environment).spellingMayChange);
  EXPECT_FALSE(AllowanceFor("Code Clean Up", environment).spellingMayChange);
  EXPECT_FALSE(AllowanceFor("Indent All Procedures", environment).spellingMayChange);
  opened.Set("CleanUpCodeOptions", "Indent,SpellCheck");
  EXPECT_TRUE(AllowanceFor("Code Clean Up", environment).spellingMayChange);
}

TEST(VouchSpelling, HoldsForACleanUpWithEveryStep) {
  const TextLines before{"Option Explicit",
                         "' teh module",
                         "",
                         "' teh first",
                         "Sub A()",
                         "10: MsgBox \"Teh end\" ' teh",
                         "End Sub ' teh first",
                         "",
                         "Function B()",
                         "' teh",
                         "B = \"teh\"",
                         "End Function"};
  OpenedModule opened(before);
  SpellingCorrector user{{{"teh", "the"}, {"Teh", "The"}}, {}};
  opened.environment.wordProcessors.dialog = user.Dialog();
  opened.environment.vbe.SetProject(std::make_shared<MemoryProject>([] { return "P"; }));
  opened.Set("CleanUpCodeOptions", "SpellCheck,Header,Error,Indent,Comment,LineNumber");
  opened.ClickAll("Code Clean Up");
  const TextLines after = opened.Lines();
  EXPECT_GT(after.size(), before.size() + 10);
  EXPECT_EQ(Where(before, after, AllowanceFor("Code Clean Up", opened.addIn.environment)), "");
}

}  // namespace vouch_spelling_test
}  // namespace brimwork
