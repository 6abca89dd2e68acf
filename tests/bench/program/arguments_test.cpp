#include "bench/program/arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork::bench {
namespace arguments_test {

using ::testing::HasSubstr;

std::string RefusalOf(const std::vector<std::wstring>& words) {
  try {
    ParseArguments(words);
    return "";
  } catch (const ArgumentError& error) {
    return error.what();
  }
}

TEST(BenchArguments, AreNoneAtAll) {
  const Arguments arguments = ParseArguments({});
  EXPECT_EQ(arguments.job, Job::kRun);
  EXPECT_TRUE(arguments.project.empty());
  EXPECT_FALSE(arguments.screenshot);
  EXPECT_FALSE(arguments.report);
}

TEST(BenchArguments, NameTheProjectAndTheFilesToWrite) {
  const Arguments arguments =
      ParseArguments({L"--screenshot", L"a.png", L"Parts.vbp", L"--report", L"b.json"});
  EXPECT_EQ(arguments.project, L"Parts.vbp");
  EXPECT_EQ(*arguments.screenshot, L"a.png");
  EXPECT_EQ(*arguments.report, L"b.json");
}

TEST(BenchArguments, AskForRegistrationAsComServersAreAsked) {
  EXPECT_EQ(ParseArguments({L"/regserver"}).job, Job::kRegister);
  EXPECT_EQ(ParseArguments({L"-RegServer"}).job, Job::kRegister);
  EXPECT_EQ(ParseArguments({L"/UnregServer"}).job, Job::kUnregister);
}

TEST(BenchArguments, MayComeFromTheSystemThatStartsItForAClient) {
  EXPECT_EQ(RefusalOf({L"/automation", L"-Embedding"}), "");
}

TEST(BenchArguments, RefuseWhatIsNotThereAndSayHowItIsMeant) {
  EXPECT_THAT(RefusalOf({L"--speed"}), HasSubstr("There is no option --speed."));
  EXPECT_THAT(RefusalOf({L"--speed"}), HasSubstr("bench [OPTION...] [PROJECT]"));
  EXPECT_THAT(RefusalOf({L"a.vbp", L"b.vbp"}), HasSubstr("more than one project: b.vbp"));
  EXPECT_THAT(RefusalOf({L"--report"}), HasSubstr("--report needs a file."));
}

}  // namespace arguments_test
}  // namespace brimwork::bench
