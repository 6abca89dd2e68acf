// Access keys inside the words of captions: the "&" in front of the letter to be pressed.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

/// The word as it is looked up: without access keys, apostrophes in their plain form.
std::string LookedUpForm(std::string_view word);

/// replacement as it takes the place of word: with its access key on the same letter (on the first
/// one when the letter is gone) and its form of apostrophes. A replacement with an access key of
/// its own stays as it is.
std::string InFormOf(std::string_view word, std::string_view replacement);

}  // namespace brimwork
