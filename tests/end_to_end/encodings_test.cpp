// Files that are not plain ASCII: what is read, what is written back, and what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"
#include "support/posix/program.h"

namespace brimwork {
namespace encodings_test {

using testing::AllOf;
using testing::HasSubstr;

std::string Utf16(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes.append({c, '\0'});
  return bytes;
}

class Encodings : public testing::Test {
 protected:
  std::string Indented(const std::string& bytes, const Words& options = {}) const {
    place.Write("m.bas", bytes);
    Words words{"indent"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("m.bas");
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    return result.out;
  }

  Workplace place;
};

TEST_F(Encodings, BytesOfWindows1252ComeBackAsTheyWere) {
  EXPECT_EQ(Indented("Sub A()\ns = \"Gr\xFC\xDF"
                     "e \x80\"\nEnd Sub\n"),
            "Sub A()\n    s = \"Gr\xFC\xDF"
            "e \x80\"\nEnd Sub\n");
}

TEST_F(Encodings, AByteOrderMarkMakesTheFileUtf8) {
  EXPECT_EQ(Indented("\xEF\xBB\xBFSub A()\ns = \"\xE2\x82\xAC\"\nEnd Sub\n"),
            "\xEF\xBB\xBFSub A()\n    s = \"\xE2\x82\xAC\"\nEnd Sub\n");
}

TEST_F(Encodings, CyrillicFilesAreTakenWithTheirCodePage) {
  // In Windows-1251 every byte from C0 on is a letter, also as the name of a procedure.
  EXPECT_EQ(
      Indented("Sub \xCF\xF3\xF1\xEA()\ns = \"\xC4\xE0\"\nEnd Sub\n", {"--encoding", "cp1251"}),
      "Sub \xCF\xF3\xF1\xEA()\n    s = \"\xC4\xE0\"\nEnd Sub\n");
}

TEST_F(Encodings, ATrailByteThatLooksLikeAQuoteOrABackslashIsNone) {
  // The second byte of both characters is ASCII; 0x7C alone would be a bar, 0x5C a backslash.
  EXPECT_EQ(Indented("Sub A()\ns = \"\x83\x7C\x83\x5C\"\nEnd Sub\n", {"--encoding", "cp932"}),
            "Sub A()\n    s = \"\x83\x7C\x83\x5C\"\nEnd Sub\n");
}

TEST_F(Encodings, Utf16FilesComeBackAsUtf16) {
  const std::string mark = "\xFF\xFE";
  EXPECT_EQ(Indented(mark + Utf16("Sub A()\r\nx = 1\r\nEnd Sub\r\n"), {"--encoding", "UTF-16"}),
            mark + Utf16("Sub A()\r\n    x = 1\r\nEnd Sub\r\n"));
}

TEST_F(Encodings, AnUnknownOneIsAnError) {
  place.Write("m.bas", "x = 1\n");
  const ProgramResult result = place.Run({"indent", "--encoding", "cp99999", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.error, HasSubstr("\"cp99999\""));
  EXPECT_EQ(LinesOf(result.error).size(), 1u);
}

TEST_F(Encodings, AByteThatIsNoTextIsAnErrorWithItsLineAndColumn) {
  const std::string bytes = "Sub A()\nx = \"\x81\"\nEnd Sub\n";
  place.Write("m.bas", bytes);
  const ProgramResult result = place.Run({"indent", "--write", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, testing::StartsWith("brimwork: m.bas:2:6: "));
  EXPECT_EQ(place.Read("m.bas"), bytes);
}

TEST_F(Encodings, ColumnsOfErrorsCountCharacters) {
  place.Write("m.bas", "\xEF\xBB\xBF\xC3\xA9\xC3\xA9\xFF\n");
  const ProgramResult result = place.Run({"indent", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("m.bas:1:3: "));
}

TEST_F(Encodings, NewTextThatTheFileCannotHoldIsAnErrorAndTheFileStays) {
  const std::string bytes = "Option Explicit\nSub A()\nx = 1\nEnd Sub\n";
  place.Write("m.bas", bytes);
  const std::string handler = "ErrorHandling=ok\n' \xD0\xA4";
  for (const char* mode : {"--write", "--quiet"}) {
    const ProgramResult result = place.Run({"error-handling", "--set", handler, mode, "m.bas"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, testing::StartsWith("brimwork: m.bas:10:3: "));
    EXPECT_EQ(place.Read("m.bas"), bytes);
  }
  const ProgramResult cyrillic =
      place.Run({"error-handling", "--set", handler, "--encoding", "cp1251", "m.bas"});
  EXPECT_EQ(cyrillic.exitCode, 0);
  EXPECT_THAT(cyrillic.out, HasSubstr("' \xD4\n"));
}

TEST_F(Encodings, ADiffHasTheFilesOwnBytes) {
  place.Write("m.bas", "Sub A()\ns = \"\xFC\"\nEnd Sub\n");
  EXPECT_THAT(place.Run({"indent", "--diff", "m.bas"}).out,
              AllOf(HasSubstr("-s = \"\xFC\"\n"), HasSubstr("+    s = \"\xFC\"\n")));
}

TEST_F(Encodings, ADiffOnATerminalIsReadable) {
  if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
  place.Write("m.bas", "Sub A()\ns = \"\xFC\"\nEnd Sub\n");
  ProgramCall call = place.CallOf({"indent", "--diff", "--color", "never", "m.bas"});
  call.outIsTerminal = true;
  EXPECT_THAT(RunProgram(call).terminal, HasSubstr("+    s = \"\xC3\xBC\"\r\n"));
}

}  // namespace encodings_test
}  // namespace brimwork
