// Text and columns on their way between the add-in and the environment.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "windows/object_model/bstr_text.h"
#include "windows/object_model/columns.h"
#include "windows/object_model/values.h"

namespace brimwork::windows {
namespace text_conversion_test {

std::string Narrowed(std::wstring_view text) {
  std::string narrow = "what was there before";
  NarrowInto(text, narrow);
  return narrow;
}

std::wstring Widened(std::string_view text) {
  const BSTR wide = NewBstr(text);
  const std::wstring result(wide, SysStringLen(wide));
  SysFreeString(wide);
  return result;
}

TEST(BstrText, TextIsTheSameThereAndBack) {
  for (const std::string_view text :
       {"", "x = 1", "Größe", "日本", "\xF0\x9F\x98\x80", "a\xF0\x9F\x98\x80\xC3\xB6z"}) {
    EXPECT_EQ(Narrowed(Widened(text)), text);
  }
  EXPECT_EQ(Widened("ö\xF0\x9F\x98\x80"), L"\xF6\xD83D\xDE00");
}

TEST(BstrText, ANulIsACharacter) {
  EXPECT_EQ(Widened(std::string_view("a\0b", 3)), std::wstring_view(L"a\0b", 3));
  EXPECT_EQ(Narrowed({L"a\0b", 3}), std::string_view("a\0b", 3));
}

TEST(BstrText, HalfAPairSurvives) {
  for (const std::wstring_view text :
       {std::wstring_view(L"a\xD83Dz"), std::wstring_view(L"\xDE00"),
        std::wstring_view(L"\xDE00\xD83D"), std::wstring_view(L"\xF6\xD83D")}) {
    EXPECT_EQ(Widened(Narrowed(text)), text);
  }
}

TEST(BstrText, HalfAPairIsOneCharacterToTheAddIn) {
  const std::string narrow = Narrowed(L"a\xD83Dz");
  EXPECT_EQ(narrow, "a\xED\xA0\xBDz");
  EXPECT_EQ(CharacterCount(narrow), 3);
}

TEST(BstrText, OtherDamagedTextIsReplaced) {
  EXPECT_EQ(Widened("a\xFFz"), L"a\xFFFDz");
  EXPECT_EQ(Widened("\xC3"), L"\xFFFD");
  EXPECT_EQ(Widened("\xED\xA0"), L"\xFFFD\xFFFD");
}

TEST(BstrText, MemoryOfTheResultIsUsedAgain) {
  std::string narrow(100, 'x');
  const char* const memory = narrow.data();
  NarrowInto(L"x = 1", narrow);
  EXPECT_EQ(narrow, "x = 1");
  EXPECT_EQ(narrow.data(), memory);
}

TEST(Values, NumbersComeInAnyTypeThatConverts) {
  EXPECT_EQ(ToNumber(win32::Variant(7L)), 7);
  EXPECT_EQ(ToNumber(win32::Variant(static_cast<short>(-7))), -7);
  EXPECT_EQ(ToNumber(win32::Variant("12")), 12);
  EXPECT_THROW(ToNumber(win32::Variant("twelve")), RunTimeError);
}

TEST(Values, TextComesInAnyTypeThatConverts) {
  EXPECT_EQ(ToText(win32::Variant("Größe")), "Größe");
  EXPECT_EQ(ToText(win32::Variant()), "");
  EXPECT_EQ(ToText(win32::Variant(7L)), "7");
}

TEST(Values, ANullStringIsEmpty) {
  VARIANT value;
  VariantInit(&value);
  value.vt = VT_BSTR;
  std::string text = "before";
  ToText(win32::Variant::Adopt(value), text);
  EXPECT_EQ(text, "");
}

TEST(Columns, AreTheSameUpToTheFirstCharacterOfTwoUnits) {
  for (const int column : {1, 2, 6}) {
    EXPECT_EQ(UnitColumn("Größe", column), column);
    EXPECT_EQ(CharacterColumn("Größe", column), column);
  }
}

TEST(Columns, ACharacterBeyondTheBasicPlaneIsTwoUnits) {
  const std::string_view line = "a\xF0\x9F\x98\x80z";
  EXPECT_EQ(UnitColumn(line, 2), 2);
  EXPECT_EQ(UnitColumn(line, 3), 4);
  EXPECT_EQ(UnitColumn(line, 4), 5);
  EXPECT_EQ(CharacterColumn(line, 4), 3);
  EXPECT_EQ(CharacterColumn(line, 5), 4);
}

TEST(Columns, OneWithinACharacterIsDrawnBackToItsStart) {
  EXPECT_EQ(CharacterColumn("a\xF0\x9F\x98\x80z", 3), 2);
}

TEST(Columns, BehindTheEndThereIsTheOneBehindTheLastCharacter) {
  EXPECT_EQ(UnitColumn("a\xF0\x9F\x98\x80", 99), 4);
  EXPECT_EQ(CharacterColumn("a\xF0\x9F\x98\x80", 99), 3);
  EXPECT_EQ(UnitColumn("", 5), 1);
  EXPECT_EQ(CharacterColumn("", 5), 1);
}

TEST(Columns, HalfAPairIsOneUnitAndOneCharacter) {
  const std::string line = Narrowed(L"a\xD83Dz");
  EXPECT_EQ(CharacterColumn(line, 3), 3);
  EXPECT_EQ(UnitColumn(line, 3), 3);
}

}  // namespace text_conversion_test
}  // namespace brimwork::windows
