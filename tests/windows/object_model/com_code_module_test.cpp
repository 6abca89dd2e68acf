// The code module over COM: which calls it makes of what the add-in asks.
#include "windows/object_model/com_code_module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "environment/resume_next.h"
#include "support/windows/fake_dispatch.h"

namespace brimwork::windows {
namespace com_code_module_test {

using testing::ElementsAre;
using testing::IsEmpty;
using win32::ComPointer;
using win32::Variant;
using Invocation = FakeDispatch::Invocation;

/// A module of five lines, unless a test says otherwise.
struct ComCodeModuleTest : testing::Test {
  ComCodeModuleTest() {
    fake->Gives("CountOfLines", 5L);
    fake->Gives("InsertLines", Variant());
    fake->Gives("DeleteLines", Variant());
    fake->Gives("ReplaceLine", Variant());
    fake->Gives("Lines", "x = 1");
  }

  /// The calls of a member, as its arguments in words.
  std::vector<std::vector<std::string>> ArgumentsOf(const std::string& member) const {
    std::vector<std::vector<std::string>> all;
    for (const auto& call : fake->calls) {
      if (call.member != member) continue;
      std::vector<std::string> arguments;
      for (const Variant& each : call.arguments) arguments.push_back(each.ToText());
      all.push_back(std::move(arguments));
    }
    return all;
  }
  int NumberOfErrorIn(const std::function<void()>& step) {
    const auto error = ResumeNext(step);
    return error ? error->Number() : 0;
  }

  ComPointer<FakeDispatch> fake = FakeDispatch::Make();
  ComCodeModule module{DispatchObject(ComPointer<IDispatch>(fake.get()),
                                      std::make_shared<Connection>(), ComCodeModule::kKind)};
};

TEST_F(ComCodeModuleTest, LinesAreReadAsAPropertyWithArguments) {
  EXPECT_EQ(module.Lines(2, 3), "x = 1");
  EXPECT_THAT(ArgumentsOf("Lines"), ElementsAre(ElementsAre("2", "3")));
  EXPECT_EQ(fake->calls[0].kind, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
}

TEST_F(ComCodeModuleTest, ALineIsReadWithOneCallIntoTheCallersMemory) {
  std::string text(50, ' ');
  const char* const memory = text.data();
  module.ReadLine(4, text);
  EXPECT_EQ(text, "x = 1");
  EXPECT_EQ(text.data(), memory);
  EXPECT_EQ(fake->calls.size(), 1u);
}

TEST_F(ComCodeModuleTest, LineZeroRaisesErrorNineWithoutACall) {
  std::string text;
  Selection range{0, 1, -1, -1};
  const std::vector<std::function<void()>> uses = {
      [&] { module.Lines(0, 1); },        [&] { module.ReadLine(0, text); },
      [&] { module.InsertLines(0, ""); }, [&] { module.DeleteLines(0, 1); },
      [&] { module.ReplaceLine(0, ""); }, [&] { module.ProcOfLine(0); },
      [&] { module.Find("x", range); }};
  for (std::size_t i = 0; i < uses.size(); ++i) EXPECT_EQ(NumberOfErrorIn(uses[i]), 9) << i;
  EXPECT_THAT(fake->calls, IsEmpty());
}

TEST_F(ComCodeModuleTest, AFailureBehindTheEndMeansThatNothingIsThere) {
  fake->Fails("Lines", E_FAIL);
  fake->Fails("ProcOfLine", E_FAIL);
  std::string text = "before";
  module.ReadLine(6, text);
  EXPECT_EQ(text, "");
  EXPECT_EQ(module.Lines(99, 2), "");
  EXPECT_EQ(module.ProcOfLine(6).name, "");
  EXPECT_EQ(NumberOfErrorIn([&] { module.Lines(5, 1); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { module.ProcOfLine(5); }), 440);
}

TEST_F(ComCodeModuleTest, NoLinesNeedNoCall) {
  EXPECT_EQ(module.Lines(2, 0), "");
  EXPECT_THAT(fake->calls, IsEmpty());
}

TEST_F(ComCodeModuleTest, InsertingFarBehindTheEndAppends) {
  module.InsertLines(3, "a");
  module.InsertLines(6, "b");
  module.InsertLines(99, "c");
  EXPECT_THAT(ArgumentsOf("InsertLines"),
              ElementsAre(ElementsAre("3", "a"), ElementsAre("6", "b"), ElementsAre("6", "c")));
}

TEST_F(ComCodeModuleTest, OnlyLinesThatAreThereAreDeleted) {
  static_cast<CodeModule&>(module).DeleteLines(2);
  module.DeleteLines(4, 99);
  module.DeleteLines(6, 1);
  module.DeleteLines(2, 0);
  EXPECT_THAT(ArgumentsOf("DeleteLines"),
              ElementsAre(ElementsAre("2", "1"), ElementsAre("4", "2")));
}

TEST_F(ComCodeModuleTest, AReplacementGoesAsItIs) {
  module.ReplaceLine(2, "Größe\r\n");
  EXPECT_THAT(ArgumentsOf("ReplaceLine"), ElementsAre(ElementsAre("2", "Größe\r\n")));
}

TEST_F(ComCodeModuleTest, ProcOfLineTakesTheKindByReference) {
  fake->On("ProcOfLine", [](Invocation& invocation) {
    invocation.WriteLong(1, 3);
    invocation.Return(Variant("Total"));
    return S_OK;
  });
  const ProcedureName found = module.ProcOfLine(4);
  EXPECT_EQ(found.name, "Total");
  EXPECT_EQ(found.kind, ProcKind::kPropertyGet);
  EXPECT_EQ(fake->calls[0].types[1], VT_BYREF | VT_I4);
}

TEST_F(ComCodeModuleTest, ProceduresAreLookedUpByNameAndKind) {
  fake->Gives("ProcStartLine", 11L);
  fake->Gives("ProcCountLines", 12L);
  fake->Gives("ProcBodyLine", 13L);
  fake->Gives("CountOfDeclarationLines", 14L);
  EXPECT_EQ(module.ProcStartLine("A", ProcKind::kPropertyLet), 11);
  EXPECT_EQ(module.ProcCountLines("B", ProcKind::kPropertySet), 12);
  EXPECT_EQ(module.ProcBodyLine("C", ProcKind::kProcedure), 13);
  EXPECT_EQ(module.CountOfDeclarationLines(), 14);
  EXPECT_THAT(ArgumentsOf("ProcStartLine"), ElementsAre(ElementsAre("A", "1")));
  EXPECT_THAT(ArgumentsOf("ProcCountLines"), ElementsAre(ElementsAre("B", "2")));
  EXPECT_THAT(ArgumentsOf("ProcBodyLine"), ElementsAre(ElementsAre("C", "0")));
}

TEST_F(ComCodeModuleTest, AnUnknownProcedureRaisesTheNumberOfTheEnvironment) {
  fake->On("ProcBodyLine", [](Invocation& invocation) {
    return invocation.Raise(static_cast<HRESULT>(0x800A0023));
  });
  EXPECT_EQ(NumberOfErrorIn([&] { module.ProcBodyLine("A", ProcKind::kProcedure); }), 35);
}

// Find.

struct FindOverCom : ComCodeModuleTest {
  FindOverCom() {
    fake->On("Find", [this](Invocation& invocation) {
      for (UINT i = 0; i < 4; ++i) invocation.WriteLong(i + 1, found[i]);
      invocation.Return(Variant(isFound));
      return S_OK;
    });
  }

  bool isFound = true;
  std::array<long, 4> found = {2, 3, 2, 5};
};

TEST_F(FindOverCom, ComparesCaseAndTakesTheRangeByReference) {
  Selection range{1, 1, -1, -1};
  EXPECT_TRUE(module.Find("= ", range));
  EXPECT_EQ(range, (Selection{2, 3, 2, 5}));
  const auto arguments = ArgumentsOf("Find");
  ASSERT_EQ(arguments.size(), 1u);
  EXPECT_THAT(arguments[0], ElementsAre("= ", "1", "1", "-1", "-1", "0", "-1", "0"));
  const auto call = std::ranges::find(fake->calls, "Find", &FakeDispatch::Call::member);
  EXPECT_THAT(call->types,
              ElementsAre(VT_BSTR, VT_BYREF | VT_I4, VT_BYREF | VT_I4, VT_BYREF | VT_I4,
                          VT_BYREF | VT_I4, VT_BOOL, VT_BOOL, VT_BOOL));
}

TEST_F(FindOverCom, LeavesTheRangeAloneWhenNothingIsFound) {
  isFound = false;
  Selection range{1, 1, -1, -1};
  EXPECT_FALSE(module.Find("y", range));
  EXPECT_EQ(range, (Selection{1, 1, -1, -1}));
}

TEST_F(FindOverCom, LooksForNothingWithoutACall) {
  Selection behindTheEnd{6, 1, -1, -1};
  EXPECT_FALSE(module.Find("x", behindTheEnd));
  Selection everything{1, 1, -1, -1};
  EXPECT_FALSE(module.Find("", everything));
  EXPECT_THAT(ArgumentsOf("Find"), IsEmpty());
}

TEST_F(FindOverCom, TranslatesColumnsBehindACharacterOfTwoUnits) {
  fake->Gives("Lines", "\xF0\x9F\x98\x80 = 1");
  Selection range{2, 2, 2, 5};
  EXPECT_TRUE(module.Find(" =", range));
  EXPECT_THAT(ArgumentsOf("Find").at(0), ElementsAre(" =", "2", "3", "2", "6", "0", "-1", "0"));
  EXPECT_EQ(range, (Selection{2, 2, 2, 4}));
}

/// A module object as the environment makes one anew, in a project of that name.
ComPointer<FakeDispatch> ModuleOf(std::string_view project, std::string_view name) {
  const auto ofProject = FakeDispatch::Make();
  ofProject->Gives("Name", project);
  const auto components = FakeDispatch::Make();
  components->Gives("Parent", ofProject);
  const auto component = FakeDispatch::Make();
  component->Gives("Collection", components);
  auto module = FakeDispatch::Make();
  module->Gives("Name", name);
  module->Gives("Parent", component);
  return module;
}

std::uintptr_t IdentityOf(const ComPointer<FakeDispatch>& module) {
  return ComCodeModule(DispatchObject(ComPointer<IDispatch>(module.get()),
                                      std::make_shared<Connection>(), ComCodeModule::kKind))
      .Identity();
}

TEST_F(ComCodeModuleTest, TheIdentityIsThatOfTheModuleNotOfTheObject) {
  const auto identity = IdentityOf(ModuleOf("Project1", "Module1"));
  EXPECT_EQ(IdentityOf(ModuleOf("Project1", "Module1")), identity);
  EXPECT_NE(IdentityOf(ModuleOf("Project1", "Module2")), identity);
  EXPECT_NE(IdentityOf(ModuleOf("Project2", "Module1")), identity);
}

TEST_F(ComCodeModuleTest, TheIdentityIsAskedForOnce) {
  fake = ModuleOf("Project1", "Module1");
  ComCodeModule named(DispatchObject(ComPointer<IDispatch>(fake.get()),
                                     std::make_shared<Connection>(), ComCodeModule::kKind));
  EXPECT_EQ(named.Identity(), named.Identity());
  EXPECT_EQ(fake->calls.size(), 2u);
}

TEST_F(ComCodeModuleTest, AModuleOfNoProjectIsItsObject) {
  EXPECT_EQ(module.Identity(), reinterpret_cast<std::uintptr_t>(fake.get()));
}

TEST_F(ComCodeModuleTest, EveryReferenceIsReleased) {
  const ULONG held = fake->References();
  module.Lines(1, 1);
  module.InsertLines(1, "x");
  EXPECT_EQ(fake->References(), held);
}

}  // namespace com_code_module_test
}  // namespace brimwork::windows
