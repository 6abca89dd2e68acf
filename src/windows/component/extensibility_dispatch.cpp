#include "windows/component/extensibility_dispatch.h"

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <string_view>

#include "environment/run_time_error.h"
#include "win32/variant.h"

namespace brimwork::windows {
namespace {

/// Its parameters, without the last one, custom, which nobody needs.
struct Method {
  std::wstring_view name;
  DISPID id;
  std::span<const std::wstring_view> parameters;
};

constexpr std::wstring_view kCustom = L"custom";
constexpr std::wstring_view kConnectionParameters[] = {L"Application", L"ConnectMode",
                                                       L"AddInInst"};
constexpr std::wstring_view kDisconnectionParameters[] = {L"RemoveMode"};

constexpr Method kMethods[] = {
    {L"OnConnection", extensibility_method::kOnConnection, kConnectionParameters},
    {L"OnDisconnection", extensibility_method::kOnDisconnection, kDisconnectionParameters},
    {L"OnAddInsUpdate", extensibility_method::kOnAddInsUpdate, {}},
    {L"OnStartupComplete", extensibility_method::kOnStartupComplete, {}},
    {L"OnBeginShutdown", extensibility_method::kOnBeginShutdown, {}},
};

constexpr std::size_t kMostParameters = 3;

bool IsName(std::wstring_view known, const wchar_t* asked) {
  return asked != nullptr && lstrcmpiW(known.data(), asked) == 0;
}

const Method* MethodOf(DISPID id) {
  const auto method = std::find_if(std::begin(kMethods), std::end(kMethods),
                                   [id](const Method& each) { return each.id == id; });
  return method == std::end(kMethods) ? nullptr : &*method;
}

const Method* MethodOf(const wchar_t* name) {
  const auto method = std::find_if(std::begin(kMethods), std::end(kMethods),
                                   [name](const Method& each) { return IsName(each.name, name); });
  return method == std::end(kMethods) ? nullptr : &*method;
}

/// A parameter's number is its place.
DISPID ParameterOf(const Method& method, const wchar_t* name) {
  const auto& known = method.parameters;
  const auto found = std::find_if(known.begin(), known.end(),
                                  [name](std::wstring_view each) { return IsName(each, name); });
  if (found != known.end() || IsName(kCustom, name)) {
    return static_cast<DISPID>(found - known.begin());
  }
  return DISPID_UNKNOWN;
}

/// The arguments in the order of the parameters; missing where one was left out.
using Arguments = std::array<win32::Variant, kMostParameters + 1>;

void Take(VARIANT& given, win32::Variant& argument) {
  if (FAILED(VariantCopyInd(argument.Receive(), &given))) {
    throw RunTimeError(error_number::kTypeMismatch, "Type mismatch");
  }
}

/// False when arguments are missing or when there are too many.
bool Sort(const Method& method, const DISPPARAMS& given, Arguments& sorted) {
  const std::size_t required = method.parameters.size();
  std::fill(sorted.begin(), sorted.end(), win32::Variant::Missing());
  for (UINT i = 0; i < given.cArgs; ++i) {
    const bool isNamed = i < given.cNamedArgs;
    const auto place = static_cast<std::size_t>(isNamed ? given.rgdispidNamedArgs[i]
                                                        : static_cast<DISPID>(given.cArgs - 1 - i));
    if (place > required) return false;
    Take(given.rgvarg[i], sorted[place]);
  }
  return std::none_of(sorted.begin(), sorted.begin() + static_cast<std::ptrdiff_t>(required),
                      [](const win32::Variant& argument) { return argument.IsMissing(); });
}

HRESULT Call(IExtensibility& object, DISPID method, const Arguments& arguments) {
  switch (method) {
    case extensibility_method::kOnConnection:
      return object.OnConnection(arguments[0].ToObject().get(), arguments[1].ToLong(),
                                 arguments[2].ToObject().get(), nullptr);
    case extensibility_method::kOnDisconnection:
      return object.OnDisconnection(arguments[0].ToLong(), nullptr);
    case extensibility_method::kOnAddInsUpdate:
      return object.OnAddInsUpdate(nullptr);
    case extensibility_method::kOnStartupComplete:
      return object.OnStartupComplete(nullptr);
    default:
      return object.OnBeginShutdown(nullptr);
  }
}

}  // namespace

HRESULT FindExtensibilityNames(LPOLESTR* names, UINT count, DISPID* ids) {
  if (names == nullptr || ids == nullptr) return E_POINTER;
  if (count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const Method* const method = MethodOf(names[0]);
  if (method == nullptr) return DISP_E_UNKNOWNNAME;
  ids[0] = method->id;
  for (UINT i = 1; i < count; ++i) ids[i] = ParameterOf(*method, names[i]);
  return std::find(ids, ids + count, DISPID_UNKNOWN) == ids + count ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT InvokeExtensibility(IExtensibility& object, DISPID method, WORD kind,
                            const DISPPARAMS* parameters) {
  const Method* const called = MethodOf(method);
  if (called == nullptr || (kind & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
  if (parameters == nullptr) return E_INVALIDARG;
  try {
    Arguments arguments;
    if (!Sort(*called, *parameters, arguments)) return DISP_E_BADPARAMCOUNT;
    return Call(object, method, arguments);
  } catch (const RunTimeError&) {
    return DISP_E_TYPEMISMATCH;
  }
}

}  // namespace brimwork::windows
