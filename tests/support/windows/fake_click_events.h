// The environment's object that tells of clicks, as a test scripts it: which event interfaces it
// has, and whom it has told to listen.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "win32/com_pointer.h"

namespace brimwork {

inline constexpr IID kVisualBasicClicks = {
    0x0002E198, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
inline constexpr IID kEditorClicks = {
    0x0002E131, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
inline constexpr IID kOtherClicks = {
    0x12345678, 0x1234, 0x1234, {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0}};

/// Counts references; it goes with the last one.
template <class... Interfaces>
class CountedFake : public Interfaces... {
 public:
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  ULONG References() const { return references_; }

 protected:
  virtual ~CountedFake() = default;

 private:
  ULONG references_ = 1;
};

class FakeConnectionPoint : public CountedFake<IConnectionPoint> {
 public:
  explicit FakeConnectionPoint(const IID& interfaceOfEvents) : iid(interfaceOfEvents) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID asked, void** object) override {
    const bool isKnown = IsEqualIID(asked, IID_IUnknown) || IsEqualIID(asked, IID_IConnectionPoint);
    *object = isKnown ? this : nullptr;
    if (isKnown) AddRef();
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* answer) override {
    *answer = iid;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
    if (FAILED(statusOfAdvise)) return statusOfAdvise;
    void* events = nullptr;
    if (FAILED(sink->QueryInterface(iid, &events))) return CONNECT_E_CANNOTCONNECT;
    *cookie = ++latest_;
    sinks[*cookie] = win32::ComPointer<IDispatch>::Adopt(static_cast<IDispatch*>(events));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override {
    ++timesUnadvised;
    if (FAILED(statusOfUnadvise)) return statusOfUnadvise;
    return sinks.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

  /// The one sink that listens; null when there is none.
  win32::ComPointer<IDispatch> Sink() const {
    return sinks.empty() ? nullptr : sinks.begin()->second;
  }

  IID iid;
  std::map<DWORD, win32::ComPointer<IDispatch>> sinks;
  HRESULT statusOfAdvise = S_OK;
  HRESULT statusOfUnadvise = S_OK;
  int timesUnadvised = 0;

 private:
  DWORD latest_ = 40;
};

using FakePoints = std::vector<win32::ComPointer<FakeConnectionPoint>>;

class FakePointEnumerator : public CountedFake<IEnumConnectionPoints> {
 public:
  explicit FakePointEnumerator(FakePoints points) : points_(std::move(points)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE Next(ULONG, IConnectionPoint** point, ULONG*) override {
    if (next_ == points_.size()) return S_FALSE;
    *point = win32::ComPointer<IConnectionPoint>(points_[next_++].get()).Release();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints**) override { return E_NOTIMPL; }

 private:
  FakePoints points_;
  std::size_t next_ = 0;
};

class FakeClickEvents : public CountedFake<IConnectionPointContainer> {
 public:
  static win32::ComPointer<FakeClickEvents> Make(const std::vector<IID>& interfaces) {
    auto events = win32::ComPointer<FakeClickEvents>::Adopt(new FakeClickEvents);
    for (const IID& iid : interfaces) {
      events->points.push_back(
          win32::ComPointer<FakeConnectionPoint>::Adopt(new FakeConnectionPoint(iid)));
    }
    return events;
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool isKnown =
        IsEqualIID(iid, IID_IUnknown) ||
        (IsEqualIID(iid, IID_IConnectionPointContainer) && isConnectionPointContainer);
    *object = isKnown ? this : nullptr;
    if (isKnown) AddRef();
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** answer) override {
    *answer = new FakePointEnumerator(points);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** answer) override {
    *answer = nullptr;
    for (const auto& point : points) {
      if (!IsEqualIID(point->iid, iid)) continue;
      *answer = win32::ComPointer<IConnectionPoint>(point.get()).Release();
      return S_OK;
    }
    return CONNECT_E_NOCONNECTION;
  }

  FakePoints points;
  bool isConnectionPointContainer = true;
};

}  // namespace brimwork
