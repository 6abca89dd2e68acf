// What a settings file looks like that is refused, and how the error names the place.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "environment/run_time_error.h"
#include "memory/json_settings_area.h"
#include "memory/utf8_path.h"
#include "support/json_settings_fixture.h"

namespace brimwork {
namespace json_settings_damage_test {

struct DamagedSettingsFile : JsonSettingsFixture {
  /// The error that each kind of access gives; the file has to stay as it is.
  void ExpectRefused(std::string_view bytes, const std::string& message) {
    Store(bytes);
    const std::string expected = TextOf(file) + message;
    EXPECT_EQ(Error([&] { Get("Header"); }), expected);
    EXPECT_EQ(Error([&] { area.AllSettings("Brimwork", "Settings"); }), expected);
    EXPECT_EQ(Error([&] { Save("Header", "new"); }), expected);
    EXPECT_EQ(ReadBytes(file), bytes);
    EXPECT_THAT(Leftovers(), testing::IsEmpty());
  }
};

TEST_F(DamagedSettingsFile, ATextThatIsNoJsonIsRefused) {
  ExpectRefused("{\n  \"Brimwork\": {\n    oops\n",
                ":3:5: the settings file is damaged: invalid literal; correct it or remove the "
                "file");
}

TEST_F(DamagedSettingsFile, AFileThatWasCutShortIsRefused) {
  ExpectRefused("{\"Brimwork\": {\"Settings\": {\"Header\": \"x\"",
                ":1:41: the settings file is damaged: unexpected end of input; correct it or "
                "remove the file");
}

TEST_F(DamagedSettingsFile, AnEmptyFileIsRefused) {
  ExpectRefused("",
                ":1:1: the settings file is damaged: unexpected end of input; correct it or "
                "remove the file");
}

TEST_F(DamagedSettingsFile, TextBehindTheEndIsRefused) {
  ExpectRefused("{}\n{}",
                ":2:1: the settings file is damaged: unexpected '{'; correct it or remove the "
                "file");
}

TEST_F(DamagedSettingsFile, BytesThatAreNotUtf8AreRefused) {
  ExpectRefused("{\"Brimwork\": {\"Settings\":\n{\"Gr\xC3\xB6\xC3\x9F\x65\": \"a\xE4o\"}}}",
                ":2:14: the settings file is damaged: invalid string: ill-formed UTF-8 byte; "
                "correct it or remove the file");
}

TEST_F(DamagedSettingsFile, AValueThatIsNoTextIsRefusedWithoutReadingTheOthers) {
  for (const char* value : {"4", "-4", "1.5", "true", "null", "[\"x\"]", "{}"}) {
    ExpectRefused("{\"Brimwork\": {\"Settings\": {\n  \"Header\": \"x\",\n  \"TabWidth\" : " +
                      std::string(value) + "}}}",
                  ":3:16: the settings file is damaged: the value of \"TabWidth\" is no text in "
                  "quotes; correct it or remove the file");
  }
}

TEST_F(DamagedSettingsFile, AnotherShapeIsRefused) {
  const std::string advice = "; correct it or remove the file";
  ExpectRefused(
      " [1]", ":1:2: the settings file is damaged: the settings are no object in braces" + advice);
  ExpectRefused(
      "\"x\"", ":1:1: the settings file is damaged: the settings are no object in braces" + advice);
  ExpectRefused("{\"Brimwork\": [{}]}",
                ":1:14: the settings file is damaged: the value of \"Brimwork\" is no object in "
                "braces" +
                    advice);
  ExpectRefused("{\"Brimwork\": {\"Settings\": \"x\"}}",
                ":1:27: the settings file is damaged: the value of \"Settings\" is no object in "
                "braces" +
                    advice);
}

TEST_F(DamagedSettingsFile, ANameThatStandsTwiceIsRefusedForOneOfItsValuesWouldBeLost) {
  ExpectRefused("{\"Brimwork\": {\"Settings\": {\"A\": \"1\",\n\"A\": \"2\"}}}",
                ":2:3: the settings file is damaged: the name \"A\" stands twice; correct it or "
                "remove the file");
}

TEST_F(DamagedSettingsFile, TheErrorIsOneLineWhateverTheNameHolds) {
  ExpectRefused("{\"Brimwork\": {\"Settings\": {\"A\\nB\": 1}}}",
                ":1:36: the settings file is damaged: the value of \"A B\" is no text in quotes; "
                "correct it or remove the file");
}

TEST_F(DamagedSettingsFile, ATextNestedTooDeeplyIsRefused) {
  ExpectRefused("{\"x\": " + std::string(100'000, '[') + std::string(100'000, ']') + "}",
                ":1:106: the settings file is damaged: the text is nested too deeply; correct it "
                "or remove the file");
}

TEST_F(DamagedSettingsFile, ANumberThatCannotBeKeptIsRefused) {
  ExpectRefused("{\"x\": 1e999}",
                ":1:11: the settings file is damaged: number overflow parsing '1e999'; correct it "
                "or remove the file");
}

TEST_F(DamagedSettingsFile, TheErrorIsNoRunTimeError) {
  Store("oops");
  EXPECT_FALSE((std::is_base_of_v<RunTimeError, SettingsFileError>));
  EXPECT_THROW(Get("Header"), SettingsFileError);
}

}  // namespace json_settings_damage_test
}  // namespace brimwork
