#include "windows/object_model/click_connection.h"

namespace brimwork::windows {
namespace {

using win32::ComPointer;

constexpr IID kVisualBasicClicks = {
    0x0002E198, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
constexpr IID kEditorClicks = {
    0x0002E131, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

ClickConnection Advise(ComPointer<IConnectionPoint> point, const IID& iid, ClickSink& sink) {
  sink.SpeakFor(iid);
  ClickConnection connection;
  if (SUCCEEDED(point->Advise(&sink, &connection.cookie))) connection.point = std::move(point);
  return connection;
}

ClickConnection AdviseFor(IConnectionPointContainer& container, const IID& iid, ClickSink& sink) {
  ComPointer<IConnectionPoint> point;
  const HRESULT status = container.FindConnectionPoint(iid, point.Receive());
  if (FAILED(status) || !point) return {};
  return Advise(std::move(point), iid, sink);
}

ClickConnection AdviseAny(IConnectionPointContainer& container, ClickSink& sink) {
  ComPointer<IEnumConnectionPoints> points;
  if (FAILED(container.EnumConnectionPoints(points.Receive())) || !points) return {};
  ComPointer<IConnectionPoint> point;
  while (points->Next(1, point.Receive(), nullptr) == S_OK) {
    IID iid;
    if (FAILED(point->GetConnectionInterface(&iid))) continue;
    if (auto connection = Advise(point, iid, sink); connection.point) return connection;
  }
  return {};
}

}  // namespace

ClickConnection ConnectClicks(const ComPointer<IUnknown>& events, ClickSink& sink) {
  const auto container = events.As<IConnectionPointContainer>();
  if (!container) return {};
  for (const IID& iid : {kVisualBasicClicks, kEditorClicks}) {
    if (auto connection = AdviseFor(*container, iid, sink); connection.point) return connection;
  }
  return AdviseAny(*container, sink);
}

}  // namespace brimwork::windows
