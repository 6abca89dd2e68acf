// Files that are made whole or not at all, and never over another one, as every system does it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "memory/disk_file.h"
#include "support/disk_file_fixture.h"

namespace brimwork {
namespace disk_file_create_portable_test {

namespace fs = std::filesystem;
using MadeFile = DiskFileFixture;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kName = "Größe Ж€.bas";
constexpr const char* kTaken = ": there is a file of that name by now; it was left as it is";

TEST_F(MadeFile, HoldsTheComposedBytes) {
  CreateWholeFile(In(kName), [](const ByteSink& sink) {
    sink("new ");
    sink("bytes");
  });
  EXPECT_EQ(Read(kName), "new bytes");
  EXPECT_THAT(Names(), ElementsAre(kName));
}

TEST_F(MadeFile, MayStandInTheWorkingFolder) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_.Path());
  CreateWholeFile(kName, Writing("a"));
  fs::current_path(before);
  EXPECT_EQ(Read(kName), "a");
}

TEST_F(MadeFile, NeverTakesThePlaceOfAnother) {
  const std::string path = Write(kName, "old");
  EXPECT_EQ(ErrorOf([&] { CreateWholeFile(path, Writing("new")); }), path + kTaken);
  EXPECT_EQ(Read(kName), "old");
  EXPECT_THAT(Names(), ElementsAre(kName));
}

TEST_F(MadeFile, NeverTakesThePlaceOfOneThatCameInBetween) {
  const std::string error = ErrorOf([&] {
    CreateWholeFile(In(kName), [&](const ByteSink& sink) {
      sink("ours");
      Write(kName, "theirs");
    });
  });
  EXPECT_EQ(error, In(kName) + kTaken);
  EXPECT_EQ(Read(kName), "theirs");
  EXPECT_THAT(Names(), ElementsAre(kName));
}

TEST_F(MadeFile, IsNotThereWhenItsBytesCannotBeComposed) {
  const std::string error = ErrorOf([&] {
    CreateWholeFile(In(kName), [](const ByteSink& sink) {
      sink("half");
      throw SourceError("m.bas", 3, 4, "no such character");
    });
  });
  EXPECT_EQ(error, "m.bas:3:4: no such character");
  EXPECT_THAT(Names(), ElementsAre());
}

TEST_F(MadeFile, NeedsAFolder) {
  EXPECT_THAT(ErrorOf([&] { CreateWholeFile(In("none/a.txt"), Writing("a")); }),
              HasSubstr(": cannot make a temporary file in this folder: "));
}

using LookedAtFile = DiskFileFixture;

TEST_F(LookedAtFile, GivesWhatReplacesIt) {
  const std::string path = Write(kName, "old");
  const auto snapshot = LookAtFile(path);
  ASSERT_TRUE(snapshot.has_value());
  EXPECT_EQ(*snapshot, ReadWholeFile(path).snapshot);
  WriteWholeFile(path, *snapshot, Writing("new"));
  EXPECT_EQ(Read(kName), "new");
}

TEST_F(LookedAtFile, GivesNothingWhereNothingIs) {
  EXPECT_EQ(LookAtFile(In(kName)), std::nullopt);
  EXPECT_EQ(LookAtFile(In("none/a.txt")), std::nullopt);
}

TEST_F(LookedAtFile, IsNoFolder) {
  EXPECT_EQ(ErrorOf([&] { LookAtFile(TextOf(folder_.Path())); }),
            TextOf(folder_.Path()) + ": this is a folder; name a file");
}

}  // namespace disk_file_create_portable_test
}  // namespace brimwork
