// Random edits on a module's text, compared after each with the same edits on a plain list.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "memory/module_text.h"

namespace brimwork {
namespace module_text_property_test {

struct ModelLine {
  std::string text;
  LineEnd end = LineEnd::kFileStyle;
  std::vector<HiddenLine> hidden;
};

/// The same operations in the plainest way; lines_[0] stands for what is before line 1.
class Model {
 public:
  void Append(const std::string& text, LineEnd end) { lines_.push_back({text, end, {}}); }
  void Hide(HiddenLine hidden) { lines_.back().hidden.push_back(hidden); }
  int Count() const { return static_cast<int>(lines_.size()) - 1; }
  const ModelLine& Line(int line) const { return lines_[static_cast<std::size_t>(line)]; }

  void Insert(int line, const std::vector<std::string>& texts) {
    for (const std::string& text : texts)
      lines_.insert(lines_.begin() + line++, {text, LineEnd::kFileStyle, {}});
  }

  void Replace(int line, const std::vector<std::string>& texts) {
    lines_[static_cast<std::size_t>(line)].text = texts.back();
    Insert(line, {texts.begin(), texts.end() - 1});
  }

  void Delete(int line, int count) {
    for (int i = 0; i < count; ++i) {
      const std::vector<HiddenLine> hidden = Line(line).hidden;
      lines_.erase(lines_.begin() + line);
      auto& above = lines_[static_cast<std::size_t>(line - 1)].hidden;
      above.insert(above.end(), hidden.begin(), hidden.end());
    }
  }

 private:
  std::vector<ModelLine> lines_{ModelLine{}};
};

void ExpectSame(const ModuleText& text, const Model& model) {
  ASSERT_EQ(text.Count(), model.Count());
  for (int line = 0; line <= model.Count(); ++line) {
    const ModelLine& expected = model.Line(line);
    const auto hidden = text.HiddenBehind(line);
    ASSERT_EQ(std::vector<HiddenLine>(hidden.begin(), hidden.end()), expected.hidden) << line;
    if (line == 0) continue;
    ASSERT_EQ(text.Line(line), expected.text) << line;
    ASSERT_EQ(text.End(line), expected.end) << line;
  }
}

class ModuleTextUnderRandomEdits : public testing::TestWithParam<unsigned> {
 protected:
  ModuleTextUnderRandomEdits() {
    auto original = std::make_shared<std::string>();
    for (int i = 0; i < 60; ++i) *original += Word();
    text_ = ModuleText(original);
    HiddenLine next = 100;
    for (int i = 0; i < 60; ++i) {
      const std::string_view line = std::string_view(*original).substr(i * 3, 3);
      const LineEnd end = Below(2) == 0 ? LineEnd::kCrLf : LineEnd::kLf;
      text_.AppendOriginal(line, end);
      model_.Append(std::string(line), end);
      for (; Below(3) == 0; ++next) {
        text_.AppendHidden(next);
        model_.Hide(next);
      }
    }
  }

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::string Word() {
    std::string word(3, 'a');
    for (char& c : word) c = static_cast<char>('a' + Below(26));
    return word;
  }

  std::vector<std::string> Texts() {
    std::vector<std::string> texts(1 + static_cast<std::size_t>(Below(3) == 0 ? Below(90) : 0));
    for (std::string& text : texts) text = Below(8) == 0 ? "" : Word();
    return texts;
  }

  static std::string Joined(const std::vector<std::string>& texts) {
    std::string joined = texts[0];
    for (std::size_t i = 1; i < texts.size(); ++i) joined += (i % 2 ? "\r\n" : "\n") + texts[i];
    return joined;
  }

  void EditOnce() {
    const int count = model_.Count();
    const int choice = Below(3);
    if (choice == 0 || count == 0) {
      const int line = 1 + Below(count + 1);
      const auto texts = Texts();
      text_.Insert(line, Joined(texts));
      model_.Insert(line, texts);
    } else if (choice == 1) {
      const int line = 1 + Below(count);
      const auto texts = Texts();
      text_.Replace(line, Joined(texts));
      model_.Replace(line, texts);
    } else {
      const int line = 1 + Below(count);
      const int removed = 1 + Below(std::min(count - line + 1, 40));
      text_.Delete(line, removed);
      model_.Delete(line, removed);
    }
  }

  std::mt19937 random_{GetParam()};
  ModuleText text_;
  Model model_;
};

TEST_P(ModuleTextUnderRandomEdits, IsTheSameAsAPlainListOfLines) {
  ExpectSame(text_, model_);
  for (int edit = 0; edit < 300 && !HasFatalFailure(); ++edit) {
    SCOPED_TRACE(edit);
    EditOnce();
    ExpectSame(text_, model_);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ModuleTextUnderRandomEdits, testing::Range(1u, 21u));

TEST(ModuleTextRewrittenOften, KeepsEveryLineRight) {
  ModuleText text = ModuleText::FromText("untouched\r\nrewritten\r\n\r\n");
  text.Insert(4, "inserted");
  std::string latest;
  for (int i = 0; i < 30000; ++i) {
    latest = std::to_string(i) + std::string(1000, static_cast<char>('a' + i % 26));
    text.Replace(2, latest);
    if (i % 1000 == 0) text.Replace(3, "now and then " + std::to_string(i));
  }
  EXPECT_EQ(text.Line(1), "untouched");
  EXPECT_EQ(text.Line(2), latest);
  EXPECT_EQ(text.Line(3), "now and then 29000");
  EXPECT_EQ(text.Line(4), "inserted");
}

TEST(ModuleTextRewrittenOften, KeepsTheLinesAroundInsertionsAndDeletionsRight) {
  ModuleText text = ModuleText::FromText("first\r\nlast\r\n");
  const std::string filling(1000, 'x');
  for (int i = 0; i < 30000; ++i) {
    text.Insert(2, "new " + std::to_string(i) + filling + "\r\nsecond");
    ASSERT_EQ(text.Line(2), "new " + std::to_string(i) + filling);
    ASSERT_EQ(text.Line(3), "second");
    text.Delete(2, 2);
  }
  EXPECT_EQ(text.Joined(), "first\r\nlast");
}

}  // namespace module_text_property_test
}  // namespace brimwork
