// Exported pages as a browser shows them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_browser_test {

using testing::AllOf;
using testing::HasSubstr;

constexpr const char* kModule =
    "Private Sub Form_Load() ' opens <b>all</b>\n"
    "    Dim s As String\n"
    "    s = \"x < y & If Then\"\n"
    "\tIf Ready Then Work\n"
    "' a note\n"
    "End Sub\n";

/// Puts behind a page what this script reports as name=value lines, percent-encoded so that they
/// stay one word each.
std::string WithReport(const std::string& page, const std::string& script) {
  return page + "<script>\nconst report = document.createElement('p');\nreport.id = 'report';\n" +
         "const tell = (name, value) =>\n"
         "  report.textContent += encodeURIComponent(name) + '=' + encodeURIComponent(value) + "
         "'\\n';\n" +
         script + "\ndocument.body.append(report);\n</script>\n";
}

std::string PercentDecoded(const std::string& text) {
  std::string decoded;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '%') {
      decoded += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16));
      at += 2;
    } else {
      decoded += text[at];
    }
  }
  return decoded;
}

std::map<std::string, std::string> ReportIn(const std::string& document) {
  constexpr std::string_view kOpening = "<p id=\"report\">";
  std::map<std::string, std::string> report;
  const auto start = document.find(kOpening);
  if (start == std::string::npos) return report;
  const auto end = document.find("</p>", start);
  for (const std::string& line :
       LinesOf(document.substr(start + kOpening.size(), end - start - kOpening.size()))) {
    const auto equals = line.find('=');
    report[PercentDecoded(line.substr(0, equals))] = PercentDecoded(line.substr(equals + 1));
  }
  return report;
}

class ExportInABrowser : public testing::Test {
 protected:
  void SetUp() override {
    if (place.Shell("command -v chromium").exitCode != 0) {
      GTEST_SKIP() << "chromium is not installed";
    }
  }

  /// What the page of this name reports once it is loaded.
  std::map<std::string, std::string> ReportOf(const std::string& name) const {
    const ProgramResult result = place.Shell(
        "timeout 60 chromium --headless --no-sandbox --disable-gpu "
        "--user-data-dir=\"$HOME/browser\" "
        "--dump-dom \"file://$HOME/" +
        name + "\"");
    const auto report = ReportIn(result.out);
    EXPECT_FALSE(report.empty()) << result.error;
    return report;
  }

  Workplace place;
};

constexpr const char* kColoursAndText = R"(
const walk = document.createTreeWalker(document.querySelector('pre'), NodeFilter.SHOW_TEXT);
const colourOf = word => {
  walk.currentNode = walk.root;
  while (walk.nextNode()) {
    if (walk.currentNode.data.includes(word))
      return getComputedStyle(walk.currentNode.parentElement).color;
  }
};
for (const word of ['Private Sub', 'Form_Load', "' opens <b>all</b>", 'Dim', 'As String',
                    '"x < y & If Then"', 'Ready', "' a note", 'End Sub'])
  tell(word, colourOf(word));
tell('text', document.querySelector('pre').textContent);
)";

TEST_F(ExportInABrowser, ShowsTheCodeInItsColours) {
  place.Write("m.bas", kModule);
  const ProgramResult exported =
      place.Run({"export", "--format", "html", "--keywords", "builtin", "m.bas"});
  ASSERT_EQ(exported.exitCode, 0) << exported.error;
  place.Write("page.htm", WithReport(exported.out, kColoursAndText));
  auto report = ReportOf("page.htm");

  constexpr const char* kBlack = "rgb(0, 0, 0)";
  constexpr const char* kNavy = "rgb(0, 0, 128)";
  constexpr const char* kGreen = "rgb(0, 128, 0)";
  EXPECT_EQ(report["Private Sub"], kNavy);
  EXPECT_EQ(report["Form_Load"], kBlack);
  EXPECT_EQ(report["' opens <b>all</b>"], kGreen);
  EXPECT_EQ(report["Dim"], kNavy);
  EXPECT_EQ(report["As String"], kNavy);
  EXPECT_EQ(report["\"x < y & If Then\""], kBlack);
  EXPECT_EQ(report["Ready"], kBlack);
  EXPECT_EQ(report["' a note"], kGreen);
  EXPECT_EQ(report["End Sub"], kNavy);

  // Each line has a blank behind it; a block's first line end does not show.
  std::string shown;
  for (const std::string& line : LinesOf(kModule)) shown += line + " \n";
  EXPECT_EQ(report["text"], shown);
}

constexpr const char* kLinksAndTitle = R"(
tell('mode', document.compatMode);
tell('characters', document.characterSet);
tell('title', document.title);
tell('links', [...document.links].map(link => decodeURIComponent(
    link.href.slice(link.href.lastIndexOf('/') + 1)) + ' ' + link.textContent).join('|'));
tell('link colour', getComputedStyle(document.links[0]).color);
)";

TEST_F(ExportInABrowser, HasAnIndexPageWhoseLinksLead) {
  place.Write("src/a b#1%.bas",
              "Attribute VB_Name = \"Gr\xFC\xDF"
              "e\"\nx = 1\n");
  place.Write("src/<i>&.frm", "y = 2\n");
  ASSERT_EQ(place.Run({"export", "-q", "--format", "html", "-o", "out", "src"}).exitCode, 0);
  place.Write("out/page.htm", WithReport(place.Read("out/index.htm"), kLinksAndTitle));
  auto report = ReportOf("out/page.htm");
  EXPECT_EQ(report["mode"], "CSS1Compat");
  EXPECT_EQ(report["characters"], "UTF-8");
  EXPECT_EQ(report["title"], "src");
  EXPECT_EQ(report["links"],
            "<i>&.htm <i>&|a b#1%.htm Gr\xC3\xBC\xC3\x9F"
            "e");
  EXPECT_NE(place.Read("out/a b#1%.htm"), "");
  EXPECT_EQ(report["link colour"], "rgb(0, 0, 128)");
}

}  // namespace export_browser_test
}  // namespace brimwork
