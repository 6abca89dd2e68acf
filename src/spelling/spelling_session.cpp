#include "spelling/spelling_session.h"

#include <algorithm>
#include <utility>

#include "environment/text.h"
#include "spelling/access_key.h"
#include "spelling/user_words.h"

namespace brimwork {
namespace {

constexpr std::size_t kMostSuggestions = 9;

std::string_view Written(std::string_view text, const TextWord& word) {
  return text.substr(word.offset, word.size);
}

/// The best of each list, then the second best of each, and so on; none twice.
std::vector<std::string> LikeliestOf(const std::vector<std::vector<std::string>>& lists) {
  std::size_t longest = 0;
  for (const auto& list : lists) longest = std::max(longest, list.size());
  std::vector<std::string> likeliest;
  for (std::size_t rank = 0; rank < longest; ++rank) {
    for (const auto& list : lists) {
      if (likeliest.size() == kMostSuggestions) return likeliest;
      const bool isNew = rank < list.size() && std::ranges::count(likeliest, list[rank]) == 0;
      if (isNew) likeliest.push_back(list[rank]);
    }
  }
  return likeliest;
}

}  // namespace

SpellingSession::SpellingSession(std::vector<Dictionary> dictionaries,
                                 std::filesystem::path userWords)
    : dictionaries_(std::move(dictionaries)), userWords_(std::move(userWords)) {
  for (const std::string& word : ReadUserWords(userWords_)) IgnoreAll(word);
}

std::vector<Misspelling> SpellingSession::Misspellings(std::string_view text) {
  std::vector<Misspelling> found;
  for (const TextWord& word : CutWords(text)) FindIn(text, word, found);
  return found;
}

void SpellingSession::FindIn(std::string_view text, const TextWord& word, Misspelled& found) {
  const std::string_view written = Written(text, word);
  const std::string form = LookedUpForm(written);
  const auto replacement = replacements_.find(form);
  if (replacement != replacements_.end()) {
    found.push_back({word.offset, word.size, form, InFormOf(written, replacement->second)});
  } else if (word.isCompound) {
    FindInParts(text, word, found);
  } else if (word.isProse && !IsRight(written)) {
    found.push_back({word.offset, word.size, form, std::nullopt});
  }
}

/// A compound that is known need not have parts that are words ("vis-a-vis").
void SpellingSession::FindInParts(std::string_view text, const TextWord& compound,
                                  Misspelled& found) {
  Misspelled inParts;
  for (const TextWord& part : PartsOf(text, compound)) FindIn(text, part, inParts);
  if (inParts.empty()) return;
  if (Knows(LookedUpForm(Written(text, compound)))) {
    std::erase_if(inParts, [](const Misspelling& part) { return !part.replacement; });
  }
  found.insert(found.end(), inParts.begin(), inParts.end());
}

/// An ampersand marks an access key ("E&xit") or joins two words ("black&white").
bool SpellingSession::IsRight(std::string_view written) {
  if (Knows(LookedUpForm(written))) return true;
  const std::vector<std::string_view> sides = Split(written, "&");
  return sides.size() > 1 && std::ranges::all_of(sides, [this](std::string_view side) {
           return side.size() > 1 && Knows(LookedUpForm(side));
         });
}

bool SpellingSession::Knows(const std::string& word) {
  if (known_.Holds(word)) return true;
  const auto [entry, isNew] = lookedUp_.try_emplace(word, false);
  if (isNew) entry->second = LookUp(word);
  return entry->second;
}

bool SpellingSession::LookUp(const std::string& word) {
  return dictionaries_.empty() || std::ranges::any_of(dictionaries_, [&](Dictionary& dictionary) {
           return dictionary.Knows(word);
         });
}

const std::vector<std::string>& SpellingSession::Suggestions(const std::string& word) {
  const auto [entry, isNew] = suggestions_.try_emplace(word);
  if (isNew) {
    std::vector<std::vector<std::string>> lists;
    for (Dictionary& dictionary : dictionaries_) lists.push_back(dictionary.Suggestions(word));
    entry->second = LikeliestOf(lists);
  }
  return entry->second;
}

void SpellingSession::IgnoreAll(std::string_view word) { known_.Add(LookedUpForm(word)); }

void SpellingSession::ReplaceAll(std::string_view word, const std::string& replacement) {
  replacements_.insert_or_assign(LookedUpForm(word), replacement);
}

void SpellingSession::AddToUserWords(const std::string& word) {
  IgnoreAll(word);
  AddUserWord(userWords_, word);
}

}  // namespace brimwork
