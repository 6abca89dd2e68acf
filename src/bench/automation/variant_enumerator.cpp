#include "bench/automation/variant_enumerator.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "bench/automation/counted_object.h"
#include "bench/automation/session.h"

namespace brimwork::bench {
namespace {

class VariantEnumerator final : public IEnumVARIANT, public CountedObject {
 public:
  VariantEnumerator(std::shared_ptr<Session> session, std::vector<win32::Variant> values,
                    std::size_t next)
      : CountedObject(std::move(session), "IEnumVARIANT"),
        values_(std::move(values)),
        next_(next) {}

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IEnumVARIANT)) return E_NOINTERFACE;
    *object = static_cast<IEnumVARIANT*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return CountedObject::Count(); }
  STDMETHODIMP_(ULONG) Release() override { return Uncount(); }

  STDMETHODIMP Next(ULONG count, VARIANT* values, ULONG* fetched) override {
    if (values == nullptr) return E_POINTER;
    ULONG given = 0;
    for (; given < count && next_ < values_.size(); ++given) {
      VariantInit(&values[given]);
      const HRESULT copied =
          VariantCopy(&values[given], const_cast<VARIANT*>(&values_[next_++].Get()));
      if (FAILED(copied)) return copied;
    }
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }

  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t skipped = std::min<std::size_t>(count, values_.size() - next_);
    next_ += skipped;
    return skipped == count ? S_OK : S_FALSE;
  }

  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }

  STDMETHODIMP Clone(IEnumVARIANT** copy) override {
    if (copy == nullptr) return E_POINTER;
    *copy = new VariantEnumerator(TheSession().shared_from_this(), values_, next_);
    (*copy)->AddRef();
    return S_OK;
  }

 private:
  std::vector<win32::Variant> values_;
  std::size_t next_;
};

}  // namespace

win32::Variant NewEnumerator(Session& session, std::vector<win32::Variant> values) {
  return win32::Variant(static_cast<IUnknown*>(
      new VariantEnumerator(session.shared_from_this(), std::move(values), 0)));
}

}  // namespace brimwork::bench
