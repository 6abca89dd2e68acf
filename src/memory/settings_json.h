// Settings as JSON text: {"Application": {"Section": {"Key": "value"}}}. What else stands in the
// text is kept, but the way to the section asked for has to have this shape.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "memory/setting_values.h"

namespace brimwork {

/// Says where the text is damaged: line and column count from 1, columns in characters.
class SettingsTextError : public std::runtime_error {
 public:
  SettingsTextError(int line, int column, const std::string& problem)
      : std::runtime_error(problem), line_(line), column_(column) {}

  int Line() const { return line_; }
  int Column() const { return column_; }

 private:
  int line_;
  int column_;
};

/// The section's values; none when application or section is not there. Throws SettingsTextError
/// when the text is no JSON or the section has not the shape above.
SettingValues ReadSettingsSection(const std::string& text, std::string_view application,
                                  std::string_view section);

/// The text with one value set, laid out anew. The caller has read the section from text before, so
/// the text is known to be sound. Throws std::invalid_argument when a name or the value is not
/// UTF-8.
std::string WithSetting(const std::string& text, std::string_view application,
                        std::string_view section, std::string_view key, std::string_view value);

}  // namespace brimwork
