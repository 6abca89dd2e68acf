// After any edit that it was told of, an index answers as one that reads the text afresh.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "environment/text.h"
#include "memory/memory_code_module.h"
#include "support/module_generator.h"
#include "support/procedure_list.h"

namespace brimwork {
namespace procedure_index_property_test {

constexpr const char* kFragments[] = {"Sub A()",
                                      "Private Function B() As Long",
                                      "Property Get C()",
                                      "Property Let C(x)",
                                      "End Sub",
                                      "End Function",
                                      "End Property",
                                      "x = 1",
                                      "",
                                      "' note",
                                      "' note _",
                                      "x = 1 + _",
                                      "#If A Then",
                                      "#Else",
                                      "#End If",
                                      "Type T",
                                      "End Type",
                                      "Dim y",
                                      "Sub D(): End Sub",
                                      "z = 1: End Sub",
                                      "End Sub ' d _",
                                      "Sub E( _",
                                      "10 End Sub",
                                      "\t  End Sub",
                                      " _",
                                      "_",
                                      "Rem",
                                      "x = 1 ' note _"};

class ProcedureIndexUnderRandomEdits : public testing::TestWithParam<unsigned> {
 protected:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::string Fragment() { return kFragments[Below(std::size(kFragments))]; }

  std::string Text(int lines) {
    std::string text = Fragment();
    for (int i = 1; i < lines; ++i) text.append("\r\n").append(Fragment());
    return text;
  }

  /// Edits text somewhere and returns the first line that may have changed.
  int EditOnce(ModuleText& text) {
    const int count = text.Count();
    const int line = 1 + Below(count + 1);
    if (line == count + 1 || Below(3) == 0) {
      text.Insert(line, Text(1 + Below(3)));
    } else if (Below(2) == 0) {
      text.Replace(line, Text(1 + Below(2)));
    } else {
      text.Delete(line, 1 + Below(std::min(3, count - line + 1)));
    }
    return line;
  }

  /// What a new index says of the text.
  static std::vector<std::string> Afresh(const ModuleText& text, int& declarationLines) {
    ProcedureIndex index;
    declarationLines = index.DeclarationLines(text);
    return ProceduresIn(index, text);
  }

  static void ExpectSameAsAfresh(ProcedureIndex& index, const ModuleText& text) {
    int declarationLines = 0;
    const auto expected = Afresh(text, declarationLines);
    ASSERT_EQ(index.DeclarationLines(text), declarationLines) << text.Joined();
    ASSERT_EQ(ProceduresIn(index, text), expected) << text.Joined();
  }

  std::mt19937 random_{GetParam()};
};

TEST_P(ProcedureIndexUnderRandomEdits, AnswersAsIfItHadReadTheTextAfresh) {
  ModuleText text = ModuleText::FromText(Text(25));
  ProcedureIndex index;
  for (int edit = 0; edit < 300 && !HasFatalFailure(); ++edit) {
    SCOPED_TRACE(edit);
    if (Below(3) > 0) index.At(text, 1 + Below(text.Count() + 1));
    index.NoteEdit(EditOnce(text));
    if (Below(4) == 0) ExpectSameAsAfresh(index, text);
  }
}

TEST_P(ProcedureIndexUnderRandomEdits, AnswersAsIfItHadReadAGeneratedModuleAfresh) {
  GeneratorOptions options;
  options.seed = GetParam();
  options.lines = 120;
  options.messy = options.continuations = options.lineNumbers = options.oddities = true;
  ModuleText text = ModuleText::FromText(GenerateModule(options).text);
  ProcedureIndex index;
  for (int edit = 0; edit < 60 && !HasFatalFailure(); ++edit) {
    SCOPED_TRACE(edit);
    index.At(text, 1 + Below(text.Count() + 1));
    index.NoteEdit(EditOnce(text));
    ExpectSameAsAfresh(index, text);
  }
}

/// The same question put to a module that was edited and to one that was opened with its text.
TEST_P(ProcedureIndexUnderRandomEdits, AnEditedModuleNamesTheProceduresOfItsText) {
  MemoryCodeModule edited("M", ModuleText::FromText(Text(25)));
  for (int edit = 0; edit < 150 && !HasFatalFailure(); ++edit) {
    SCOPED_TRACE(edit);
    const int line = 1 + Below(edited.CountOfLines());
    const auto blanks = [&] {
      return std::string(static_cast<std::size_t>(Below(4)), Below(2) == 0 ? ' ' : '\t');
    };
    const std::string now = edited.Lines(line, 1);
    switch (Below(4)) {
      case 0:
        edited.ReplaceLine(line, blanks().append(TrimBlanksAndTabs(now)).append(blanks()));
        break;
      case 1:
        edited.ReplaceLine(line, Text(1 + Below(2)));
        break;
      case 2:
        edited.InsertLines(line, Text(1 + Below(2)));
        break;
      default:
        if (edited.CountOfLines() > 5) edited.DeleteLines(line, 1);
    }
    MemoryCodeModule opened("M", ModuleText::FromText(edited.Text().Joined() + "\r\n"));
    ASSERT_EQ(edited.CountOfDeclarationLines(), opened.CountOfDeclarationLines());
    for (int asked = 1; asked <= edited.CountOfLines(); ++asked) {
      const ProcedureName here = edited.ProcOfLine(asked);
      const ProcedureName there = opened.ProcOfLine(asked);
      ASSERT_EQ(here.name, there.name) << edited.Text().Joined();
      if (here.name.empty()) continue;
      ASSERT_EQ(here.kind, there.kind);
      ASSERT_EQ(edited.ProcStartLine(here.name, here.kind),
                opened.ProcStartLine(there.name, there.kind));
      ASSERT_EQ(edited.ProcBodyLine(here.name, here.kind),
                opened.ProcBodyLine(there.name, there.kind));
      ASSERT_EQ(edited.ProcCountLines(here.name, here.kind),
                opened.ProcCountLines(there.name, there.kind));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ProcedureIndexUnderRandomEdits, testing::Range(1u, 21u));

}  // namespace procedure_index_property_test
}  // namespace brimwork
