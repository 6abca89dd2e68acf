// The projects of the object model.

#include "bench/automation/collection.h"
#include "bench/automation/from_disk.h"
#include "bench/automation/identifiers.h"
#include "bench/automation/interfaces.h"
#include "environment/text.h"
#include "memory/utf8_path.h"

namespace brimwork::bench {
namespace project_interface {

using win32::Variant;

Workbench& WorkbenchOf(Call& call) { return call.TheSession().TheWorkbench(); }

Variant Item(Call& call) {
  return EntryOf(call, WorkbenchOf(call).Projects(),
                 [](WorkProject& project, const std::string& name) {
                   return EqualNames(project.Name(), name);
                 });
}
Variant CountOfProjects(Call& call) { return CountOf(WorkbenchOf(call).Projects()); }
Variant EnumerateProjects(Call& call) { return EnumeratorOf(call, WorkbenchOf(call).Projects()); }

Variant FileNameOfGroup(Call&) { return Variant(""); }

Variant StartProject(Call& call) {
  const auto& projects = WorkbenchOf(call).Projects();
  return ObjectOf(call, projects.empty() ? nullptr : projects.front());
}

// A project that is opened alone takes the place of those that are open.
Variant AddFromFile(Call& call) {
  const std::filesystem::path path = PathOf(call.Text(0));
  Workbench& workbench = WorkbenchOf(call);
  FromDisk([&] {
    if (call.BoolOr(1, false)) {
      workbench.Open(path);
    } else {
      workbench.OpenBeside(path);
    }
  });
  return VbProjectsOf(call);
}

WorkProject& Self(Call& call) { return call.The<WorkProject>(); }

Variant Name(Call& call) { return Variant(Self(call).Name()); }
Variant SetName(Call& call) {
  Self(call).SetName(call.Text(0));
  return Variant();
}
Variant FileName(Call& call) { return Variant(Self(call).Path().string()); }
Variant IsDirty(Call& call) { return Variant(Self(call).IsDirty()); }
Variant Saved(Call& call) { return Variant(!Self(call).IsDirty()); }
Variant HelpFile(Call& call) { return Variant(Self(call).helpFile); }
Variant Description(Call& call) { return Variant(Self(call).description); }
Variant SetDescription(Call& call) {
  Self(call).description = call.Text(0);
  return Variant();
}
Variant SetHelpFile(Call& call) {
  Self(call).helpFile = call.Text(0);
  return Variant();
}
Variant Type(Call& call) { return Variant(Self(call).Type()); }

Variant BuildFileName(Call& call) { return Variant(Self(call).Name() + ".exe"); }

Variant Components(Call& call) {
  return call.TheSession().ObjectFor(kVbComponents, call.Shared<WorkProject>());
}

constexpr Member kVbProjectsMembers[] = {
    Method(L"Item", DISPID_VALUE, Item, Parameters(L"index")),
    Get(L"Parent", 0x2, VbeOf),
    Get(L"Count", 0xA, CountOfProjects),
    Get(L"VBE", 0x14, VbeOf),
    Method(L"Add", 0x80, NotOffered, Parameters(L"Type", L"?Exclusive", L"?Open")),
    Method(L"AddFromTemplate", 0x81, NotOffered, Parameters(L"Path", L"?Exclusive")),
    Method(L"AddFromFile", 0x82, AddFromFile, Parameters(L"Path", L"?Exclusive")),
    Method(L"Remove", 0x83, NotOffered, Parameters(L"lpc")),
    Get(L"StartProject", 0x84, StartProject),
    Method(L"FileName", 0x85, FileNameOfGroup),
    Get(L"IconState", 0x86, NotOffered),
    Method(L"SaveAs", 0x87, NotOffered, Parameters(L"newVal")),
    Get(L"_NewEnum", DISPID_NEWENUM, EnumerateProjects),
};

constexpr Member kVbProjectMembers[] = {
    GetPut(L"Name", DISPID_VALUE, Name, SetName),
    Method(L"AddToolboxProgID", 0x69, NotOffered, Parameters(L"ProgID", L"?FileName")),
    Get(L"FileName", 0x6D, FileName),
    Get(L"IsDirty", 0x6E, IsDirty),
    Method(L"WriteProperty", 0x6F, NotOffered, Parameters(L"Section", L"Key", L"Value")),
    Method(L"ReadProperty", 0x70, NotOffered, Parameters(L"Section", L"Key")),
    GetPut(L"HelpFile", 0x74, HelpFile, SetHelpFile),
    Get(L"HelpContextID", 0x75, NotOffered),
    GetPut(L"Description", 0x76, Description, SetDescription),
    Get(L"References", 0x78, NotOffered),
    Get(L"VBE", 0x7A, VbeOf),
    Get(L"Collection", 0x7B, VbProjectsOf),
    Get(L"StartMode", 0x7D, NotOffered),
    Get(L"CompatibleOleServer", 0x7E, NotOffered),
    Method(L"SaveAs", 0x7F, NotOffered, Parameters(L"newVal")),
    Method(L"MakeCompiledFile", 0x80, NotOffered),
    Get(L"Type", 0x81, Type),
    Get(L"IconState", 0x82, NotOffered),
    Get(L"Saved", 0x85, Saved),
    Get(L"VBComponents", 0x87, Components),
    Get(L"BuildFileName", 0x88, BuildFileName),
};

}  // namespace project_interface

constinit const InterfaceTable kVbProjects{"VBProjects", iid::kVbProjects,
                                           project_interface::kVbProjectsMembers};
constinit const InterfaceTable kVbProject{"VBProject", iid::kVbProject,
                                          project_interface::kVbProjectMembers};

}  // namespace brimwork::bench
