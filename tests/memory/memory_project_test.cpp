// A project's components in memory.
#include "memory/memory_project.h"

#include <gtest/gtest.h>

#include "environment/run_time_error.h"

namespace brimwork {
namespace memory_project_test {

struct MemoryProjectTest : testing::Test {
  MemoryProject project{[] { return std::string("Stock"); }};
};

TEST_F(MemoryProjectTest, StartsWithoutComponents) {
  EXPECT_EQ(project.Name(), "Stock");
  EXPECT_TRUE(project.VBComponents().empty());
}

TEST_F(MemoryProjectTest, AddsStandardModulesUnderNamesThatAreFree) {
  project.AddModule("module1", "x = 1");
  EXPECT_EQ(project.AddVBComponent(component_type::kStandardModule)->Name(), "Module2");
  EXPECT_EQ(project.AddVBComponent(component_type::kStandardModule)->Name(), "Module3");
  EXPECT_EQ(project.VBComponents().size(), 3u);
}

TEST_F(MemoryProjectTest, WritesALineIntoNewModulesWhereTheUserWantsIt) {
  EXPECT_EQ(project.AddVBComponent(1)->Module()->CountOfLines(), 0);
  project.requiresDeclarations = true;
  const auto module = project.AddVBComponent(1)->Module();
  EXPECT_EQ(module->CountOfLines(), 1);
  EXPECT_EQ(module->Lines(1, 1), "Option Explicit");
}

TEST_F(MemoryProjectTest, AddsNoOtherKindOfComponent) {
  EXPECT_THROW(project.AddVBComponent(5), RunTimeError);
  EXPECT_TRUE(project.VBComponents().empty());
}

TEST_F(MemoryProjectTest, AComponentsNewNameIsThatOfItsModule) {
  const auto component = project.AddVBComponent(1);
  component->SetName("modStock");
  EXPECT_EQ(component->Name(), "modStock");
  EXPECT_EQ(component->Module()->Name(), "modStock");
  EXPECT_EQ(component->Type(), 1);
  EXPECT_EQ(project.ComponentOfName("MODSTOCK"), component);
}

TEST_F(MemoryProjectTest, AComponentMayNotHaveAnothersName) {
  project.AddModule("modStock", "");
  const auto component = project.AddVBComponent(1);
  try {
    component->SetName("ModStock");
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kNameConflict);
  }
  EXPECT_EQ(component->Name(), "Module1");
  component->SetName("module1");
  EXPECT_EQ(component->Name(), "module1");
}

TEST_F(MemoryProjectTest, ClassModulesAreNumberedByThemselves) {
  project.AddVBComponent(component_type::kStandardModule);
  const auto component = project.AddVBComponent(component_type::kClassModule);
  EXPECT_EQ(component->Name(), "Class1");
  EXPECT_EQ(component->Type(), component_type::kClassModule);
}

TEST_F(MemoryProjectTest, ARemovedComponentIsNoneOfItsAnyMore) {
  const auto kept = project.AddVBComponent(1);
  const auto removed = project.AddVBComponent(1);
  project.Remove(*removed);
  EXPECT_EQ(project.VBComponents().size(), 1u);
  EXPECT_THROW(project.Remove(*removed), RunTimeError);
  removed->SetName("Module1");
  kept->SetName("Module2");
  EXPECT_EQ(removed->Name(), "Module1");
}

TEST_F(MemoryProjectTest, AComponentMayOutliveItsProject) {
  std::shared_ptr<MemoryComponent> component;
  {
    MemoryProject other([] { return std::string(); });
    component = other.AddModule("Module1", "");
  }
  component->SetName("Module2");
  EXPECT_EQ(component->Name(), "Module2");
}

TEST_F(MemoryProjectTest, WhatIsNoNameIsRefused) {
  const auto component = project.AddVBComponent(1);
  for (const char* name : {"", "1st", "_x", "a b", "a\"", "a.b"}) {
    EXPECT_THROW(component->SetName(name), RunTimeError) << name;
  }
  component->SetName(
      "St\xC3\xBC"
      "ck_1");
  EXPECT_EQ(component->Name(),
            "St\xC3\xBC"
            "ck_1");
}

}  // namespace memory_project_test
}  // namespace brimwork
