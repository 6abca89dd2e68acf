// The active project and its components.
#include <gmock/gmock.h>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> ComponentNames(VBProject& project) {
  std::vector<std::string> names;
  for (const auto& component : project.VBComponents()) names.push_back(component->Name());
  return names;
}

TEST_P(ProjectsContract, AProjectHasItsNameAndNoComponentsAtFirst) {
  const auto project = Vbe().ActiveVBProject();
  ASSERT_NE(project, nullptr);
  EXPECT_EQ(project->Name(), "Project1");
  EXPECT_THAT(ComponentNames(*project), IsEmpty());
}

TEST_P(ProjectsContract, ComponentsStandInTheOrderInWhichTheyWereAdded) {
  TheEnvironment().Open("modB", {});
  TheEnvironment().Open("modA", {"x = 1"});
  const auto components = Vbe().ActiveVBProject()->VBComponents();
  ASSERT_EQ(components.size(), 2u);
  EXPECT_EQ(components[0]->Name(), "modB");
  EXPECT_EQ(components[1]->Name(), "modA");
  EXPECT_EQ(components[1]->Type(), component_type::kStandardModule);
  EXPECT_EQ(components[1]->Module()->Lines(1, 1), "x = 1");
}

TEST_P(ProjectsContract, AnAddedModuleHasANameThatIsFree) {
  const auto project = Vbe().ActiveVBProject();
  project->AddVBComponent(component_type::kStandardModule);
  const auto second = project->AddVBComponent(component_type::kStandardModule);
  EXPECT_THAT(ComponentNames(*project), ElementsAre("Module1", "Module2"));
  EXPECT_EQ(second->Name(), "Module2");
  EXPECT_EQ(second->Type(), component_type::kStandardModule);
  EXPECT_EQ(second->Module()->CountOfLines(), 0);
}

TEST_P(ProjectsContract, AComponentsNewNameIsThatOfItsModule) {
  const auto component = Vbe().ActiveVBProject()->AddVBComponent(component_type::kStandardModule);
  component->SetName("modStock");
  EXPECT_EQ(component->Name(), "modStock");
  EXPECT_EQ(component->Module()->Name(), "modStock");
}

TEST_P(ProjectsContract, AComponentMayNotHaveAnothersName) {
  const auto project = Vbe().ActiveVBProject();
  TheEnvironment().Open("modStock", {});
  const auto component = project->AddVBComponent(component_type::kStandardModule);
  EXPECT_EQ(NumberOfErrorIn([&] { component->SetName("ModStock"); }), 32813);
  EXPECT_EQ(component->Name(), "Module1");
  component->SetName("module1");
  EXPECT_EQ(component->Name(), "module1");
}

TEST_P(ProjectsContract, AComponentOfAnUnknownTypeIsNotAdded) {
  const auto project = Vbe().ActiveVBProject();
  EXPECT_NE(NumberOfErrorIn([&] { project->AddVBComponent(3); }), 0);
  EXPECT_THAT(ComponentNames(*project), IsEmpty());
}

}  // namespace brimwork::contract
