// The numbers and kinds of the members, as clients that bound early have them compiled in.
#include <string>
#include <vector>

#include "bench/automation/automation_fixture.h"

namespace brimwork::bench {
namespace members_test {

using win32::Variant;

/// How a member is called.
enum Kinds { kGet = 1, kPut = 2, kSet = 4, kMethod = 8, kGetPut = 3, kGetSet = 7 };

struct Expected {
  const wchar_t* name;
  unsigned long id;
  int kinds;
};

constexpr unsigned long kNewEnum = static_cast<unsigned long>(DISPID_NEWENUM);

// A member is called in a way that it is called in no other case with DISP_E_MEMBERNOTFOUND; the
// arguments are wrong on purpose, so that nothing is done.
bool Has(const Client& object, const Expected& member, WORD kind, bool assigns) {
  const std::vector<Variant> tooMany(10, Variant::Missing());
  const auto id = static_cast<DISPID>(member.id);
  const std::vector<DISPID> named =
      assigns ? std::vector<DISPID>{DISPID_PROPERTYPUT} : std::vector<DISPID>{};
  return object.Invoke(id, kind, tooMany, named).result != DISP_E_MEMBERNOTFOUND;
}

void ExpectMembers(const Client& object, const std::vector<Expected>& members) {
  for (const Expected& member : members) {
    SCOPED_TRACE(win32::Narrow(member.name));
    EXPECT_EQ(static_cast<unsigned long>(object.IdOf(member.name)), member.id);
    EXPECT_EQ(Has(object, member, DISPATCH_PROPERTYPUT, true), (member.kinds & kPut) != 0);
    EXPECT_EQ(Has(object, member, DISPATCH_PROPERTYPUTREF, true), (member.kinds & kSet) != 0);
    // A get of an object passes wrong arguments on, so only the other kinds tell a method apart.
    if ((member.kinds & kMethod) != 0) {
      EXPECT_TRUE(Has(object, member, DISPATCH_METHOD, false));
      EXPECT_FALSE(Has(object, member, DISPATCH_PROPERTYGET, false));
    } else {
      EXPECT_FALSE(Has(object, member, DISPATCH_METHOD, false));
    }
  }
}

class Members : public AutomationTest {
 protected:
  Members() { OpenModule("Sub First()\r\nEnd Sub\r\n"); }

  Client NewBar() { return Bars().Object(L"Add"); }
};

TEST_F(Members, OfTheRoot) {
  ExpectMembers(Vbe(), {{L"Name", 0, kGet},
                        {L"FullName", 0xA, kGet},
                        {L"LastUsedPath", 0xB, kGetPut},
                        {L"Version", 0x64, kGet},
                        {L"ReadOnlyMode", 0x6A, kGet},
                        {L"VBProjects", 0x6B, kGet},
                        {L"CommandBars", 0x6C, kGet},
                        {L"CodePanes", 0x6D, kGet},
                        {L"Windows", 0x6E, kGet},
                        {L"Events", 0x6F, kGet},
                        {L"Addins", 0xC8, kGet},
                        {L"ActiveVBProject", 0xC9, kGetSet},
                        {L"SelectedVBComponent", 0xCA, kGet},
                        {L"TemplatePath", 0xCB, kGet},
                        {L"MainWindow", 0xCC, kGet},
                        {L"ActiveWindow", 0xCD, kGet},
                        {L"ActiveCodePane", 0xCE, kGetSet},
                        {L"Quit", 0xCF, kMethod},
                        {L"DisplayModel", 0xD0, kGet}});
}

TEST_F(Members, OfWindows) {
  ExpectMembers(Vbe().Object(L"Windows"), {{L"Item", 0, kMethod},
                                           {L"VBE", 1, kGet},
                                           {L"Parent", 2, kGet},
                                           {L"Count", 0xC9, kGet},
                                           {L"_NewEnum", kNewEnum, kGet},
                                           {L"CreateToolWindow", 0x12C, kMethod}});
}

TEST_F(Members, OfAWindow) {
  ExpectMembers(Vbe().Object(L"MainWindow"), {{L"VBE", 1, kGet},
                                              {L"Collection", 2, kGet},
                                              {L"Close", 0x63, kMethod},
                                              {L"Caption", 0x64, kGet},
                                              {L"Left", 0x65, kGetPut},
                                              {L"Top", 0x67, kGetPut},
                                              {L"Width", 0x69, kGetPut},
                                              {L"Visible", 0x6A, kGetPut},
                                              {L"Height", 0x6B, kGetPut},
                                              {L"WindowState", 0x6D, kGetPut},
                                              {L"SetFocus", 0x6F, kMethod},
                                              {L"Type", 0x70, kGet},
                                              {L"LinkedWindows", 0x74, kGet},
                                              {L"LinkedWindowFrame", 0x75, kGet},
                                              {L"HWnd", 0x78, kGet}});
}

TEST_F(Members, OfCodePanes) {
  ExpectMembers(Vbe().Object(L"CodePanes"), {{L"Item", 0, kMethod},
                                             {L"Parent", 0x60020000, kGet},
                                             {L"VBE", 0x60020001, kGet},
                                             {L"Count", 0x60020003, kGet},
                                             {L"_NewEnum", kNewEnum, kGet},
                                             {L"Current", 0x60020005, kGetSet}});
}

TEST_F(Members, OfACodePane) {
  ExpectMembers(Pane(), {{L"Collection", 0x60020000, kGet},
                         {L"VBE", 0x60020001, kGet},
                         {L"Window", 0x60020002, kGet},
                         {L"GetSelection", 0x60020003, kMethod},
                         {L"SetSelection", 0x60020004, kMethod},
                         {L"TopLine", 0x60020005, kGetPut},
                         {L"CountOfVisibleLines", 0x60020007, kGet},
                         {L"CodeModule", 0x60020008, kGet},
                         {L"Show", 0x60020009, kMethod},
                         {L"CodePaneView", 0x6002000A, kGet}});
}

TEST_F(Members, OfACodeModule) {
  ExpectMembers(Module(), {{L"Name", 0, kGetPut},
                           {L"Parent", 0x60020000, kGet},
                           {L"VBE", 0x60020001, kGet},
                           {L"AddFromString", 0x60020004, kMethod},
                           {L"AddFromFile", 0x60020005, kMethod},
                           {L"Lines", 0x60020006, kGet},
                           {L"CountOfLines", 0x60020007, kGet},
                           {L"InsertLines", 0x60020008, kMethod},
                           {L"DeleteLines", 0x60020009, kMethod},
                           {L"ReplaceLine", 0x6002000A, kMethod},
                           {L"ProcStartLine", 0x6002000B, kGet},
                           {L"ProcCountLines", 0x6002000C, kGet},
                           {L"ProcBodyLine", 0x6002000D, kGet},
                           {L"ProcOfLine", 0x6002000E, kGet},
                           {L"CountOfDeclarationLines", 0x6002000F, kGet},
                           {L"CreateEventProc", 0x60020010, kMethod},
                           {L"Find", 0x60020011, kMethod},
                           {L"CodePane", 0x60020012, kGet},
                           {L"Members", 0x60020013, kGet}});
}

TEST_F(Members, OfProjects) {
  ExpectMembers(Vbe().Object(L"VBProjects"), {{L"Item", 0, kMethod},
                                              {L"Parent", 0x2, kGet},
                                              {L"Count", 0xA, kGet},
                                              {L"VBE", 0x14, kGet},
                                              {L"Add", 0x80, kMethod},
                                              {L"AddFromTemplate", 0x81, kMethod},
                                              {L"AddFromFile", 0x82, kMethod},
                                              {L"Remove", 0x83, kMethod},
                                              {L"FileName", 0x85, kMethod},
                                              {L"SaveAs", 0x87, kMethod},
                                              {L"_NewEnum", kNewEnum, kGet}});
}

TEST_F(Members, OfAProject) {
  ExpectMembers(Vbe().Object(L"ActiveVBProject"), {{L"Name", 0x0, kGetPut},
                                                   {L"FileName", 0x6D, kGet},
                                                   {L"IsDirty", 0x6E, kGet},
                                                   {L"HelpFile", 0x74, kGetPut},
                                                   {L"Description", 0x76, kGetPut},
                                                   {L"References", 0x78, kGet},
                                                   {L"VBE", 0x7A, kGet},
                                                   {L"Collection", 0x7B, kGet},
                                                   {L"SaveAs", 0x7F, kMethod},
                                                   {L"MakeCompiledFile", 0x80, kMethod},
                                                   {L"Type", 0x81, kGet},
                                                   {L"Saved", 0x85, kGet},
                                                   {L"VBComponents", 0x87, kGet},
                                                   {L"BuildFileName", 0x88, kGet}});
}

TEST_F(Members, OfComponents) {
  ExpectMembers(Vbe().Object(L"ActiveVBProject").Object(L"VBComponents"),
                {{L"Item", 0, kMethod},
                 {L"Parent", 0x2, kGet},
                 {L"Count", 0xA, kGet},
                 {L"Remove", 0xB, kMethod},
                 {L"Add", 0xC, kMethod},
                 {L"VBE", 0x14, kGet},
                 {L"StartUpObject", 0x15, kGet},
                 {L"AddFile", 0x16, kMethod},
                 {L"AddFromTemplate", 0x17, kMethod},
                 {L"AddCustom", 0x18, kMethod},
                 {L"_NewEnum", kNewEnum, kGet}});
}

TEST_F(Members, OfAComponent) {
  ExpectMembers(Module().Object(L"Parent"), {{L"IsDirty", 0xA, kGet},
                                             {L"FileNames", 0xB, kGet},
                                             {L"SaveAs", 0xC, kMethod},
                                             {L"FileCount", 0xD, kGet},
                                             {L"InsertFile", 0x2E, kMethod},
                                             {L"Reload", 0x2F, kMethod},
                                             {L"Name", 0x30, kGetPut},
                                             {L"Designer", 0x31, kGet},
                                             {L"CodeModule", 0x32, kGet},
                                             {L"Type", 0x33, kGet},
                                             {L"VBE", 0x35, kGet},
                                             {L"Collection", 0x36, kGet},
                                             {L"HasOpenDesigner", 0x37, kGet},
                                             {L"Properties", 0x38, kGet},
                                             {L"DesignerWindow", 0x39, kMethod},
                                             {L"Activate", 0x3C, kMethod},
                                             {L"Description", 0x3E, kGetPut}});
}

TEST_F(Members, OfEvents) {
  ExpectMembers(Vbe().Object(L"Events"), {{L"VBProjectsEvents", 0xC8, kGet},
                                          {L"VBComponentsEvents", 0xC9, kGet},
                                          {L"ReferencesEvents", 0xCA, kGet},
                                          {L"CommandBarEvents", 0xCD, kGet},
                                          {L"FileControlEvents", 0xCE, kGet}});
}

TEST_F(Members, OfCommandBars) {
  ExpectMembers(Bars(), {{L"Item", 0, kGet},
                         {L"ActionControl", 0x60030000, kGet},
                         {L"ActiveMenuBar", 0x60030001, kGet},
                         {L"Add", 0x60030002, kMethod},
                         {L"Count", 0x60030003, kGet},
                         {L"FindControl", 0x60030008, kMethod},
                         {L"_NewEnum", kNewEnum, kGet}});
}

TEST_F(Members, OfACommandBar) {
  ExpectMembers(NewBar(),
                {{L"BuiltIn", 0x60040000, kGet},        {L"Controls", 0x60040003, kGet},
                 {L"Delete", 0x60040004, kMethod},      {L"Enabled", 0x60040005, kGetPut},
                 {L"FindControl", 0x60040007, kMethod}, {L"Height", 0x60040008, kGet},
                 {L"Index", 0x6004000A, kGet},          {L"Left", 0x6004000C, kGetPut},
                 {L"Name", 0x6004000E, kGetPut},        {L"NameLocal", 0x60040010, kGetPut},
                 {L"Parent", 0x60040012, kGet},         {L"Position", 0x60040013, kGetPut},
                 {L"RowIndex", 0x60040015, kGetPut},    {L"Protection", 0x60040017, kGetPut},
                 {L"Reset", 0x60040019, kMethod},       {L"ShowPopup", 0x6004001A, kMethod},
                 {L"Top", 0x6004001B, kGetPut},         {L"Type", 0x6004001D, kGet},
                 {L"Visible", 0x6004001E, kGetPut},     {L"Width", 0x60040020, kGet}});
}

TEST_F(Members, OfControls) {
  ExpectMembers(NewBar().Object(L"Controls"), {{L"Item", 0, kGet},
                                               {L"Add", 0x60030000, kMethod},
                                               {L"Count", 0x60030001, kGet},
                                               {L"Parent", 0x60030004, kGet},
                                               {L"_NewEnum", kNewEnum, kGet}});
}

const std::vector<Expected> kOfEveryControl = {
    {L"BeginGroup", 0x60040000, kGetPut}, {L"BuiltIn", 0x60040002, kGet},
    {L"Caption", 0x60040003, kGetPut},    {L"Copy", 0x60040006, kMethod},
    {L"Delete", 0x60040007, kMethod},     {L"DescriptionText", 0x60040008, kGetPut},
    {L"Enabled", 0x6004000A, kGetPut},    {L"Execute", 0x6004000C, kMethod},
    {L"Height", 0x6004000D, kGet},        {L"Id", 0x60040013, kGet},
    {L"Index", 0x60040014, kGet},         {L"Move", 0x60040016, kMethod},
    {L"Left", 0x60040017, kGet},          {L"OLEUsage", 0x60040018, kGetPut},
    {L"OnAction", 0x6004001A, kGetPut},   {L"Parent", 0x6004001C, kGet},
    {L"Parameter", 0x6004001D, kGetPut},  {L"Priority", 0x6004001F, kGetPut},
    {L"Reset", 0x60040021, kMethod},      {L"SetFocus", 0x60040022, kMethod},
    {L"Tag", 0x60040023, kGetPut},        {L"TooltipText", 0x60040025, kGetPut},
    {L"Top", 0x60040027, kGet},           {L"Type", 0x60040028, kGet},
    {L"Visible", 0x60040029, kGetPut},    {L"Width", 0x6004002B, kGet}};

TEST_F(Members, OfAButton) {
  const Client button = NewBar().Object(L"Controls").Object(L"Add");
  ExpectMembers(button, kOfEveryControl);
  ExpectMembers(button, {{L"BuiltInFace", 0x60050000, kGetPut},
                         {L"CopyFace", 0x60050002, kMethod},
                         {L"FaceId", 0x60050003, kGetPut},
                         {L"PasteFace", 0x60050005, kMethod},
                         {L"ShortcutText", 0x60050006, kGetPut},
                         {L"State", 0x60050008, kGetPut},
                         {L"Style", 0x6005000A, kGetPut}});
}

TEST_F(Members, OfAPopup) {
  constexpr int kPopup = 10;
  const Client popup = NewBar().Object(L"Controls").Object(L"Add", {Variant(kPopup)});
  ExpectMembers(popup, kOfEveryControl);
  ExpectMembers(popup, {{L"CommandBar", 0x60050000, kGet},
                        {L"Controls", 0x60050001, kGet},
                        {L"OLEMenuGroup", 0x60050002, kGetPut}});
  EXPECT_EQ(popup.IdOf(L"PasteFace"), DISPID_UNKNOWN);
}

}  // namespace members_test
}  // namespace brimwork::bench
