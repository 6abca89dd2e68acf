// Late-bound calls of IExtensibility.
#pragma once

#include "windows/component/extensibility.h"

namespace brimwork::windows {

/// The numbers of a method and its arguments by their names, in any letter case. As GetIDsOfNames
/// returns: DISP_E_UNKNOWNNAME when one of them is not known, which then has DISPID_UNKNOWN.
HRESULT FindExtensibilityNames(LPOLESTR* names, UINT count, DISPID* ids);

/// Calls the method of that number. Arguments may come by name, by reference and as variants;
/// custom may be left out. Returns what Invoke returns: DISP_E_MEMBERNOTFOUND,
/// DISP_E_BADPARAMCOUNT, DISP_E_TYPEMISMATCH, or the method's own result. Throws std::bad_alloc.
HRESULT InvokeExtensibility(IExtensibility& object, DISPID method, WORD kind,
                            const DISPPARAMS* parameters);

}  // namespace brimwork::windows
