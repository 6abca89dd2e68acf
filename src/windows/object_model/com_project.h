// The environment's project and its components over COM.
#pragma once

#include "environment/vbe.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComComponent : public VBComponent {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kComponent;

  explicit ComComponent(DispatchObject component) : component_(std::move(component)) {}

  std::string Name() override;
  void SetName(std::string_view name) override;
  int Type() override;
  std::shared_ptr<CodeModule> Module() override;

 private:
  DispatchObject component_;
};

class ComProject : public VBProject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kProject;

  explicit ComProject(DispatchObject project) : project_(std::move(project)) {}

  std::string Name() override;
  std::vector<std::shared_ptr<VBComponent>> VBComponents() override;
  std::shared_ptr<VBComponent> AddVBComponent(int type) override;

 private:
  DispatchObject Components() const;

  DispatchObject project_;
};

}  // namespace brimwork::windows
