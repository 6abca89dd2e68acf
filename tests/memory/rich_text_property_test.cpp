// Random edits of formatted text, compared after each with the same edits on a plain list of
// characters.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "environment/utf8.h"
#include "memory/rich_text.h"
#include "support/random_rich_text.h"

namespace brimwork {
namespace rich_text_property_test {

struct ModelCharacter {
  std::string text;
  TextFormat format;
};

class Model {
 public:
  int Size() const { return static_cast<int>(characters_.size()); }
  const ModelCharacter& At(int position) const {
    return characters_[static_cast<std::size_t>(position)];
  }

  std::string Text(int start, int end) const {
    std::string text;
    for (int i = start; i < end; ++i) text += At(i).text;
    return text;
  }

  int Replace(TextRange range, std::string_view text) {
    auto [start, end] = Clamped(range);
    const bool isEmpty = start == end;
    if (IsWithinLineEnd(start)) --start;
    if (isEmpty) end = start;
    if (IsWithinLineEnd(end)) ++end;
    if (Size() > 0)
      formatOfNone_ = At(isEmpty && start > 0 ? start - 1 : std::min(start, Size() - 1)).format;
    std::vector<ModelCharacter> added;
    for (; !text.empty(); text.remove_prefix(Utf8Size(text))) {
      added.push_back({std::string(text.substr(0, Utf8Size(text))), formatOfNone_});
    }
    characters_.erase(characters_.begin() + start, characters_.begin() + end);
    characters_.insert(characters_.begin() + start, added.begin(), added.end());
    return start + static_cast<int>(added.size());
  }

  template <class Change>
  void Format(TextRange range, Change change) {
    auto [start, end] = Clamped(range);
    if (Size() == 0) change(formatOfNone_);
    if (IsWithinLineEnd(start)) ++start;
    if (IsWithinLineEnd(end)) ++end;
    for (int i = start; i < end; ++i) change(characters_[static_cast<std::size_t>(i)].format);
  }

  const TextFormat& FormatOfNone() const { return formatOfNone_; }

 private:
  struct Bounds {
    int start;
    int end;
  };

  Bounds Clamped(TextRange range) const {
    const int start = std::min(range.start, Size());
    return {start, std::min(start + range.length, Size())};
  }

  bool IsWithinLineEnd(int position) const { return position > 0 && At(position - 1).text == "\r"; }

  std::vector<ModelCharacter> characters_;
  TextFormat formatOfNone_;
};

void ExpectSameFormats(const RichText& content, const Model& model) {
  if (model.Size() == 0) {
    ASSERT_EQ(content.FormatAt(0), model.FormatOfNone());
  }
  for (int i = 0; i < model.Size(); ++i) ASSERT_EQ(content.FormatAt(i), model.At(i).format) << i;
  const auto runs = content.Formats().Runs();
  ASSERT_EQ(runs[0].start, 0u);
  for (std::size_t i = 1; i < runs.size(); ++i) {
    ASSERT_LT(runs[i - 1].start, runs[i].start);
    ASSERT_LT(runs[i].start, content.Text().size());
    ASSERT_NE(runs[i - 1].format, runs[i].format);
  }
}

void ExpectSameLines(const RichText& content, const Model& model) {
  int line = 0;
  int start = 0;
  for (int position = 0; position <= model.Size(); ++position) {
    if (position > 0 && model.At(position - 1).text == "\n") {
      ++line;
      start = position;
    }
    ASSERT_EQ(content.LineAt(position), line) << position;
    ASSERT_EQ(content.LineStart(line), start) << position;
    if (position == model.Size() || model.At(position).text == "\r") {
      ASSERT_EQ(content.Line(line), model.Text(start, position));
    }
  }
  ASSERT_EQ(content.LineCount(), line + 1);
}

class RichTextUnderRandomEdits : public testing::TestWithParam<unsigned> {
 protected:
  void EditOnce() {
    const TextRange range = random_.Range(model_.Size());
    switch (random_.Below(5)) {
      case 0:
        return SetColor(range, random_.AnyColor());
      case 1:
        return SetFontName(range, std::string(random_.FontName()));
      case 2:
        return SetFontSize(range, 1 + random_.Below(30));
      default:
        return Replace(range, random_.Text(random_.Below(model_.Size() > 100 ? 2 : 6)));
    }
  }

  void SetColor(TextRange range, Color color) {
    content_.SetColor(range, color);
    model_.Format(range, [&](TextFormat& format) { format.color = color; });
  }

  void SetFontName(TextRange range, const std::string& name) {
    content_.SetFontName(range, name);
    model_.Format(range, [&](TextFormat& format) { format.fontName = name; });
  }

  void SetFontSize(TextRange range, int points) {
    content_.SetFontSize(range, points);
    model_.Format(range, [&](TextFormat& format) { format.halfPoints = 2 * points; });
  }

  void Replace(TextRange range, const std::string& text) {
    ASSERT_EQ(content_.Replace(range, text), model_.Replace(range, text));
  }

  RandomRichText random_{GetParam()};
  RichText content_;
  Model model_;
};

TEST_P(RichTextUnderRandomEdits, IsTheSameAsAPlainListOfCharacters) {
  for (int edit = 0; edit < 250 && !HasFatalFailure(); ++edit) {
    SCOPED_TRACE(edit);
    EditOnce();
    ASSERT_EQ(content_.Text(), model_.Text(0, model_.Size()));
    ASSERT_EQ(content_.Size(), model_.Size());
    ExpectSameFormats(content_, model_);
    ExpectSameLines(content_, model_);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RichTextUnderRandomEdits, testing::Range(1u, 31u));

}  // namespace rich_text_property_test
}  // namespace brimwork
