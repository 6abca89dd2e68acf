#include "bench/automation/list_enumerators.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "bench/automation/counted_object.h"
#include "bench/automation/session.h"

namespace brimwork::bench {
namespace {

/// What the two have in common. Kind has the interface, its identifier and name, the type of an
/// entry as it is kept and as it is given, and the way from the one to the other.
template <typename Kind>
class ListEnumerator final : public Kind::Interface, public CountedObject {
 public:
  using Entries = std::vector<typename Kind::Kept>;

  ListEnumerator(std::shared_ptr<Session> session, Entries entries, std::size_t next)
      : CountedObject(std::move(session), Kind::kName), entries_(std::move(entries)), next_(next) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, Kind::Identifier())) {
      return E_NOINTERFACE;
    }
    *object = static_cast<typename Kind::Interface*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return CountedObject::Count(); }
  STDMETHODIMP_(ULONG) Release() override { return Uncount(); }

  STDMETHODIMP Next(ULONG count, typename Kind::Given* given, ULONG* fetched) override {
    if (given == nullptr) return E_POINTER;
    ULONG done = 0;
    for (; done < count && next_ < entries_.size(); ++done) {
      given[done] = Kind::Give(entries_[next_++]);
    }
    if (fetched != nullptr) *fetched = done;
    return done == count ? S_OK : S_FALSE;
  }

  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t skipped = std::min<std::size_t>(count, entries_.size() - next_);
    next_ += skipped;
    return skipped == count ? S_OK : S_FALSE;
  }

  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }

  STDMETHODIMP Clone(typename Kind::Interface** copy) override {
    if (copy == nullptr) return E_POINTER;
    *copy = New(TheSession(), entries_, next_);
    return S_OK;
  }

  static typename Kind::Interface* New(Session& session, Entries entries, std::size_t next) {
    auto* const made = new ListEnumerator(session.shared_from_this(), std::move(entries), next);
    made->AddRef();
    return made;
  }

 private:
  Entries entries_;
  std::size_t next_;
};

struct PointKind {
  using Interface = IEnumConnectionPoints;
  using Kept = win32::ComPointer<IConnectionPoint>;
  using Given = IConnectionPoint*;
  static constexpr const char* kName = "IEnumConnectionPoints";
  static const IID& Identifier() { return IID_IEnumConnectionPoints; }
  static Given Give(Kept kept) { return kept.Release(); }
};

struct ConnectionKind {
  using Interface = IEnumConnections;
  using Kept = ClickSinks::Connection;
  using Given = CONNECTDATA;
  static constexpr const char* kName = "IEnumConnections";
  static const IID& Identifier() { return IID_IEnumConnections; }
  static Given Give(Kept kept) { return {kept.sink.Release(), kept.cookie}; }
};

}  // namespace

IEnumConnectionPoints* NewConnectionPointEnumerator(
    Session& session, std::vector<win32::ComPointer<IConnectionPoint>> points) {
  return ListEnumerator<PointKind>::New(session, std::move(points), 0);
}

IEnumConnections* NewConnectionEnumerator(Session& session,
                                          std::vector<ClickSinks::Connection> connections) {
  return ListEnumerator<ConnectionKind>::New(session, std::move(connections), 0);
}

}  // namespace brimwork::bench
