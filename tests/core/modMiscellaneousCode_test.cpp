#include "core/modMiscellaneousCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "memory/memory_shell.h"

namespace brimwork {
namespace modMiscellaneousCode_test {

using testing::ElementsAre;

TEST(WebAddress, IsOpenedAsADocumentWithoutParametersAndDirectory) {
  MemoryShell shell;
  OpenWebAddress(shell, "https://vantrel.example/news");
  EXPECT_THAT(shell.requests,
              ElementsAre(ShellRequest{"Open", "https://vantrel.example/news", "", ""}));
}

TEST(WebAddress, AFailureIsIgnored) {
  struct FailingShell : Shell {
    void ShellExecute(std::string_view, std::string_view, std::string_view,
                      std::string_view) override {
      ++calls;
      throw RunTimeError(error_number::kInvalidProcedureCall, "no browser");
    }
    int calls = 0;
  };
  FailingShell shell;
  OpenWebAddress(shell, kWebSiteAddress);
  EXPECT_EQ(shell.calls, 1);
}

}  // namespace modMiscellaneousCode_test
}  // namespace brimwork
