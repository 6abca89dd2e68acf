// What tests of encodings may rely on here.
#include <gtest/gtest.h>

#include "support/known_encoding.h"

namespace brimwork {
namespace known_encodings_test {

TEST(KnownEncodings, AreOfEveryKind) {
  for (const char* encoding : kRareEncodings) EXPECT_TRUE(IsKnownEncoding(encoding)) << encoding;
}

}  // namespace known_encodings_test
}  // namespace brimwork
