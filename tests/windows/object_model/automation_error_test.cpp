// What failing calls of the environment raise, and which are tried again.
#include "windows/object_model/automation_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "environment/resume_next.h"
#include "support/windows/fake_dispatch.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {
namespace automation_error_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using win32::ComPointer;
using Invocation = FakeDispatch::Invocation;

constexpr HRESULT kBusy = static_cast<HRESULT>(0x800AC472);

struct AutomationErrorTest : testing::Test {
  AutomationErrorTest() {
    connection->patience.sleep = [this](unsigned time) { slept.push_back(time); };
  }

  DispatchObject Object() {
    return {ComPointer<IDispatch>(fake.get()), connection, ObjectKind::kCodeModule};
  }

  std::optional<RunTimeError> ErrorOf(FakeDispatch::Answer answer) {
    fake->On("Lines", std::move(answer));
    return ResumeNext([&] { Object().Get(L"Lines", 1, 1); });
  }
  int NumberOf(HRESULT status) {
    return ErrorOf([=](Invocation&) { return status; })->Number();
  }
  int NumberOfException(HRESULT code) {
    return ErrorOf([=](Invocation& invocation) { return invocation.Raise(code); })->Number();
  }

  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  std::shared_ptr<Connection> connection = std::make_shared<Connection>();
  std::vector<unsigned> slept;
};

TEST_F(AutomationErrorTest, AVisualBasicNumberIsTakenOutOfTheCode) {
  EXPECT_EQ(NumberOfException(static_cast<HRESULT>(0x800A0009)), 9);
  EXPECT_EQ(NumberOfException(static_cast<HRESULT>(0x800A0023)), 35);
  EXPECT_EQ(NumberOfException(static_cast<HRESULT>(0x800A802D)), 32813);
  EXPECT_EQ(NumberOf(static_cast<HRESULT>(0x800A0005)), 5);
}

TEST_F(AutomationErrorTest, ANumberMayStandWithoutACode) {
  const auto error = ErrorOf([](Invocation& invocation) {
    invocation.Raise(S_OK, "Subscript out of range");
    invocation.exception->wCode = 9;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error->Number(), 9);
  EXPECT_STREQ(error->what(), "Lines: Subscript out of range");
}

TEST_F(AutomationErrorTest, CodesOfAutomationHaveNumbersOfTheirOwn) {
  EXPECT_EQ(NumberOf(DISP_E_MEMBERNOTFOUND), 438);
  EXPECT_EQ(NumberOf(DISP_E_UNKNOWNNAME), 438);
  EXPECT_EQ(NumberOf(DISP_E_TYPEMISMATCH), 13);
  EXPECT_EQ(NumberOf(DISP_E_BADINDEX), 9);
  EXPECT_EQ(NumberOfException(DISP_E_MEMBERNOTFOUND), 438);
}

TEST_F(AutomationErrorTest, AnUnknownNameRaisesError438) {
  EXPECT_EQ(ResumeNext([&] { Object().Get(L"TemplatePath"); })->Number(), 438);
}

TEST_F(AutomationErrorTest, AnyOtherCodeIsToldInTheWords) {
  const auto error = ErrorOf([](Invocation&) { return E_FAIL; });
  EXPECT_EQ(error->Number(), 440);
  EXPECT_THAT(error->what(), HasSubstr("Lines: "));
  EXPECT_THAT(error->what(), HasSubstr("(0x80004005)"));
  const auto exception =
      ErrorOf([](Invocation& invocation) { return invocation.Raise(E_FAIL, "cannot do it"); });
  EXPECT_EQ(exception->Number(), 440);
  EXPECT_STREQ(exception->what(), "Lines: cannot do it (0x80004005)");
}

TEST_F(AutomationErrorTest, AnExceptionWithoutACodeIsOneAllTheSame) {
  const auto error = ErrorOf([](Invocation& invocation) { return invocation.Raise(S_OK, "oh"); });
  EXPECT_EQ(error->Number(), 440);
  EXPECT_STREQ(error->what(), "Lines: oh (0x80020009)");
}

TEST_F(AutomationErrorTest, ANumberWithoutWordsIsItsOwnWords) {
  const auto error = ErrorOf(
      [](Invocation& invocation) { return invocation.Raise(static_cast<HRESULT>(0x800A0023)); });
  EXPECT_STREQ(error->what(), "Lines: error 35");
}

HRESULT STDMETHODCALLTYPE FillInLater(EXCEPINFO* info) {
  info->scode = static_cast<HRESULT>(0x800A0023);
  info->bstrDescription = win32::NewBstr("Sub or Function not defined");
  return S_OK;
}

TEST_F(AutomationErrorTest, WhatIsLeftForLaterIsFilledIn) {
  const auto error = ErrorOf([](Invocation& invocation) {
    *invocation.exception = {};
    invocation.exception->pfnDeferredFillIn = FillInLater;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error->Number(), 35);
  EXPECT_STREQ(error->what(), "Lines: Sub or Function not defined");
}

TEST_F(AutomationErrorTest, AWriteThatFailsRaisesTheSame) {
  fake->On("Name", [](Invocation& invocation) {
    return invocation.Raise(static_cast<HRESULT>(0x800A802D), "Name conflicts");
  });
  const auto error = ResumeNext([&] { Object().Put(L"Name", Argument(1)); });
  EXPECT_EQ(error->Number(), 32813);
  EXPECT_STREQ(error->what(), "Name: Name conflicts");
}

// Calls that are turned away.

TEST_F(AutomationErrorTest, ACallThatIsTurnedAwayIsTriedAgain) {
  for (const HRESULT status : {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER, kBusy}) {
    int left = 2;
    slept.clear();
    EXPECT_EQ(ErrorOf([&](Invocation&) { return left-- > 0 ? status : S_OK; }), std::nullopt);
    EXPECT_THAT(slept, ElementsAre(10u, 20u));
  }
}

TEST_F(AutomationErrorTest, ARefusalMayComeAsAnException) {
  int left = 1;
  EXPECT_EQ(ErrorOf([&](Invocation& invocation) {
              return left-- > 0 ? invocation.Raise(kBusy, "busy") : S_OK;
            }),
            std::nullopt);
  EXPECT_THAT(slept, ElementsAre(10u));
}

TEST_F(AutomationErrorTest, PatienceEnds) {
  const auto error = ErrorOf([](Invocation&) { return RPC_E_CALL_REJECTED; });
  EXPECT_EQ(error->Number(), 440);
  EXPECT_THAT(error->what(), HasSubstr("(0x80010001)"));
  EXPECT_THAT(slept, ElementsAre(10u, 20u, 40u));
  EXPECT_EQ(fake->calls.size(), 4u);
}

TEST_F(AutomationErrorTest, NamingAMemberIsTriedAgainToo) {
  fake->Gives("Name", "a");
  fake->statusOfNaming = RPC_E_CALL_REJECTED;
  connection->patience.sleep = [this](unsigned) { fake->statusOfNaming = S_OK; };
  EXPECT_EQ(ToText(Object().Get(L"Name")), "a");
}

TEST_F(AutomationErrorTest, AnyOtherFailureIsRaisedAtOnce) {
  NumberOf(E_FAIL);
  EXPECT_THAT(slept, IsEmpty());
  EXPECT_EQ(fake->calls.size(), 1u);
}

}  // namespace automation_error_test
}  // namespace brimwork::windows
