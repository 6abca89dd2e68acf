#include "bench/automation/click_events.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>

#include "bench/automation/automation_fixture.h"

namespace brimwork::bench {
namespace click_events_test {

using ::testing::IsEmpty;
using win32::ComPointer;
using win32::Variant;

constexpr IID kSource = {0x0002E198, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// A client's sink that keeps what it is told. Lives on the stack: it outlives its connections.
class Sink : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool isOne =
        IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, kSource);
    *object = isOne ? this : nullptr;
    if (isOne) AddRef();
    return isOne ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    EXPECT_EQ(id, 1);
    EXPECT_EQ(arguments->cArgs, 3u);
    EXPECT_EQ(arguments->rgvarg[0].vt, VT_BYREF | VT_BOOL);
    EXPECT_EQ(arguments->rgvarg[1].vt, VT_BYREF | VT_BOOL);
    captions.push_back(
        Client(ComPointer<IDispatch>(arguments->rgvarg[2].pdispVal)).Text(L"Caption"));
    if (onClick) onClick();
    return S_OK;
  }

  ULONG references = 0;
  std::vector<std::string> captions;
  std::function<void()> onClick;
};

class ClickEvents : public AutomationTest {
 protected:
  ClickEvents() {
    const Client bar = Bars().Object(L"Add", {Variant("Tools of mine")});
    button = std::make_unique<Client>(bar.Object(L"Controls").Object(L"Add"));
    button->Put(L"Caption", Variant("Press"));
    button->Put(L"Tag", Variant("mine.press"));
  }

  /// The events object, which is no automation object.
  ComPointer<IUnknown> EventsOf(const Client& control) {
    const Answer answer =
        Vbe().Object(L"Events").Call(L"CommandBarEvents", {Variant(control.Raw())});
    EXPECT_EQ(answer.value.Type(), VT_UNKNOWN);
    return answer.value.ToUnknown();
  }

  ComPointer<IConnectionPoint> PointOf(const ComPointer<IUnknown>& events) {
    ComPointer<IConnectionPoint> point;
    EXPECT_EQ(events.As<IConnectionPointContainer>(IID_IConnectionPointContainer)
                  ->FindConnectionPoint(kSource, point.Receive()),
              S_OK);
    return point;
  }

  void Click() { EXPECT_EQ(button->Call(L"Execute").result, S_OK); }

  std::unique_ptr<Client> button;
};

TEST_F(ClickEvents, TellASinkOfEachClick) {
  Sink sink;
  const auto events = EventsOf(*button);
  DWORD cookie = 0;
  const auto point = PointOf(events);
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  Click();
  EXPECT_THAT(sink.captions, ::testing::ElementsAre("Press"));
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(sink.references, 0u);
  Click();
  EXPECT_THAT(sink.captions, ::testing::SizeIs(1));
}

TEST_F(ClickEvents, StopWhenTheEventsObjectIsReleased) {
  Sink sink;
  auto events = EventsOf(*button);
  DWORD cookie = 0;
  ASSERT_EQ(PointOf(events)->Advise(&sink, &cookie), S_OK);
  events = nullptr;
  EXPECT_EQ(sink.references, 0u);
  Click();
  EXPECT_THAT(sink.captions, IsEmpty());
}

TEST_F(ClickEvents, MayEndInTheirOwnClick) {
  Sink sink;
  const auto events = EventsOf(*button);
  const auto point = PointOf(events);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  sink.onClick = [&] { EXPECT_EQ(point->Unadvise(cookie), S_OK); };
  Click();
  Click();
  EXPECT_THAT(sink.captions, ::testing::SizeIs(1));
}

TEST_F(ClickEvents, ReachNobodyWhenTheSessionHasEnded) {
  Sink sink;
  const auto events = EventsOf(*button);
  DWORD cookie = 0;
  ASSERT_EQ(PointOf(events)->Advise(&sink, &cookie), S_OK);
  session->End();
  EXPECT_EQ(sink.references, 0u);
}

TEST_F(ClickEvents, HaveOnePointAndNoOther) {
  const auto events = EventsOf(*button);
  const auto container = events.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
  ComPointer<IConnectionPoint> none;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, none.Receive()), CONNECT_E_NOCONNECTION);
  ComPointer<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
  ComPointer<IConnectionPoint> point;
  ULONG fetched = 0;
  ASSERT_EQ(points->Next(1, point.Receive(), &fetched), S_OK);
  IID iid{};
  EXPECT_EQ(point->GetConnectionInterface(&iid), S_OK);
  EXPECT_TRUE(IsEqualIID(iid, kSource));
  EXPECT_EQ(points->Skip(1), S_FALSE);
}

TEST_F(ClickEvents, NameTheInterfaceThatTheyCall) {
  const auto info = EventsOf(*button).As<IProvideClassInfo2>(IID_IProvideClassInfo2);
  ASSERT_TRUE(info);
  GUID guid{};
  EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &guid), S_OK);
  EXPECT_TRUE(IsEqualIID(guid, kSource));
}

TEST_F(ClickEvents, ListTheirConnections) {
  Sink sink;
  const auto events = EventsOf(*button);
  const auto point = PointOf(events);
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  {
    ComPointer<IEnumConnections> connections;
    ASSERT_EQ(point->EnumConnections(connections.Receive()), S_OK);
    CONNECTDATA connection{};
    ASSERT_EQ(connections->Next(1, &connection, nullptr), S_OK);
    EXPECT_EQ(connection.dwCookie, cookie);
    connection.pUnk->Release();
  }
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(sink.references, 0u);
}

TEST_F(ClickEvents, RefuseWhatIsNoSink) {
  const auto events = EventsOf(*button);
  DWORD cookie = 0;
  EXPECT_EQ(PointOf(events)->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(PointOf(events)->Advise(events.get(), &cookie), CONNECT_E_CANNOTCONNECT);
}

}  // namespace click_events_test
}  // namespace brimwork::bench
