// Runs every case of tests/cases, and asks of each what holds for all of them: the same result in
// every mode, from every side and with either line end. With BRIMWORK_UPDATE_CASES=1 the expected
// parts are written anew instead; read the change before you commit it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "end_to_end/case_file.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace case_files_test {

namespace fs = std::filesystem;

class CaseFiles : public testing::TestWithParam<fs::path> {
 protected:
  void SetUp() override {
    text_ = ReadBytes(GetParam());
    case_ = ParseCase(text_);
    for (const auto& [name, part] : case_.files) place_.Write(name, part.Bytes());
    WriteInput();
  }

  void WriteInput() const { place_.Write(case_.inputName, case_.input.Bytes()); }

  /// The case's command on the file with further words.
  ProgramResult Run(const Words& more, std::string input = {}) const {
    Words words = case_.arguments;
    words.insert(words.end(), more.begin(), more.end());
    return place_.Run(words, std::move(input));
  }

  std::string ResultFor(const std::string& input) const {
    place_.Write(case_.inputName, input);
    return Run({case_.inputName}).out;
  }

  /// A second indenting takes the blanks that the first one found behind leading tabs.
  bool HasBlanksBehindLeadingTabs() const {
    for (const std::string& line : LinesOf(case_.input.text)) {
      const std::string_view trimmed =
          std::string_view(line).substr(std::min(line.find_first_not_of(' '), line.size()));
      const auto behind = trimmed.find_first_not_of('\t');
      if (behind > 0 && behind != std::string_view::npos && trimmed[behind] == ' ') return true;
    }
    return false;
  }

  void ExpectTheOutput() const {
    const ProgramResult result = Run({case_.inputName});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, case_.output);
    EXPECT_EQ(result.error, case_.warnings);
  }

  void ExpectTheSameFromStandardInput() const {
    const ProgramResult result =
        Run({"--stdin-filename", case_.inputName, "-"}, case_.input.Bytes());
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, case_.output);
    EXPECT_EQ(result.error, case_.warnings);
  }

  void ExpectTheSameWithEitherLineEnd() const {
    const std::string input = case_.input.Bytes();
    EXPECT_EQ(ResultFor(WithLfEnds(input)), WithLfEnds(case_.output));
    EXPECT_EQ(ResultFor(WithCrLfEnds(input)), WithCrLfEnds(case_.output));
  }

  void ExpectThatCheckTellsAChange() const {
    WriteInput();
    const ProgramResult result = Run({"--check", case_.inputName});
    EXPECT_EQ(result.exitCode, case_.changesInput ? 1 : 0);
    EXPECT_EQ(result.out, case_.changesInput ? case_.inputName + "\n" : "");
    EXPECT_EQ(place_.Read(case_.inputName), case_.input.Bytes());
  }

  void ExpectThatWritingGivesTheOutput() const {
    WriteInput();
    const ProgramResult result = Run({"--write", "--quiet", case_.inputName});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.error, case_.warnings);
    EXPECT_EQ(place_.Read(case_.inputName), case_.output);
  }

  void ExpectADiffThatPatchApplies(bool hasPatch) const {
    WriteInput();
    const ProgramResult result = Run({"--diff", case_.inputName});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out.empty(), !case_.changesInput);
    EXPECT_EQ(place_.Read(case_.inputName), case_.input.Bytes());
    if (!hasPatch || !case_.changesInput) return;
    place_.Write("diff", result.out);
    const ProgramResult patched = place_.Shell("patch --binary '" + case_.inputName + "' diff");
    EXPECT_EQ(patched.exitCode, 0) << patched.out << patched.error;
    EXPECT_EQ(place_.Read(case_.inputName), case_.output);
  }

  void ExpectThatASecondRunChangesNothing() const {
    EXPECT_EQ(ResultFor(case_.output), case_.output);
  }

  std::string text_;
  CaseFile case_;
  Workplace place_;
};

TEST_P(CaseFiles, Hold) {
  if (std::getenv("BRIMWORK_UPDATE_CASES") != nullptr) {
    const ProgramResult result = Run({case_.inputName});
    WriteBytes(GetParam(), UpdatedCase(text_, result.out, result.error));
    return;
  }
  ExpectTheOutput();
  if (HasFailure()) return;
  ExpectTheSameFromStandardInput();
  ExpectTheSameWithEitherLineEnd();
  ExpectThatCheckTellsAChange();
  ExpectThatWritingGivesTheOutput();
  const bool isIndent = case_.arguments.front() == "indent";
  if (isIndent && !HasBlanksBehindLeadingTabs()) ExpectThatASecondRunChangesNothing();
  const bool hasPatch = place_.Shell("patch --version").exitCode == 0;
  ExpectADiffThatPatchApplies(hasPatch);
  if (!hasPatch) GTEST_SKIP() << "patch is not installed, so the diff was not applied";
}

std::string NameOf(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.stem().string();
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, CaseFiles, testing::ValuesIn(FindCases()), NameOf);

}  // namespace case_files_test
}  // namespace brimwork
