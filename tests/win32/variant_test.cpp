#include "win32/variant.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"

namespace brimwork::win32 {
namespace variant_test {

TEST(Variant, HoldsTextBeyondTheCodePage) {
  EXPECT_EQ(Variant("größer \xF0\x9F\x98\x80").ToText(), "größer \xF0\x9F\x98\x80");
}

TEST(Variant, ConvertsAsAutomationDoes) {
  EXPECT_EQ(Variant("42").ToLong(), 42);
  EXPECT_EQ(Variant(42).ToText(), "42");
  EXPECT_TRUE(Variant(-1).ToBool());
  EXPECT_EQ(Variant(true).ToLong(), -1);
}

TEST(Variant, RaisesTypeMismatchForWhatIsNoNumber) {
  try {
    Variant("forty").ToLong();
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kTypeMismatch);
  }
}

TEST(Variant, ReadsThroughAReference) {
  long number = 7;
  const Variant reference = Variant::ByReference(number);
  number = 8;
  EXPECT_EQ(reference.ToLong(), 8);
}

TEST(Variant, KnowsAnArgumentThatIsLeftOut) {
  EXPECT_TRUE(Variant::Missing().IsMissing());
  EXPECT_FALSE(Variant().IsMissing());
  EXPECT_FALSE(Variant(0).IsMissing());
}

TEST(Variant, TakesNothingForAnObject) {
  EXPECT_EQ(Variant(static_cast<IDispatch*>(nullptr)).ToObject(), nullptr);
}

TEST(Variant, GivesWhatItHoldsAway) {
  Variant text("given");
  VARIANT given = text.Release();
  EXPECT_EQ(text.Type(), VT_EMPTY);
  EXPECT_EQ(Variant::Adopt(given).ToText(), "given");
  EXPECT_EQ(given.vt, VT_EMPTY);
}

}  // namespace variant_test
}  // namespace brimwork::win32
