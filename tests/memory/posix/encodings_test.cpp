// What tests of encodings may rely on here.
#include <gtest/gtest.h>

#include "support/known_encoding.h"

namespace brimwork {
namespace encodings_test {

TEST(Encodings, OfEveryKindAreKnown) {
  for (const char* encoding : kRareEncodings) EXPECT_TRUE(IsKnownEncoding(encoding)) << encoding;
}

}  // namespace encodings_test
}  // namespace brimwork
