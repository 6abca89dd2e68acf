// One bench with the add-in for all tests of a suite, so that each need not start one.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/windows/registered_library.h"
#include "support/windows/running_bench.h"

namespace brimwork {

class BenchSuite : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    library_ = std::make_unique<RegisteredLibrary>();
    bench_ = std::make_unique<RunningBench>();
  }
  /// Nothing of the environment may be held by then.
  static void TearDownTestSuite() {
    ExpectNothingHeld(bench_->End());
    bench_ = nullptr;
    library_ = nullptr;
  }

  static void ExpectNothingHeld(const nlohmann::json& report) {
    EXPECT_FALSE(report["connections"].empty());
    for (const auto& connection : report["connections"]) {
      EXPECT_EQ(connection["heldReferences"], 0) << connection.dump(2);
      EXPECT_EQ(connection["connected"], true) << connection.dump(2);
    }
  }

  static RunningBench& Bench() { return *bench_; }

  /// Puts text into the module, and the caret behind the characters of a line. Returns the pane.
  static bench::Client ShowText(const std::string& component, const std::string& text, int line,
                                int column);
  static std::string TextOf(const bench::Client& pane);

 private:
  static inline std::unique_ptr<RegisteredLibrary> library_;
  static inline std::unique_ptr<RunningBench> bench_;
};

/// Names the tests of an entry given by its handler's number.
inline std::string HandlerName(const ::testing::TestParamInfo<int>& each) {
  return "Handler" + std::to_string(each.param);
}

inline bench::Client BenchSuite::ShowText(const std::string& component, const std::string& text,
                                          int line, int column) {
  using win32::Variant;
  const bench::Client pane = Bench().OpenModule(component);
  const bench::Client module = pane.Object(L"CodeModule");
  const long count = module.Number(L"CountOfLines");
  if (count > 0) module.Call(L"DeleteLines", {Variant(1), Variant(count)});
  module.Call(L"InsertLines", {Variant(1), Variant(text)});
  pane.Call(L"SetSelection", {Variant(line), Variant(column), Variant(line), Variant(column)});
  return pane;
}

inline std::string BenchSuite::TextOf(const bench::Client& pane) {
  using win32::Variant;
  const bench::Client module = pane.Object(L"CodeModule");
  return module.Text(L"Lines", {Variant(1), Variant(module.Number(L"CountOfLines"))});
}

}  // namespace brimwork
