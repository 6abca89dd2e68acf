// A project as plain data: its name and its components with their modules.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "environment/vbe.h"
#include "memory/memory_code_module.h"

namespace brimwork {

class MemoryProject;

class MemoryComponent : public VBComponent {
 public:
  /// project outlives the component; module may be null.
  MemoryComponent(MemoryProject& project, std::string name, int type,
                  std::shared_ptr<MemoryCodeModule> module)
      : project_(project), name_(std::move(name)), type_(type), module_(std::move(module)) {}

  std::string Name() override { return name_; }
  void SetName(std::string_view name) override;
  int Type() override { return type_; }
  std::shared_ptr<CodeModule> Module() override { return module_; }

 private:
  MemoryProject& project_;
  std::string name_;
  int type_;
  std::shared_ptr<MemoryCodeModule> module_;
};

class MemoryProject : public VBProject {
 public:
  /// name is asked for only when a command wants the project's name.
  explicit MemoryProject(std::function<std::string()> name) : name_(std::move(name)) {}
  std::string Name() override { return name_(); }
  std::vector<std::shared_ptr<VBComponent>> VBComponents() override;

  /// Only standard modules; another type raises error 5.
  std::shared_ptr<VBComponent> AddVBComponent(int type) override;

  /// Adds a component with that text, as a project has it when it is opened.
  std::shared_ptr<MemoryComponent> AddModule(std::string name, std::string_view text);

  /// The component of that name, case set aside; null when there is none.
  std::shared_ptr<MemoryComponent> ComponentOfName(std::string_view name) const;

  /// Whether the environment writes "Option Explicit" into each new module.
  bool requiresDeclarations = false;

 private:
  std::string UnusedName() const;

  std::function<std::string()> name_;
  std::vector<std::shared_ptr<MemoryComponent>> components_;
};

}  // namespace brimwork
