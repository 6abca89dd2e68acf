#include "memory/source_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "memory/source_error.h"
#include "support/known_encoding.h"
#include "support/source_files.h"

namespace brimwork {
namespace source_file_test {

/// The file after an edit of its module.
template <typename Edit>
std::string Edited(std::string bytes, Edit edit, const std::string& encoding = kWindows) {
  SourceFile file = Parsed(std::move(bytes), encoding);
  ModuleText text = file.TakeText();
  edit(text);
  return Composed(file, text);
}

std::string ErrorOf(std::string bytes, const std::string& encoding = kWindows) {
  try {
    Parsed(std::move(bytes), encoding);
  } catch (const SourceError& error) {
    return error.what();
  }
  return "no error";
}

const std::string kFormModule =
    "Option Explicit\r\nPrivate WithEvents mTimer As Timer\r\n\r\n"
    "Public Property Get Size() As Long\r\n    Size = 1\r\nEnd Property";

TEST(SourceFile, ShowsTheLinesThatTheEnvironmentShows) {
  SourceFile file = Parsed(kForm);
  EXPECT_EQ(file.TakeText().Joined(), kFormModule);
  EXPECT_EQ(file.ModuleName(), "frmMain");
  EXPECT_EQ(file.Path(), "dir/modMain.bas");
  EXPECT_EQ(file.Encoding(), "WINDOWS-1252");
}

TEST(SourceFile, TakesTheModulesNameFromTheFileWhereNoAttributeGivesOne) {
  EXPECT_EQ(Parsed("Sub A()\r\nEnd Sub\r\n").ModuleName(), "modMain");
  EXPECT_EQ(SourceFile::Parse("", "<stdin>", kWindows).ModuleName(), "<stdin>");
}

TEST(SourceFile, ReadsUtf8WithAByteOrderMarkWhateverTheEncodingGiven) {
  SourceFile file = Parsed(
      "\xEF\xBB\xBFGr\xC3\xB6\xC3\x9F"
      "e\n",
      "CP932");
  EXPECT_EQ(file.TakeText().Line(1), "Größe");
  EXPECT_EQ(file.Encoding(), "UTF-8");
}

TEST(SourceFile, KeepsMixedLineEndsAndGivesNewLinesTheCommonerOne) {
  EXPECT_EQ(Edited("a\nb\r\nc\n", [](ModuleText& text) { text.Insert(2, "n"); }), "a\nn\nb\r\nc\n");
  EXPECT_EQ(Edited("a\r\nb\n", [](ModuleText& text) { text.Insert(2, "n\r\nm"); }),
            "a\r\nn\r\nm\r\nb\n");
  EXPECT_EQ(Edited("a", [](ModuleText& text) { text.Insert(1, "n"); }), "n\r\na");
}

TEST(SourceFile, KeepsAMissingLastLineEnd) {
  EXPECT_EQ(Edited("a\nb", [](ModuleText& text) { text.Insert(3, "c"); }), "a\nb\nc");
  EXPECT_EQ(Edited("a\nb", [](ModuleText& text) { text.Delete(2, 1); }), "a");
  EXPECT_EQ(Edited("a\nb", [](ModuleText& text) { text.Replace(2, "c\r\nd"); }), "a\nc\nd");
}

TEST(SourceFile, KeepsAnExistingLastLineEnd) {
  EXPECT_EQ(Edited("a\nb\n", [](ModuleText& text) { text.Insert(3, "c"); }), "a\nb\nc\n");
  EXPECT_EQ(Edited("a\nb\n", [](ModuleText& text) { text.Delete(2, 1); }), "a\n");
  EXPECT_EQ(Edited("a\nb\n", [](ModuleText& text) { text.Delete(1, 2); }), "");
}

TEST(SourceFile, EndsTheLastLineOfAFileThatWasEmpty) {
  EXPECT_EQ(Edited("", [](ModuleText& text) { text.Insert(1, "a\r\nb"); }), "a\r\nb\r\n");
  EXPECT_EQ(Edited("\xEF\xBB\xBF", [](ModuleText& text) { text.Insert(1, "a"); }),
            "\xEF\xBB\xBF"
            "a\r\n");
}

TEST(SourceFile, PutsNewLinesBehindAPreambleThatWasAlone) {
  const auto insert = [](ModuleText& text) { text.Insert(1, "x"); };
  EXPECT_EQ(Edited("Attribute VB_Name = \"a\"\n", insert), "Attribute VB_Name = \"a\"\nx\n");
  EXPECT_EQ(Edited("Attribute VB_Name = \"a\"", insert), "Attribute VB_Name = \"a\"\r\nx");
}

TEST(SourceFile, KeepsThePreambleWhenAllLinesGo) {
  EXPECT_EQ(
      Edited("Attribute VB_Name = \"a\"\r\nx\r\ny", [](ModuleText& text) { text.Delete(1, 2); }),
      "Attribute VB_Name = \"a\"\r\n");
}

TEST(SourceFile, PutsHiddenLinesOfADeletedLineBehindTheLineAboveIt) {
  const std::string bytes = "a\r\nb\r\nAttribute b.VB_UserMemId = 0\r\nc\r\n";
  EXPECT_EQ(Edited(bytes, [](ModuleText& text) { text.Delete(2, 1); }),
            "a\r\nAttribute b.VB_UserMemId = 0\r\nc\r\n");
  EXPECT_EQ(Edited(bytes, [](ModuleText& text) { text.Delete(1, 3); }),
            "Attribute b.VB_UserMemId = 0\r\n");
  EXPECT_EQ(
      Edited("Attribute VB_Name = \"a\"\n" + bytes, [](ModuleText& text) { text.Delete(1, 2); }),
      "Attribute VB_Name = \"a\"\nAttribute b.VB_UserMemId = 0\r\nc\r\n");
}

TEST(SourceFile, PutsHiddenLinesBehindTheLastOfTheLinesThatALineBecomes) {
  EXPECT_EQ(Edited("a\nAttribute a.VB_UserMemId = 0\nb\n",
                   [](ModuleText& text) { text.Replace(1, "x\r\ny\r\nz"); }),
            "x\ny\nz\nAttribute a.VB_UserMemId = 0\nb\n");
}

TEST(SourceFile, EndsAHiddenLastLineOnlyWhenALineFollowsIt) {
  const std::string bytes = "a\nAttribute a.VB_UserMemId = 0";
  EXPECT_EQ(Edited(bytes, [](ModuleText& text) { text.Replace(1, "b"); }),
            "b\nAttribute a.VB_UserMemId = 0");
  EXPECT_EQ(Edited(bytes, [](ModuleText& text) { text.Insert(2, "b"); }),
            "a\nAttribute a.VB_UserMemId = 0\nb");
}

TEST(SourceFile, KeepsTheDefaultMemberOfAClass) {
  const std::string bytes =
      "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\n"
      "Attribute VB_Name = \"clsItems\"\r\nAttribute VB_Exposed = False\r\n"
      "Public Function Item(ByVal Index As Long) As Variant\r\n"
      "Attribute Item.VB_UserMemId = 0\r\n"
      "Item = mcolItems(Index)\r\nEnd Function\r\n";
  std::string expected = bytes;
  expected.insert(expected.find("Item = mcol"), "    ");
  EXPECT_EQ(Edited(bytes, [](ModuleText& text) { text.Replace(2, "    Item = mcolItems(Index)"); }),
            expected);
}

TEST(SourceFile, WritesNewTextInTheFilesEncoding) {
  EXPECT_EQ(Edited("a\r\n", [](ModuleText& text) { text.Insert(2, "' größer €"); }),
            "a\r\n' gr\xF6\xDF"
            "er \x80\r\n");
  EXPECT_EQ(
      Edited(
          "\xFF\xFE" + Wide("a\r\n"), [](ModuleText& text) { text.Replace(1, "b"); }, "UTF-16"),
      "\xFF\xFE" + Wide("b\r\n"));
}

std::string ComposeError(const std::string& bytes, int line, const std::string& newText) {
  SourceFile file = Parsed(bytes);
  ModuleText text = file.TakeText();
  text.Insert(line, newText);
  try {
    Composed(file, text);
  } catch (const SourceError& error) {
    return error.what();
  }
  return "no error";
}

TEST(SourceFile, TellsLineAndColumnOfNewTextThatTheEncodingHasNot) {
  const std::string problem =
      ": the character \"→\" (U+2192) does not exist in WINDOWS-1252; choose another text, or an "
      "--encoding that has the character";
  EXPECT_EQ(ComposeError("a\r\nb\r\n", 2, "' größer →"), "dir/modMain.bas:2:10" + problem);
  EXPECT_EQ(ComposeError(kForm, 3, "→"), "dir/modMain.bas:20:1" + problem);
  std::string large;
  for (int i = 0; i < 20000; ++i) large += "    x = " + std::to_string(i) + "\r\n";
  EXPECT_EQ(ComposeError(large, 15001, "ab→"), "dir/modMain.bas:15001:3" + problem);
  EXPECT_EQ(ComposeError(large, 20001, std::string(100000, 'x') + "→"),
            "dir/modMain.bas:20001:100001" + problem);
}

TEST(SourceFile, TellsLineAndColumnOfBytesThatAreNoText) {
  EXPECT_EQ(ErrorOf("a\r\n\xE4 \x81\r\n"),
            "dir/modMain.bas:2:3: the byte 0x81 is no text in WINDOWS-1252; give --encoding with "
            "the file's own");
  EXPECT_EQ(ErrorOf("\xEF\xBB\xBF"
                    "ab\xFF"),
            "dir/modMain.bas:1:3: the byte 0xFF is no text in UTF-8; give --encoding with the "
            "file's own");
  EXPECT_EQ(ErrorOf(Wide("a\nbc") + "d", "UTF-16"),
            "dir/modMain.bas:2:3: the byte 0x64 is no text in UTF-16LE; give --encoding with the "
            "file's own");
}

TEST(SourceFile, TellsLineAndColumnOfBytesThatWouldNotComeBack) {
  if (!IsKnownEncoding("ISO-2022-JP")) GTEST_SKIP() << "this system does not know ISO-2022-JP";
  EXPECT_EQ(ErrorOf("a\nb\x1B(Bc", "ISO-2022-JP"),
            "dir/modMain.bas:2:2: the text would not come back as the same bytes in ISO-2022-JP; "
            "give --encoding with the file's own");
}

TEST(SourceFile, RefusesBinaryFiles) {
  const std::string problem =
      ": this is a binary file (a zero byte stands here); if it is UTF-16 text, give --encoding "
      "UTF-16";
  EXPECT_EQ(ErrorOf(std::string("a\nbc\0\x81", 6)), "dir/modMain.bas:2:3" + problem);
  EXPECT_EQ(ErrorOf(Wide("Sub")), "dir/modMain.bas:1:2" + problem);
  EXPECT_EQ(ErrorOf(Wide(std::string_view("a\n\0b", 4)), "UTF-16"),
            "dir/modMain.bas:2:1" + problem);
  EXPECT_EQ(ErrorOf(std::string("\xEF\xBB\xBF"
                                "a\0",
                                5)),
            "dir/modMain.bas:1:2" + problem);
}

TEST(SourceFile, NamesTheEncodingThatAWideByteOrderMarkAsksFor) {
  EXPECT_EQ(ErrorOf("\xFF\xFE" + Wide("a")),
            "dir/modMain.bas:1:1: the file starts with a UTF-16 byte-order mark; give --encoding "
            "UTF-16");
  EXPECT_EQ(ErrorOf("\xFE\xFF" + BigEndian("a"), "UTF-8"),
            "dir/modMain.bas:1:1: the file starts with a UTF-16 byte-order mark; give --encoding "
            "UTF-16");
  EXPECT_EQ(ErrorOf(std::string("\xFF\xFE\0\0a\0\0\0", 8)),
            "dir/modMain.bas:1:1: the file starts with a UTF-32 byte-order mark; give --encoding "
            "UTF-32");
}

TEST(SourceFile, ReadsUtf16WithItsPreamble) {
  SourceFile file =
      Parsed("\xFF\xFE" + Wide("Attribute VB_Name = \"modWide\"\r\nSub A()\r\n"), "UTF-16");
  EXPECT_EQ(file.ModuleName(), "modWide");
  EXPECT_EQ(file.TakeText().Joined(), "Sub A()");
}

TEST(SourceFile, RefusesAFormWithoutItsEnd) {
  EXPECT_EQ(ErrorOf("VERSION 5.00\r\nBegin VB.Form f\r\nSub A()\r\n"),
            "dir/modMain.bas:2:1: this Begin has no End; put the file's missing lines back");
}

TEST(SourceFile, RefusesAnUnknownEncoding) {
  EXPECT_THROW(Parsed("a", "NO-SUCH-CODE"), std::invalid_argument);
}

TEST(SourceFile, FindsTheModulesLineOfALineOfTheFile) {
  const SourceFile file = Parsed(kForm);
  EXPECT_EQ(file.FileLines(), 25);
  EXPECT_EQ(file.ModuleLineOf(1), 1);
  EXPECT_EQ(file.ModuleLineOf(17), 1);
  EXPECT_EQ(file.ModuleLineOf(19), 2);
  EXPECT_EQ(file.ModuleLineOf(23), 4);
  EXPECT_EQ(file.ModuleLineOf(25), 6);
  for (int line = 1; line <= 6; ++line) EXPECT_EQ(file.ModuleLineOf(file.FileLineOf(line)), line);
}

std::string LineError(const SourceFile& file, int line, bool ofModule = false) {
  try {
    ofModule ? file.FileLineOf(line) : file.ModuleLineOf(line);
  } catch (const SourceError& error) {
    return error.what();
  }
  return "no error";
}

TEST(SourceFile, SaysHowManyLinesThereAreWhenALineIsAskedForThatIsNot) {
  const SourceFile file = Parsed(kForm);
  EXPECT_EQ(LineError(file, 26), "dir/modMain.bas: there is no line 26; the file has 25 lines");
  EXPECT_EQ(LineError(file, 0), "dir/modMain.bas: there is no line 0; the file has 25 lines");
  EXPECT_EQ(LineError(file, 7, true),
            "dir/modMain.bas: there is no line 7; its module has 6 lines");
  EXPECT_EQ(LineError(Parsed("a"), 2), "dir/modMain.bas: there is no line 2; the file has 1 line");
  EXPECT_EQ(LineError(Parsed(""), 1), "dir/modMain.bas: there is no line 1; the file has 0 lines");
}

TEST(SourceFile, ShowsItsLinesAsTheyWereReadAfterTheyWereEdited) {
  SourceFile file = Parsed(kForm);
  ModuleText text = file.TakeText();
  text.Delete(1, 6);
  std::string joined;
  int last = 0;
  for (OriginalLines line = file.LinesAsRead(); line.Next(); last = line.FileLine())
    joined += (joined.empty() ? "" : "\r\n") + std::string(line.Line());
  EXPECT_EQ(joined, kFormModule);
  EXPECT_EQ(last, 25);
}

TEST(SourceFile, ShowsOtherFormsOfACharacterAsTheCharacter) {
  SourceFile file = Parsed("' \x87\x90\r\n", "CP932");
  EXPECT_EQ(file.ForDisplay(file.TakeText().Line(1)), "' ≒");
}

TEST(SourceFile, WritesInLargePieces) {
  std::string bytes;
  for (int i = 0; i < 100000; ++i) bytes += "    x = x + 1\r\n";
  SourceFile file = Parsed(bytes);
  std::vector<std::size_t> pieces;
  file.Compose(file.TakeText(), [&](std::string_view piece) { pieces.push_back(piece.size()); });
  ASSERT_GT(pieces.size(), 2u);
  pieces.pop_back();
  for (const std::size_t size : pieces) EXPECT_GE(size, 64u * 1024);
}

TEST(SourceFile, CopesWithAHugeLineInAWink) {
  std::string bytes = std::string(20'000'000, 'x') + "\r\nSub A()\r\n";
  const auto start = std::chrono::steady_clock::now();
  SourceFile file = Parsed(bytes);
  const ModuleText text = file.TakeText();
  EXPECT_EQ(Composed(file, text), bytes);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_EQ(text.Count(), 2);
}

TEST(SourceFile, ReadsAMillionLinesInAWink) {
  std::string bytes;
  for (int i = 0; i < 1'000'000; ++i) bytes += "    lngTotal = lngTotal + arr(i) * 2 1\r\n";
  const auto start = std::chrono::steady_clock::now();
  SourceFile file = Parsed(std::move(bytes));
  // Some 35 ms in an optimised build; the room above that is for sanitizers and busy machines.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_EQ(file.TakeText().Count(), 1'000'000);
}

}  // namespace source_file_test
}  // namespace brimwork
