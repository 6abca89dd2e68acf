#include "bench/automation/click_events.h"

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

#include <utility>

#include "bench/automation/click_sinks.h"
#include "bench/automation/counted_object.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "bench/automation/list_enumerators.h"
#include "bench/automation/session.h"

namespace brimwork::bench {
namespace {

/// The events object and its one connection point, which live and die together.
class ClickEvents final : public IConnectionPointContainer,
                          public IProvideClassInfo2,
                          public CountedObject {
 public:
  ClickEvents(std::shared_ptr<Session> session, MemoryCommandBarControl& control)
      : CountedObject(session, "CommandBarEvents"), point_(*this) {
    binding_ = session->TheWorkbench().vbe.commandBars.EventsOf(
        control,
        [this](CommandBarControl& clicked, ClickAnswer& answer) { Tell(clicked, answer); });
    ending_ = session->OnEnd([this] { Fall(); });
  }

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = Find(iid);
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return Count(); }
  STDMETHODIMP_(ULONG) Release() override { return Uncount(); }

  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** enumerator) override {
    if (enumerator == nullptr) return E_POINTER;
    *enumerator =
        NewConnectionPointEnumerator(TheSession(), {win32::ComPointer<IConnectionPoint>(&point_)});
    return S_OK;
  }

  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override {
    if (point == nullptr) return E_POINTER;
    *point = nullptr;
    if (!IsEqualIID(iid, iid::kClickEventsSource)) return CONNECT_E_NOCONNECTION;
    *point = &point_;
    AddRef();
    return S_OK;
  }

  // There is no type library to describe the class in.
  STDMETHODIMP GetClassInfo(ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return E_NOTIMPL;
  }

  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override {
    if (guid == nullptr) return E_POINTER;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    *guid = iid::kClickEventsSource;
    return S_OK;
  }

 private:
  class Point final : public IConnectionPoint {
   public:
    explicit Point(ClickEvents& owner) : owner_(owner) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
      if (object == nullptr) return E_POINTER;
      *object = nullptr;
      if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IConnectionPoint)) {
        return E_NOINTERFACE;
      }
      *object = static_cast<IConnectionPoint*>(this);
      AddRef();
      return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }

    STDMETHODIMP GetConnectionInterface(IID* iid) override {
      if (iid == nullptr) return E_POINTER;
      *iid = iid::kClickEventsSource;
      return S_OK;
    }
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override {
      if (container == nullptr) return E_POINTER;
      *container = &owner_;
      owner_.AddRef();
      return S_OK;
    }
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override {
      return owner_.sinks_.Add(sink, cookie);
    }
    STDMETHODIMP Unadvise(DWORD cookie) override { return owner_.sinks_.Remove(cookie); }
    STDMETHODIMP EnumConnections(IEnumConnections** enumerator) override {
      if (enumerator == nullptr) return E_POINTER;
      *enumerator = NewConnectionEnumerator(owner_.TheSession(), owner_.sinks_.All());
      return S_OK;
    }

   private:
    ClickEvents& owner_;
  };

  void* Find(REFIID iid) {
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, iid::kClickEvents) ||
        IsEqualIID(iid, IID_IConnectionPointContainer)) {
      return static_cast<IConnectionPointContainer*>(this);
    }
    if (IsEqualIID(iid, IID_IProvideClassInfo) || IsEqualIID(iid, IID_IProvideClassInfo2)) {
      return static_cast<IProvideClassInfo2*>(this);
    }
    return nullptr;
  }

  void Tell(CommandBarControl& clicked, ClickAnswer& answer) {
    const win32::ComPointer<IConnectionPointContainer> staysWhileItTells(this);
    const auto control = static_cast<MemoryCommandBarControl&>(clicked).shared_from_this();
    const win32::Variant object = TheSession().ObjectFor(
        control->Entries() == nullptr ? kCommandBarButton : kCommandBarPopup, control);
    sinks_.Click(object, answer);
  }

  void Fall() {
    binding_.reset();
    sinks_.RemoveAll();
  }

  Point point_;
  ClickSinks sinks_;
  std::unique_ptr<CommandBarEvents> binding_;
  std::shared_ptr<void> ending_;
};

}  // namespace

win32::Variant NewClickEvents(Session& session,
                              const std::shared_ptr<MemoryCommandBarControl>& control) {
  auto* const events = new ClickEvents(session.shared_from_this(), *control);
  return win32::Variant(static_cast<IUnknown*>(static_cast<IConnectionPointContainer*>(events)));
}

}  // namespace brimwork::bench
