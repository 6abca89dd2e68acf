// A spelling dialog for tests: the user accepts one suggestion for each of some misspellings.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "environment/text.h"
#include "memory/memory_word_processor.h"

namespace brimwork {

struct SpellingCorrector {
  std::map<std::string, std::string> corrections;
  std::vector<std::string> texts;  // that the dialog was shown for

  std::string Correct(const std::string& text) {
    texts.push_back(text);
    std::string corrected = text;
    for (const auto& [wrong, right] : corrections) corrected = Replace(corrected, wrong, right);
    return corrected;
  }

  SpellingDialog Dialog() {
    return [this](const std::string& text) { return Correct(text); };
  }
};

}  // namespace brimwork
