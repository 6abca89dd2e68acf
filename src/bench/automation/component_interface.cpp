// The components of a project in the object model.

#include "bench/automation/collection.h"
#include "bench/automation/from_disk.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"
#include "memory/utf8_path.h"

namespace brimwork::bench {
namespace component_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }
WorkProject& Project(Call& call) { return call.The<WorkProject>(); }

Variant Item(Call& call) {
  return EntryOf(call, Project(call).Components(),
                 [](WorkComponent& component, const std::string& name) {
                   return EqualNames(component.Name(), name);
                 });
}
Variant CountOfComponents(Call& call) { return CountOf(Project(call).Components()); }
Variant EnumerateComponents(Call& call) { return EnumeratorOf(call, Project(call).Components()); }
Variant ParentOfComponents(Call& call) { return ObjectOf(call, call.Shared<WorkProject>()); }

Variant Add(Call& call) {
  const auto added = Project(call).AddVBComponent(static_cast<int>(call.Long(0)));
  return ObjectOf(call, std::static_pointer_cast<WorkComponent>(added));
}

Variant Remove(Call& call) {
  Project(call).Remove(*ArgumentOf<WorkComponent>(call, 0, kVbComponent));
  return Variant();
}

WorkComponent& Self(Call& call) { return call.The<WorkComponent>(); }

Variant Name(Call& call) { return Variant(Self(call).Name()); }
Variant SetName(Call& call) {
  Self(call).SetName(call.Text(0));
  return Variant();
}
Variant Type(Call& call) { return Variant(Self(call).Type()); }
Variant SaveAs(Call& call) {
  const std::string path = call.Text(0);
  FromDisk([&] { Self(call).SaveAs(PathOf(path)); });
  return Variant();
}
Variant IsDirty(Call& call) { return Variant(Self(call).IsDirty()); }

Variant FileNames(Call& call) {
  if (call.Long(0) != 1) RaiseNoSuchEntry();
  return Variant(Self(call).Path().string());
}
Variant FileCount(Call& call) {
  return Variant(static_cast<short>(Self(call).Path().empty() ? 0 : 1));
}

Variant ModuleOfComponent(Call& call) { return CodeModuleOf(call, call.Shared<WorkComponent>()); }

Variant HasOpenDesigner(Call& call) {
  return Variant(WorkbenchOf(call).OpenDesignerOf(Self(call)) != nullptr);
}
Variant DesignerWindow(Call& call) {
  return ObjectOf(call, WorkbenchOf(call).DesignerOf(call.Shared<WorkComponent>()));
}

// What has a designer shows it, anything else its code.
Variant Activate(Call& call) {
  const auto& self = call.Shared<WorkComponent>();
  if (WorkbenchOf(call).DesignerOf(self) == nullptr) WorkbenchOf(call).PaneOf(self);
  return Variant();
}

Variant Collection(Call& call) {
  return call.TheSession().ObjectFor(kVbComponents, WorkbenchOf(call).ProjectOf(Self(call)));
}

Variant Description(Call& call) { return Variant(Self(call).description); }
Variant SetDescription(Call& call) {
  Self(call).description = call.Text(0);
  return Variant();
}

constexpr Member kVbComponentsMembers[] = {
    Method(L"Item", DISPID_VALUE, Item, Parameters(L"index")),
    Get(L"Parent", 0x2, ParentOfComponents),
    Get(L"Count", 0xA, CountOfComponents),
    Method(L"Remove", 0xB, Remove, Parameters(L"VBComponent")),
    Method(L"Add", 0xC, Add, Parameters(L"ComponentType")),
    Get(L"VBE", 0x14, VbeOf),
    Get(L"StartUpObject", 0x15, NotOffered),
    Method(L"AddFile", 0x16, NotOffered, Parameters(L"PathName", L"?RelatedDocument")),
    Method(L"AddFromTemplate", 0x17, NotOffered, Parameters(L"FileName")),
    Method(L"AddCustom", 0x18, NotOffered, Parameters(L"ProgId")),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateComponents),
};

constexpr Member kVbComponentMembers[] = {
    Get(L"IsDirty", 0xA, IsDirty),
    Get(L"FileNames", 0xB, FileNames, Parameters(L"index")),
    Method(L"SaveAs", 0xC, SaveAs, Parameters(L"FileName")),
    Get(L"FileCount", 0xD, FileCount),
    Get(L"IconState", 0xE, NotOffered),
    Method(L"InsertFile", 0x2E, NotOffered, Parameters(L"FileName")),
    Method(L"Reload", 0x2F, NotOffered),
    GetPut(L"Name", 0x30, Name, SetName),
    Get(L"Designer", 0x31, NotOffered),
    Get(L"CodeModule", 0x32, ModuleOfComponent),
    Get(L"Type", 0x33, Type),
    Get(L"VBE", 0x35, VbeOf),
    Get(L"Collection", 0x36, Collection),
    Get(L"HasOpenDesigner", 0x37, HasOpenDesigner),
    Get(L"Properties", 0x38, NotOffered),
    Method(L"DesignerWindow", 0x39, DesignerWindow),
    Method(L"ReadProperty", 0x3A, NotOffered, Parameters(L"Key")),
    Method(L"WriteProperty", 0x3B, NotOffered, Parameters(L"Key", L"Value")),
    Method(L"Activate", 0x3C, Activate),
    Get(L"HelpContextID", 0x3D, NotOffered),
    GetPut(L"Description", 0x3E, Description, SetDescription),
    Get(L"DesignerID", 0x3F, NotOffered),
};

}  // namespace component_interface

constinit const InterfaceTable kVbComponents{"VBComponents", iid::kVbComponents,
                                             component_interface::kVbComponentsMembers};
constinit const InterfaceTable kVbComponent{"VBComponent", iid::kVbComponent,
                                            component_interface::kVbComponentMembers};

}  // namespace brimwork::bench
