// The sample project exported in every format.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "end_to_end/workplace.h"
#include "environment/text.h"

namespace brimwork {
namespace export_sample_test {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

/// Where each module of the sample comes from, by the name of its export.
const std::map<std::string, std::string>& Sources() {
  static const std::map<std::string, std::string> sources{
      {"frmDesk", "frmDesk.frm"},
      {"modStock", "Modules/modStock.bas"},
      {"Price List", "Modules/Price List.bas"},
      {"InvoiceLine", "Modules/InvoiceLine.cls"},
      {"InvoiceLines", "Modules/InvoiceLines.cls"}};
  return sources;
}

/// The lines of a source that the editor shows, as a text export has them.
std::string ShownLines(const std::string& source) {
  std::string shown;
  bool inBlocks = source.starts_with("VERSION ");
  for (std::string line : LinesOf(source)) {
    if (line.ends_with('\r')) line.pop_back();
    const bool isAttribute = line.starts_with("Attribute ");
    if (isAttribute) inBlocks = false;
    if (!isAttribute && !inBlocks) shown += line + "\r\n";
  }
  return shown.substr(0, shown.size() - 2);
}

/// A page's text without its tags.
std::string TextOf(const std::string& page) {
  std::string text;
  bool inTag = false;
  for (const char c : page) {
    if (c == '<') inTag = true;
    if (!inTag) text += c;
    if (c == '>') inTag = false;
  }
  for (const auto& [from, to] :
       {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}}) {
    text = Replace(text, from, to);
  }
  return text;
}

class ExportedSample : public testing::Test {
 protected:
  ExportedSample() {
    fs::copy(fs::path(BRIMWORK_SOURCE_DIR) / "samples", place / "samples",
             fs::copy_options::recursive);
  }

  void Export(const std::string& format) {
    const ProgramResult result = place.Run({"export", "-q", "--format", format, "--keywords",
                                            "builtin", "-o", "out", "samples/WorkshopDesk.vbp"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
  }

  std::string TextOfSource(const std::string& name) const {
    return ShownLines(place.Read("samples/" + Sources().at(name)));
  }

  Workplace place;
};

TEST_F(ExportedSample, AsTextIsWhatTheEditorShows) {
  Export("text");
  for (const auto& [name, source] : Sources()) {
    EXPECT_EQ(place.Read("out/" + name + ".txt"), TextOfSource(name)) << source;
  }
}

TEST_F(ExportedSample, AsWebPagesHoldsEachLineWithABlankBehindIt) {
  Export("html");
  for (const auto& [name, source] : Sources()) {
    const std::string page = place.Read("out/" + name + ".htm");
    const std::string expected =
        "\r\n" + Replace(TextOfSource(name), "\r\n", " \r\n") + " \r\n\r\n";
    EXPECT_EQ(TextOf(page), expected) << source;
    EXPECT_THAT(page, HasSubstr("<font color=\"#000080\">")) << source;
  }
}

TEST_F(ExportedSample, AsWebPagesHasAnIndexOfItsModules) {
  Export("html");
  const std::string index = place.Read("out/index.htm");
  EXPECT_THAT(index, HasSubstr("<title>WorkshopDesk</title>"));
  for (const auto& [name, source] : Sources()) {
    EXPECT_THAT(index, HasSubstr("<a href=\"" + Replace(name, " ", "%20") + ".htm\">"));
    EXPECT_THAT(index, HasSubstr("<td class=\"file\">" + source + "</td>"));
  }
}

TEST_F(ExportedSample, AsRichTextIsADocumentForEachModule) {
  Export("rtf");
  for (const auto& [name, source] : Sources()) {
    const std::string document = place.Read("out/" + name + ".rtf");
    EXPECT_THAT(document, StartsWith("{\\rtf1")) << source;
    EXPECT_THAT(document, HasSubstr("\\red0\\green0\\blue128;")) << source;
  }
}

}  // namespace export_sample_test
}  // namespace brimwork
