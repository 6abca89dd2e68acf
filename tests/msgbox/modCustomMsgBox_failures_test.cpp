// Custom message boxes while one call to the environment after the other fails: the user gets the
// box, the box an answer, and the caller no error.
#include <functional>

#include "support/faulty_environment.h"
#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_failures_test {

/// One box with everything over an environment of its own.
struct FailingBox : MemoryEnvironment {
  FailingBox(Copy copy, Fault fault)
      : faulty(Parts(), std::move(fault)), boxes(MakeSpecialBoxes(copy, faulty.Parts())) {
    formScreen.activeForm = std::make_shared<MemoryScreenForm>(nativeWindows.Add({}));
    messageBoxes.PressKeysAt(100, "{Tab}{Tab}");
    result = boxes->Show(box);
  }

  FaultyEnvironment faulty;
  std::unique_ptr<SpecialBoxes> boxes;
  SpecialBox box{.buttons = 4,
                 .timeOut = 1,
                 .x = 10,
                 .y = 20,
                 .checkBoxText = "Always",
                 .buttonCount = 2,
                 .buttonText = "&Now,&Never",
                 .originalButtonText = "&Yes,&No"};
  int result = 0;
};

struct CustomMsgBoxFailures : testing::TestWithParam<Copy> {
  /// Lets each call of the box fail in turn.
  void Sweep(Fault::Kind kind, const std::function<void(FailingBox&, std::string_view)>& check) {
    const FailingBox whole(GetParam(), {});
    const auto& operations = whole.faulty.Operations();
    ASSERT_GT(operations.size(), 40u);
    for (std::size_t call = 1; call <= operations.size(); ++call) {
      const auto hits = [&](int number, std::string_view) {
        return static_cast<std::size_t>(number) == call;
      };
      SCOPED_TRACE(std::string(operations[call - 1]) + ", call " + std::to_string(call));
      FailingBox box(GetParam(), {kind, hits});
      check(box, operations[call - 1]);
    }
  }
};

constexpr std::string_view kShow = "MessageBoxes.MessageBox";

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxFailures, testing::Values(Copy::kAddIn, Copy::kModule),
                         CopyName);

TEST_P(CustomMsgBoxFailures, OfASingleCallLeaveTheUserABoxAndTheCallerAnAnswer) {
  Sweep(Fault::Kind::kRaises, [](FailingBox& box, std::string_view operation) {
    EXPECT_EQ(box.messageBoxes.Shown().size(), operation == kShow ? 0u : 1u);
    EXPECT_EQ(box.result, operation == kShow ? 0 : message_box_result::kYes);
    EXPECT_EQ(box.messageBoxes.Open(), 0u);
  });
}

TEST_P(CustomMsgBoxFailures, BehindTheWorkOfACallChangeNothing) {
  Sweep(Fault::Kind::kRaisesBehind, [](FailingBox& box, std::string_view operation) {
    EXPECT_EQ(box.messageBoxes.Shown().size(), 1u);
    EXPECT_EQ(box.result, operation == kShow ? 0 : message_box_result::kYes);
  });
}

TEST_P(CustomMsgBoxFailures, ToFindTheFormLeaveTheUserABox) {
  Sweep(Fault::Kind::kAnswersNothing, [](FailingBox& box, std::string_view) {
    EXPECT_EQ(box.messageBoxes.Shown().size(), 1u);
    EXPECT_EQ(box.result, message_box_result::kYes);
  });
}

TEST_P(CustomMsgBoxFailures, OfEveryCallComeToAnEnd) {
  const FailingBox box(GetParam(),
                       {Fault::Kind::kRaises, [](int, std::string_view) { return true; }});
  EXPECT_EQ(box.result, 0);
}

TEST_P(CustomMsgBoxFailures, ToKillATimerLetTheTimerTryAgain) {
  bool failed = false;
  const auto once = [&](int, std::string_view operation) {
    return operation == "WindowTimers.KillTimer" && !std::exchange(failed, true);
  };
  const FailingBox box(GetParam(), {Fault::Kind::kRaises, once});
  EXPECT_EQ(box.result, message_box_result::kYes);
  EXPECT_EQ(box.windowTimers.Count(), 0u);
}

}  // namespace modCustomMsgBox_failures_test
}  // namespace brimwork
