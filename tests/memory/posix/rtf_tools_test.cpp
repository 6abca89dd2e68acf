// Rich text as other programs read it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "environment/text.h"
#include "environment/utf8.h"
#include "memory/rtf_reader.h"
#include "memory/rtf_writer.h"
#include "support/posix/program.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace rtf_tools_test {

using testing::HasSubstr;

constexpr int kNotStarted = 127;

RichText Code() {
  RichText code;
  code.SetText(
      "Sub A()\r\n"
      "s = \"C:\\{x}\\par\" ' комментарий\r\n"
      "\r\n"
      "\t' 日本語 你好 café € 😀\r\n"
      "End Sub");
  const TextRange all{0, code.Size()};
  code.SetColor(all, Rgb(0, 0, 0));
  code.SetFontName(all, "Courier New");
  code.SetFontSize(all, 10);
  code.SetColor({0, 3}, Rgb(0, 0, 128));
  code.SetColor({code.LineStart(1) + 17, 13}, Rgb(0, 128, 0));
  return code;
}

/// The colours of all characters but those of line ends.
std::vector<std::optional<Color>> ColorsInLines(const RichText& content) {
  std::vector<std::optional<Color>> colors;
  for (int line = 0; line < content.LineCount(); ++line) {
    const int start = content.LineStart(line);
    const int end = start + CharacterCount(content.Line(line));
    for (int at = start; at < end; ++at) colors.push_back(content.FormatAt(at).color);
  }
  return colors;
}

/// Text as an HTML file spells it in ASCII.
std::string Entities(std::string_view text) {
  std::string spelled;
  for (; !text.empty(); text.remove_prefix(Utf8Size(text))) {
    const auto character = static_cast<unsigned>(Utf8Character(text));
    spelled += character < 0x80 ? std::string(1, text[0]) : "&#" + std::to_string(character) + ";";
  }
  return spelled;
}

class RtfTool : public testing::Test {
 protected:
  RtfTool() { WriteBytes(folder / "code.rtf", WriteRtf(Code())); }

  ProgramResult Run(const std::vector<std::string>& words) {
    ProgramCall call;
    call.words = words;
    call.folder = folder.Path();
    call.variables = {{"PATH", std::getenv("PATH")}, {"HOME", folder.Path().string()}};
    return RunProgram(call);
  }

  bool IsInstalled(const std::string& program) {
    return Run({program, "--version"}).exitCode != kNotStarted;
  }

  void ConvertInOffice(const std::string& file, const std::string& format) {
    const std::string profile = "-env:UserInstallation=file://" + (folder / "profile").string();
    const ProgramResult result =
        Run({"soffice", profile, "--headless", "--convert-to", format, file});
    EXPECT_EQ(result.exitCode, 0) << result.error;
  }

  TemporaryFolder folder;
};

TEST_F(RtfTool, UnrtfReadsTheText) {
  if (!IsInstalled("unrtf")) GTEST_SKIP() << "unrtf is not installed";
  const ProgramResult result = Run({"unrtf", "--text", "code.rtf"});
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_THAT(result.out, HasSubstr("Sub A()\ns = \"C:\\{x}\\par\" ' "));
  EXPECT_THAT(result.out, HasSubstr("\nEnd Sub\n"));
}

TEST_F(RtfTool, UnrtfReadsColorsFontsAndOtherScripts) {
  if (!IsInstalled("unrtf")) GTEST_SKIP() << "unrtf is not installed";
  const std::string html = Run({"unrtf", "--html", "code.rtf"}).out;
  EXPECT_THAT(html, HasSubstr("<font color=\"#000080\">"));
  EXPECT_THAT(html, HasSubstr("<font face=\"Courier New\"><font size=\"2\">Sub<"));
  EXPECT_THAT(html, HasSubstr("<font color=\"#000000\"> A()<br>"));
  EXPECT_THAT(html, HasSubstr("<font color=\"#008000\">" + Entities("' комментарий") + "<"));
  EXPECT_THAT(html, HasSubstr(Entities("' 日本語 你好 caf") + "&eacute; &euro; "));
}

TEST_F(RtfTool, AnOfficeProgramReadsTheText) {
  if (!IsInstalled("soffice")) GTEST_SKIP() << "soffice is not installed";
  ConvertInOffice("code.rtf", "txt:Text (encoded):UTF8");
  std::string expected = "\xEF\xBB\xBF" + Code().Text() + "\n";
  std::erase(expected, '\r');
  EXPECT_EQ(ReadBytes(folder / "code.txt"), expected);
}

TEST_F(RtfTool, AnOfficeProgramsRichTextIsRead) {
  if (!IsInstalled("soffice")) GTEST_SKIP() << "soffice is not installed";
  ConvertInOffice("code.rtf", "odt");
  std::filesystem::remove(folder / "code.rtf");
  ConvertInOffice("code.odt", "rtf");
  const RichText read = ReadRtf(ReadBytes(folder / "code.rtf"));
  EXPECT_EQ(read.Text(), Code().Text());
  EXPECT_EQ(ColorsInLines(read), ColorsInLines(Code()));
}

}  // namespace rtf_tools_test
}  // namespace brimwork
