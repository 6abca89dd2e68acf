#include "memory/settings_json.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <vector>

#include "environment/text.h"

namespace brimwork {
namespace {

using Json = nlohmann::ordered_json;

// Deeper text is refused, because writing it out again takes stack for each level.
constexpr std::size_t kDeepest = 100;

/// The part of the parser's message that says what is wrong, without its codes and its quotation.
std::string Problem(std::string_view message) {
  if (const auto codes = message.find("] "); codes != std::string_view::npos)
    message.remove_prefix(codes + 2);
  if (const auto place = message.find(" - "); place != std::string_view::npos)
    message.remove_prefix(place + 3);
  return std::string(message.substr(0, message.find("; ")));
}

/// A name from the text for an error of one line: line ends and the like become blanks.
std::string OnOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
  return text;
}

/// Takes the parser's events and collects one section's values. The events carry no positions, so
/// it asks the stream how far the parser has read; behind a key that is exact.
class SectionReader : public nlohmann::json_sax<Json> {
 public:
  SectionReader(const std::string& text, std::string_view application, std::string_view section)
      : text_(text), stream_(text), path_{std::string(application), std::string(section)} {}

  SettingValues Read() {
    Json::sax_parse(stream_, this);
    return std::move(values_);
  }

  bool null() override { return OtherValue(); }
  bool boolean(bool) override { return OtherValue(); }
  bool number_integer(number_integer_t) override { return OtherValue(); }
  bool number_unsigned(number_unsigned_t) override { return OtherValue(); }
  bool number_float(number_float_t, const string_t&) override { return OtherValue(); }
  bool binary(binary_t&) override { return OtherValue(); }

  bool string(string_t& value) override {
    if (!IsOnPath()) return true;
    if (matched_ != kInSection) FailAtValue(Expected());
    values_[key_] = value;
    return true;
  }

  bool start_object(std::size_t) override {
    if (IsOnPath()) {
      if (matched_ == kInSection) FailAtValue(Expected());
      ++matched_;
    }
    Open();
    return true;
  }

  bool key(string_t& name) override {
    keyEnd_ = Position();
    if (!keys_.back().insert(name).second)
      FailAt(keyEnd_ - 1, "the name \"" + OnOneLine(name) + "\" stands twice");
    if (keys_.size() == matched_) key_ = name;
    return true;
  }

  bool end_object() override {
    if (keys_.size() == matched_) --matched_;
    keys_.pop_back();
    return true;
  }

  bool start_array(std::size_t) override {
    OtherValue();
    Open();
    return true;
  }

  bool end_array() override {
    keys_.pop_back();
    return true;
  }

  bool parse_error(std::size_t position, const std::string&,
                   const nlohmann::detail::exception& error) override {
    FailAt(position == 0 ? 0 : position - 1, Problem(error.what()));
  }

 private:
  static constexpr std::size_t kInSection = 3;  // root, application and section are open

  /// Whether the value that comes next is the root, or named by the next name of the path, or a
  /// value of the section.
  bool IsOnPath() const {
    if (keys_.size() != matched_) return false;
    return matched_ == 0 || matched_ == kInSection || key_ == path_[matched_ - 1];
  }

  bool OtherValue() {
    if (IsOnPath()) FailAtValue(Expected());
    return true;
  }

  std::string Expected() const {
    if (matched_ == 0) return "the settings are no object in braces";
    return "the value of \"" + OnOneLine(key_) + "\" is " +
           (matched_ == kInSection ? "no text in quotes" : "no object in braces");
  }

  void Open() {
    if (keys_.size() == kDeepest) FailAt(Position() - 1, "the text is nested too deeply");
    keys_.emplace_back();
  }

  std::size_t Position() {
    return static_cast<std::size_t>(
        stream_.rdbuf()->pubseekoff(0, std::ios_base::cur, std::ios_base::in));
  }

  [[noreturn]] void FailAtValue(const std::string& problem) {
    FailAt(text_.find_first_not_of(" \t\r\n:", keyEnd_), problem);
  }

  [[noreturn]] void FailAt(std::size_t offset, const std::string& problem) const {
    const std::string_view before = std::string_view(text_).substr(0, offset);
    const auto lineStart = before.rfind('\n') + 1;  // npos + 1 is 0
    throw SettingsTextError(static_cast<int>(std::count(before.begin(), before.end(), '\n')) + 1,
                            CharacterCount(before.substr(lineStart)) + 1, problem);
  }

  const std::string& text_;
  std::istringstream stream_;
  std::vector<std::string> path_;
  std::vector<std::set<std::string>> keys_;  // the names seen in each open object or array
  std::size_t matched_ = 0;                  // how many open objects lie on the path
  std::string key_;                          // the last name in the innermost of these
  std::size_t keyEnd_ = 0;
  SettingValues values_;
};

}  // namespace

SettingValues ReadSettingsSection(const std::string& text, std::string_view application,
                                  std::string_view section) {
  return SectionReader(text, application, section).Read();
}

std::string WithSetting(const std::string& text, std::string_view application,
                        std::string_view section, std::string_view key, std::string_view value) {
  constexpr int kIndent = 2;
  Json settings = Json::parse(text);
  settings[std::string(application)][std::string(section)][std::string(key)] = value;
  try {
    return settings.dump(kIndent) + "\n";
  } catch (const Json::type_error&) {
    throw std::invalid_argument("the value for \"" + std::string(key) + "\" is not UTF-8");
  }
}

}  // namespace brimwork
