#include "windows/component/extensibility_dispatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/windows/fake_dispatch.h"

namespace brimwork::windows {
namespace extensibility_dispatch_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using win32::Variant;

/// Notes the calls that reach it.
class NotedCalls final : public IExtensibility {
 public:
  virtual ~NotedCalls() = default;

  STDMETHODIMP QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  STDMETHODIMP_(ULONG) AddRef() override { return 1; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    return E_NOTIMPL;
  }

  STDMETHODIMP OnConnection(IDispatch* application, long mode, IDispatch* addIn,
                            SAFEARRAY**) override {
    connectedTo = application;
    given = addIn;
    return Note("OnConnection " + std::to_string(mode));
  }
  STDMETHODIMP OnDisconnection(long mode, SAFEARRAY**) override {
    return Note("OnDisconnection " + std::to_string(mode));
  }
  STDMETHODIMP OnAddInsUpdate(SAFEARRAY**) override { return Note("OnAddInsUpdate"); }
  STDMETHODIMP OnStartupComplete(SAFEARRAY**) override { return Note("OnStartupComplete"); }
  STDMETHODIMP OnBeginShutdown(SAFEARRAY**) override { return Note("OnBeginShutdown"); }

  std::vector<std::string> calls;
  IDispatch* connectedTo = nullptr;
  IDispatch* given = nullptr;
  HRESULT answer = S_OK;

 private:
  HRESULT Note(std::string call) {
    calls.push_back(std::move(call));
    return answer;
  }
};

struct ExtensibilityDispatch : ::testing::Test {
  HRESULT Invoke(DISPID method, std::vector<Variant> reversed, std::vector<DISPID> named = {},
                 WORD kind = DISPATCH_METHOD) {
    std::vector<VARIANTARG> arguments;
    for (const Variant& argument : reversed) arguments.push_back(argument.Get());
    DISPPARAMS parameters{arguments.data(), named.data(), static_cast<UINT>(arguments.size()),
                          static_cast<UINT>(named.size())};
    return InvokeExtensibility(object, method, kind, &parameters);
  }

  std::vector<DISPID> NumbersOf(std::vector<std::wstring> names, HRESULT expected = S_OK) {
    std::vector<LPOLESTR> pointers;
    for (std::wstring& name : names) pointers.push_back(name.data());
    std::vector<DISPID> ids(names.size());
    EXPECT_EQ(FindExtensibilityNames(pointers.data(), static_cast<UINT>(names.size()), ids.data()),
              expected);
    return ids;
  }

  NotedCalls object;
  win32::ComPointer<FakeDispatch> application = FakeDispatch::Make();
  win32::ComPointer<FakeDispatch> addIn = FakeDispatch::Make();
};

TEST_F(ExtensibilityDispatch, KnowsTheMethodsByNameInAnyLetterCase) {
  EXPECT_THAT(NumbersOf({L"OnConnection"}), ElementsAre(1));
  EXPECT_THAT(NumbersOf({L"ondisconnection"}), ElementsAre(2));
  EXPECT_THAT(NumbersOf({L"ONADDINSUPDATE"}), ElementsAre(3));
  EXPECT_THAT(NumbersOf({L"OnStartupComplete"}), ElementsAre(4));
  EXPECT_THAT(NumbersOf({L"OnBeginShutdown"}), ElementsAre(5));
}

TEST_F(ExtensibilityDispatch, KnowsTheArgumentsOfAMethodByName) {
  EXPECT_THAT(NumbersOf({L"OnConnection", L"Custom", L"AddInInst", L"ConnectMode", L"application"}),
              ElementsAre(1, 3, 2, 1, 0));
  EXPECT_THAT(NumbersOf({L"OnBeginShutdown", L"custom"}), ElementsAre(5, 0));
}

TEST_F(ExtensibilityDispatch, SaysWhichNameItDoesNotKnow) {
  EXPECT_THAT(NumbersOf({L"OnLunch"}, DISP_E_UNKNOWNNAME), ElementsAre(DISPID_UNKNOWN));
  EXPECT_THAT(NumbersOf({L"OnDisconnection", L"ConnectMode"}, DISP_E_UNKNOWNNAME),
              ElementsAre(2, DISPID_UNKNOWN));
}

TEST_F(ExtensibilityDispatch, CallsWithArgumentsByPosition) {
  EXPECT_EQ(Invoke(1, {Variant::Missing(), Variant(addIn), Variant(1), Variant(application)}), S_OK);
  EXPECT_THAT(object.calls, ElementsAre("OnConnection 1"));
  EXPECT_EQ(object.connectedTo, application.get());
  EXPECT_EQ(object.given, addIn.get());
}

TEST_F(ExtensibilityDispatch, CallsWithArgumentsByNameAndWithoutCustom) {
  EXPECT_EQ(Invoke(1, {Variant(0), Variant(addIn), Variant(application)}, {1, 2, 0}), S_OK);
  EXPECT_EQ(object.connectedTo, application.get());
  EXPECT_EQ(object.given, addIn.get());
  EXPECT_EQ(Invoke(2, {Variant(1)}), S_OK);
  EXPECT_THAT(object.calls, ElementsAre("OnConnection 0", "OnDisconnection 1"));
}

TEST_F(ExtensibilityDispatch, TakesArgumentsByReferenceAndConvertsThem) {
  long mode = 1;
  EXPECT_EQ(Invoke(2, {Variant::ByReference(mode)}), S_OK);
  EXPECT_EQ(Invoke(2, {Variant("0")}), S_OK);
  EXPECT_THAT(object.calls, ElementsAre("OnDisconnection 1", "OnDisconnection 0"));
}

TEST_F(ExtensibilityDispatch, CallsTheMethodsThatNeedNoArgument) {
  for (const DISPID method : {3, 4, 5}) EXPECT_EQ(Invoke(method, {}), S_OK);
  EXPECT_EQ(Invoke(4, {Variant::Missing()}), S_OK);
  EXPECT_THAT(object.calls, ElementsAre("OnAddInsUpdate", "OnStartupComplete", "OnBeginShutdown",
                                        "OnStartupComplete"));
}

TEST_F(ExtensibilityDispatch, RefusesACallThatCannotBeMeant) {
  EXPECT_EQ(Invoke(6, {}), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Invoke(4, {}, {}, DISPATCH_PROPERTYGET), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Invoke(2, {}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(Invoke(4, {Variant(1), Variant(2)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(Invoke(2, {Variant(1)}, {7}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(Invoke(2, {Variant("soon")}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Invoke(1, {Variant(addIn), Variant(1), Variant("the editor")}), DISP_E_TYPEMISMATCH);
  EXPECT_THAT(object.calls, IsEmpty());
}

TEST_F(ExtensibilityDispatch, AnswersWhatTheMethodAnswers) {
  object.answer = E_FAIL;
  EXPECT_EQ(Invoke(4, {}), E_FAIL);
}

}  // namespace extensibility_dispatch_test
}  // namespace brimwork::windows
