// Editors count the lines below a module's last procedure to that procedure, plain data counts them
// to none. Commands make the same of a module either way.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/commanded_module.h"

namespace brimwork {
namespace lines_below_properties_test {

constexpr unsigned kSeeds = 300;

constexpr std::string_view kCommands[] = {"Comment All Procedures", "Insert Error Handling",
                                          "Add Line Numbers",       "Remove Line Numbers",
                                          "Indent All Procedures",  "Code Clean Up"};

/// With or without something below its last procedure.
std::string TextOf(unsigned seed) {
  constexpr const char* kEndings[] = {"", "\r\n", "' the end\r\n",
                                      "\r\n' parts _\r\n of it\r\n\r\n"};
  return GenerateModule(NumberedOptions(seed)).text + kEndings[seed % 4];
}

std::string After(std::string_view command, const std::string& text, bool asInEditors) {
  CommandedModule module(text);
  if (asInEditors) module.GiveLinesBelowToTheLastProcedure();
  module.After(command);
  return module.After(command);  // a second run finds what the first one made
}

TEST(LinesBelowTheLastProcedure, MakeNoDifferenceToACommandOnAllProcedures) {
  for (unsigned seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = TextOf(seed);
    for (const std::string_view command : kCommands) {
      ASSERT_EQ(After(command, text, true), After(command, text, false))
          << command << ", seed " << seed;
    }
  }
}

}  // namespace lines_below_properties_test
}  // namespace brimwork
