#include "bench/automation/automation_object.h"

#include "bench/automation/automation_fixture.h"

namespace brimwork::bench {
namespace automation_object_test {

using win32::Variant;

constexpr const char* kText =
    "Option Explicit\r\n"
    "Sub First()\r\n"
    "End Sub\r\n"
    "Property Get Size()\r\n"
    "End Property\r\n";

class AutomationObject : public AutomationTest {
 protected:
  AutomationObject() { OpenModule(kText); }
};

TEST_F(AutomationObject, FindsNamesInAnyCase) {
  EXPECT_EQ(Module().IdOf(L"CountOfLines"), 0x60020007);
  EXPECT_EQ(Module().IdOf(L"countoflines"), 0x60020007);
}

TEST_F(AutomationObject, DoesNotKnowOtherNames) {
  std::wstring name = L"CountOfPages";
  LPOLESTR names[] = {name.data()};
  DISPID id = 0;
  EXPECT_EQ(Module().Raw()->GetIDsOfNames(IID_NULL, names, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(AutomationObject, KnowsTheNamesOfParameters) {
  std::wstring member = L"Find";
  std::wstring whole = L"wholeWord";
  std::wstring target = L"Target";
  LPOLESTR names[] = {member.data(), whole.data(), target.data()};
  DISPID ids[3] = {};
  EXPECT_EQ(Module().Raw()->GetIDsOfNames(IID_NULL, names, 3, 0, ids), S_OK);
  EXPECT_EQ(ids[1], 5);
  EXPECT_EQ(ids[2], 0);
}

TEST_F(AutomationObject, RefusesOneWrongParameterNameAndStillTellsTheOthers) {
  std::wstring member = L"Find";
  std::wstring wrong = L"Colour";
  std::wstring target = L"Target";
  LPOLESTR names[] = {member.data(), wrong.data(), target.data()};
  DISPID ids[3] = {};
  EXPECT_EQ(Module().Raw()->GetIDsOfNames(IID_NULL, names, 3, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
  EXPECT_EQ(ids[2], 0);
}

TEST_F(AutomationObject, ReadsAPropertyOnlyAsOne) {
  const DISPID count = Module().IdOf(L"CountOfLines");
  EXPECT_EQ(Module().Invoke(count, DISPATCH_PROPERTYGET).value.ToLong(), 5);
  EXPECT_EQ(Module().Invoke(count, DISPATCH_METHOD | DISPATCH_PROPERTYGET).value.ToLong(), 5);
  EXPECT_EQ(Module().Invoke(count, DISPATCH_METHOD).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Module().Put(L"CountOfLines", Variant(3)).result, DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationObject, RunsAMethodOnlyAsOne) {
  const DISPID show = Pane().IdOf(L"Show");
  EXPECT_EQ(Pane().Invoke(show, DISPATCH_METHOD).result, S_OK);
  EXPECT_EQ(Pane().Invoke(show, DISPATCH_PROPERTYGET).result, DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationObject, HasNoMemberOfAnUnknownNumber) {
  EXPECT_EQ(Module().Invoke(12345, DISPATCH_METHOD).result, DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationObject, TakesArgumentsByPlaceOrByName) {
  const DISPID lines = Module().IdOf(L"Lines");
  EXPECT_EQ(Module().Invoke(lines, DISPATCH_PROPERTYGET, {Variant(2), Variant(1)}).value.ToText(),
            "Sub First()");
  // Named ones come first in the client's list: Count (1), then StartLine (0).
  EXPECT_EQ(
      Module().Invoke(lines, DISPATCH_PROPERTYGET, {Variant(2), Variant(1)}, {1, 0}).value.ToText(),
      "Sub First()");
}

TEST_F(AutomationObject, LetsOptionalArgumentsBeLeftOutOrMissing) {
  EXPECT_EQ(Module().Call(L"DeleteLines", {Variant(1)}).result, S_OK);
  EXPECT_EQ(Module().Call(L"DeleteLines", {Variant(1), Variant::Missing()}).result, S_OK);
  EXPECT_EQ(Module().Number(L"CountOfLines"), 3);
}

TEST_F(AutomationObject, WantsTheOtherArguments) {
  EXPECT_EQ(Module().Call(L"Lines", {Variant(1)}).result, DISP_E_PARAMNOTOPTIONAL);
  EXPECT_EQ(Module().Call(L"Lines", {Variant(1), Variant::Missing()}).result,
            DISP_E_PARAMNOTOPTIONAL);
}

TEST_F(AutomationObject, TakesNoMoreArgumentsThanThereAre) {
  EXPECT_EQ(Module().Call(L"Lines", {Variant(1), Variant(1), Variant(1)}).result,
            DISP_E_BADPARAMCOUNT);
}

TEST_F(AutomationObject, NamesTheArgumentThatCannotBeConverted) {
  const Answer answer = Module().Call(L"Lines", {Variant(1), Variant("many")});
  EXPECT_EQ(answer.result, DISP_E_TYPEMISMATCH);
  EXPECT_EQ(answer.faultyArgument, 0u);  // arguments count from the last
}

TEST_F(AutomationObject, WritesToArgumentsByReference) {
  long kind = 99;
  EXPECT_EQ(Module().Text(L"ProcOfLine", {Variant(4), Variant::ByReference(kind)}), "Size");
  EXPECT_EQ(kind, 3);
}

TEST_F(AutomationObject, WritesToVariablesOfScripts) {
  VARIANT kind;
  VariantInit(&kind);
  VARIANT reference;
  reference.vt = VT_BYREF | VT_VARIANT;
  reference.pvarVal = &kind;
  EXPECT_EQ(Module().Text(L"ProcOfLine", {Variant(4), Variant::Adopt(reference)}), "Size");
  EXPECT_EQ(kind.vt, VT_I4);
  EXPECT_EQ(kind.lVal, 3);
}

TEST_F(AutomationObject, IsContentWithAnArgumentThatItCannotWriteTo) {
  EXPECT_EQ(Module().Text(L"ProcOfLine", {Variant(4), Variant(0)}), "Size");
}

TEST_F(AutomationObject, ReportsARunTimeErrorWithItsNumber) {
  const Answer answer = Module().Call(L"Lines", {Variant(0), Variant(1)});
  EXPECT_EQ(answer.result, DISP_E_EXCEPTION);
  EXPECT_EQ(answer.exception.scode, static_cast<SCODE>(0x800A0009));
  EXPECT_FALSE(win32::TextOf(answer.exception.bstrDescription).empty());
}

TEST_F(AutomationObject, PassesArgumentsOfAPropertyWithoutAnyToItsResult) {
  EXPECT_EQ(Vbe().Object(L"CodePanes", {Variant(1)}).Raw(), Pane().Raw());
}

TEST_F(AutomationObject, TakesAnObjectBySetAndByPlainAssignment) {
  const auto project = Variant(Vbe().Object(L"ActiveVBProject").Raw());
  EXPECT_EQ(Vbe().Put(L"ActiveVBProject", project, DISPATCH_PROPERTYPUTREF).result, S_OK);
  EXPECT_EQ(Vbe().Put(L"ActiveVBProject", project, DISPATCH_PROPERTYPUT).result, S_OK);
}

TEST_F(AutomationObject, TakesNoOtherValueBySet) {
  EXPECT_EQ(Vbe().Put(L"LastUsedPath", Variant("C:\\"), DISPATCH_PROPERTYPUTREF).result,
            DISP_E_MEMBERNOTFOUND);
}

TEST_F(AutomationObject, RaisesTypeMismatchForAnObjectOfAnotherKind) {
  const auto window = Variant(Vbe().Object(L"MainWindow").Raw());
  EXPECT_EQ(Vbe().Put(L"ActiveVBProject", window).ErrorNumber(), 13);
}

TEST_F(AutomationObject, IsOneForOneThing) {
  EXPECT_EQ(Vbe().Object(L"MainWindow").Raw(), Vbe().Object(L"MainWindow").Raw());
  EXPECT_NE(Vbe().Object(L"MainWindow").Raw(), Pane().Object(L"Window").Raw());
}

TEST_F(AutomationObject, AnswersToItsInterfaceAndToNoOther) {
  constexpr IID kWindow = {0x0002E10E, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  constexpr IID kCodePane = {0x0002E175, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
  const win32::ComPointer<IDispatch> window(Vbe().Object(L"MainWindow").Raw());
  EXPECT_TRUE(window.As<IUnknown>(IID_IUnknown));
  EXPECT_TRUE(window.As<IDispatch>(IID_IDispatch));
  EXPECT_TRUE(window.As<IDispatch>(kWindow));
  EXPECT_FALSE(window.As<IDispatch>(kCodePane));
}

TEST_F(AutomationObject, GivesNothingForWhatIsNotThere) {
  workbench.vbe.windows.Activate(
      *std::static_pointer_cast<MemoryWindow>(workbench.vbe.MainWindow()));
  const Answer answer = Vbe().Call(L"ActiveWindow");
  EXPECT_EQ(answer.result, S_OK);
  EXPECT_EQ(answer.value.Type(), VT_DISPATCH);
  EXPECT_EQ(answer.value.ToObject(), nullptr);
}

TEST_F(AutomationObject, IsDisconnectedWhenItsSessionHasEnded) {
  const Client module = Module();
  session->End();
  EXPECT_EQ(module.Invoke(0x60020007, DISPATCH_PROPERTYGET).result, RPC_E_DISCONNECTED);
}

}  // namespace automation_object_test
}  // namespace brimwork::bench
