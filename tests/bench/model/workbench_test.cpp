// Opening projects and source files, the windows of their components, and what they are called.
#include "bench/model/workbench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "environment/run_time_error.h"
#include "memory/source_error.h"
#include "support/temporary_folder.h"

namespace brimwork::bench {
namespace workbench_test {

using testing::ElementsAre;
using testing::HasSubstr;

std::filesystem::path Sample() {
  return std::filesystem::path(BRIMWORK_SOURCE_DIR) / "samples" / "WorkshopDesk.vbp";
}

struct WorkbenchTest : testing::Test {
  std::vector<std::string> Names(const WorkProject& project) {
    std::vector<std::string> names;
    for (const auto& component : project.Components()) names.push_back(component->Name());
    return names;
  }
  std::vector<int> Types(const WorkProject& project) {
    std::vector<int> types;
    for (const auto& component : project.Components()) types.push_back(component->Type());
    return types;
  }
  std::shared_ptr<WorkComponent> Component(std::string_view name) {
    for (const auto& component : workbench.ActiveProject()->Components()) {
      if (component->LastName() == name) return component;
    }
    return nullptr;
  }

  Workbench workbench;
};

TEST_F(WorkbenchTest, OpensAProjectWithItsComponentsInTheOrderOfTheFile) {
  workbench.Open(Sample());
  ASSERT_EQ(workbench.Projects().size(), 1u);
  WorkProject& project = *workbench.ActiveProject();
  EXPECT_EQ(project.Name(), "WorkshopDesk");
  EXPECT_EQ(project.Type(), 0);
  EXPECT_THAT(Names(project),
              ElementsAre("frmDesk", "modStock", "modPrices", "InvoiceLine", "InvoiceLines"));
  EXPECT_THAT(Types(project), ElementsAre(5, 1, 1, 2, 2));
  EXPECT_FALSE(workbench.HasUnsavedChanges());
}

TEST_F(WorkbenchTest, CaptionsNameProjectAndComponent) {
  EXPECT_EQ(workbench.vbe.MainWindow()->Caption(), "Brimwork Bench [design]");
  workbench.Open(Sample());
  EXPECT_EQ(workbench.vbe.MainWindow()->Caption(), "WorkshopDesk - Brimwork Bench [design]");
  EXPECT_EQ(workbench.windows.project->Caption(), "Project - WorkshopDesk");
  const auto pane = workbench.PaneOf(Component("modStock"));
  EXPECT_EQ(pane->ContainingWindow()->Caption(), "WorkshopDesk - modStock (Code)");
  EXPECT_EQ(workbench.windows.properties->Caption(), "Properties - modStock");
  EXPECT_EQ(workbench.DesignerOf(Component("frmDesk"))->Caption(), "WorkshopDesk - frmDesk (Form)");
}

}  // namespace workbench_test
}  // namespace brimwork::bench
