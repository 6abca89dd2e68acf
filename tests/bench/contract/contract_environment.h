// What every environment behind the seam does alike, whatever it is made of: plain data, or objects
// over COM. One suite of tests runs on each of them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "environment/vbe.h"
#include "support/module_lines.h"

namespace brimwork::contract {

/// An environment with one empty project, the usual windows and the usual command bars.
class ContractEnvironment {
 public:
  virtual ~ContractEnvironment() = default;

  virtual VBE& Vbe() = 0;

  /// Adds a standard module to the project and opens it in a code pane, which becomes the active
  /// one and gets the focus.
  virtual std::shared_ptr<CodePane> Open(const std::string& name, const TextLines& lines) = 0;

  /// True where the lines behind the last End line belong to the last procedure, as the
  /// environment counts them. Plain data ends a procedure at its End line: what a user wrote below
  /// it stays out of commands.
  virtual bool LastProcedureHasTheLinesBelow() const = 0;
};

/// Makes the environment that a test runs on, with a name for the test's.
struct ContractHost {
  std::string name;
  std::function<std::unique_ptr<ContractEnvironment>()> make;
};

inline void PrintTo(const ContractHost& host, std::ostream* stream) { *stream << host.name; }

inline std::string HostName(const testing::TestParamInfo<ContractHost>& info) {
  return info.param.name;
}

/// Number of the run-time error that ends step; 0 when none does.
int NumberOfErrorIn(const std::function<void()>& step);

class ContractTest : public testing::TestWithParam<ContractHost> {
 protected:
  ContractTest() : environment_(GetParam().make()) {}

  ContractEnvironment& TheEnvironment() { return *environment_; }
  VBE& Vbe() { return environment_->Vbe(); }

  std::shared_ptr<CodePane> OpenPane(const TextLines& lines) {
    return environment_->Open("Module1", lines);
  }
  std::shared_ptr<CodeModule> Open(const TextLines& lines) { return OpenPane(lines)->Module(); }

 private:
  std::unique_ptr<ContractEnvironment> environment_;
};

class LinesContract : public ContractTest {};
class ProceduresContract : public ContractTest {};
class SearchContract : public ContractTest {};
class SelectionsContract : public ContractTest {};
class WindowsContract : public ContractTest {};
class ProjectsContract : public ContractTest {};
class CommandBarsContract : public ContractTest {};
class ClicksContract : public ContractTest {};

}  // namespace brimwork::contract

/// Runs the whole suite on a host.
#define RUN_CONTRACT_ON(host)                                                         \
  INSTANTIATE_TEST_SUITE_P(On, LinesContract, testing::Values(host), HostName);       \
  INSTANTIATE_TEST_SUITE_P(On, ProceduresContract, testing::Values(host), HostName);  \
  INSTANTIATE_TEST_SUITE_P(On, SearchContract, testing::Values(host), HostName);      \
  INSTANTIATE_TEST_SUITE_P(On, SelectionsContract, testing::Values(host), HostName);  \
  INSTANTIATE_TEST_SUITE_P(On, WindowsContract, testing::Values(host), HostName);     \
  INSTANTIATE_TEST_SUITE_P(On, ProjectsContract, testing::Values(host), HostName);    \
  INSTANTIATE_TEST_SUITE_P(On, CommandBarsContract, testing::Values(host), HostName); \
  INSTANTIATE_TEST_SUITE_P(On, ClicksContract, testing::Values(host), HostName)
