#include "windows/object_model/connection.h"

#include <algorithm>

namespace brimwork::windows {

HRESULT MemberNames::Find(IDispatch& object, std::wstring_view name, DISPID& id) {
  const auto found = std::ranges::find(known_, name, [](const auto& known) { return known.first; });
  if (found != known_.end()) {
    id = found->second;
    return S_OK;
  }
  OLECHAR* names[] = {const_cast<OLECHAR*>(name.data())};
  const HRESULT status = object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(status)) known_.emplace_back(name, id);
  return status;
}

}  // namespace brimwork::windows
