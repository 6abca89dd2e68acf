// The add-ins of the object model.
#include "bench/automation/add_ins_object.h"
#include "bench/automation/collection.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"

namespace brimwork::bench {

win32::Variant ObjectOf(Call& call, const std::shared_ptr<AddInEntry>& entry) {
  return call.TheSession().ObjectFor(kAddIn, entry);
}

win32::Variant AddInsOf(Call& call) {
  const std::shared_ptr<AddInList> list(std::shared_ptr<void>(), &call.TheSession().AddIns());
  return call.TheSession().ObjectFor(kAddIns, list);
}

namespace add_in_interface {

using win32::Variant;

AddInList& List(Call& call) { return call.The<AddInList>(); }

Variant Item(Call& call) {
  return EntryOf(call, List(call).Entries(), [](AddInEntry& entry, const std::string& progId) {
    return EqualNames(entry.ProgId(), progId);
  });
}
Variant CountOfAddIns(Call& call) { return CountOf(List(call).Entries()); }
Variant EnumerateAddIns(Call& call) { return EnumeratorOf(call, List(call).Entries()); }
Variant Update(Call& call) {
  List(call).Update();
  return Variant();
}

AddInEntry& Self(Call& call) { return call.The<AddInEntry>(); }

Variant ProgId(Call& call) { return Variant(Self(call).ProgId()); }
Variant Guid(Call& call) { return Variant(Self(call).Guid()); }
Variant Description(Call& call) { return Variant(Self(call).Description()); }
Variant SetDescription(Call& call) {
  Self(call).SetDescription(call.Text(0));
  return Variant();
}
Variant Connected(Call& call) { return Variant(Self(call).IsConnected()); }
Variant Connect(Call& call) {
  Self(call).Connect(call.Bool(0));
  return Variant();
}
Variant Object(Call& call) { return Variant(Self(call).Object()); }
Variant SetObject(Call& call) {
  Self(call).SetObject(call.Object(0));
  return Variant();
}

constexpr Member kAddInsMembers[] = {
    Method(L"Item", DISPID_VALUE, Item, Parameters(L"index")),
    Get(L"VBE", 0x1, VbeOf),
    Get(L"Parent", 0x2, VbeOf),
    Get(L"Count", 0x3, CountOfAddIns),
    Method(L"Update", 0x4, Update),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateAddIns),
};

constexpr Member kAddInMembers[] = {
    GetPut(L"Description", DISPID_VALUE, Description, SetDescription),
    Get(L"VBE", 0x1, VbeOf),
    Get(L"Collection", 0x2, AddInsOf),
    Get(L"ProgId", 0x3, ProgId),
    Get(L"Guid", 0x4, Guid),
    GetPut(L"Connect", 0x6, Connected, Connect),
    GetSet(L"Object", 0x7, Object, SetObject),
};

}  // namespace add_in_interface

constinit const InterfaceTable kAddIns{"Addins", iid::kAddIns, add_in_interface::kAddInsMembers};
constinit const InterfaceTable kAddIn{"AddIn", iid::kAddIn, add_in_interface::kAddInMembers};

}  // namespace brimwork::bench
