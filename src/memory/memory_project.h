// A project as plain data: its name and its components with their modules.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "environment/vbe.h"
#include "memory/memory_code_module.h"

namespace brimwork {

class MemoryProject;

/// Whether text can name a component: letters, digits and underscores, a letter first.
bool IsComponentName(std::string_view text);

class MemoryComponent : public VBComponent {
 public:
  /// module: null for a component without code.
  MemoryComponent(std::string name, int type, std::shared_ptr<MemoryCodeModule> module);

  std::string Name() override { return name_; }
  /// Raises error 32813 for a name that another component of its project has, error 5 for a text
  /// that is no name.
  void SetName(std::string_view name) override;
  int Type() override { return type_; }
  std::shared_ptr<CodeModule> Module() override { return module_; }

  // For the environment and for tests.

  const std::string& LastName() const { return name_; }
  int Kind() const { return type_; }  // component_type::k...
  const std::shared_ptr<MemoryCodeModule>& Code() const { return module_; }

  /// Null once it has been removed, or its project is no more.
  MemoryProject* Project() const { return project_; }

 private:
  friend class MemoryProject;

  MemoryProject* project_ = nullptr;
  std::string name_;
  int type_;
  std::shared_ptr<MemoryCodeModule> module_;
};

class MemoryProject : public VBProject {
 public:
  /// name is asked for only when a command wants the project's name.
  explicit MemoryProject(std::function<std::string()> name) : name_(std::move(name)) {}
  ~MemoryProject() override;
  MemoryProject(const MemoryProject&) = delete;
  MemoryProject& operator=(const MemoryProject&) = delete;

  std::string Name() override { return name_(); }
  std::vector<std::shared_ptr<VBComponent>> VBComponents() override;

  /// Standard modules and class modules; another type raises the unspecified error.
  std::shared_ptr<VBComponent> AddVBComponent(int type) override;

  /// Adds a standard module with that text, as a project has it when it is opened.
  std::shared_ptr<MemoryComponent> AddModule(std::string name, std::string_view text);

  /// The component has no project from now on. Raises error 5 for one that is not among them.
  void Remove(VBComponent& component);

  /// The component of that name, case set aside; null when there is none.
  std::shared_ptr<MemoryComponent> ComponentOfName(std::string_view name) const;

  /// Whether the environment writes "Option Explicit" into each new module.
  bool requiresDeclarations = false;

 protected:
  /// A new component of the project, which it is then added to.
  virtual std::shared_ptr<MemoryComponent> Make(std::string name, int type, std::string_view text);

  void Add(std::shared_ptr<MemoryComponent> component);
  const std::vector<std::shared_ptr<MemoryComponent>>& All() const { return components_; }

  // Called behind each change of its kind; they do nothing here.

  virtual void NoteAdded() {}
  virtual void NoteRemoved(MemoryComponent&) {}
  virtual void NoteRenamed(MemoryComponent&) {}

 private:
  friend class MemoryComponent;

  std::string UnusedName(int type) const;

  std::function<std::string()> name_;
  std::vector<std::shared_ptr<MemoryComponent>> components_;
};

}  // namespace brimwork
