#include "windows/desktop/send_keys.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "environment/resume_next.h"
#include "windows/desktop/key_input.h"

namespace brimwork::windows {
namespace send_keys_test {

using testing::ElementsAre;
using testing::IsEmpty;

KeyPress Letter(char32_t character) { return {.character = character}; }
KeyPress Named(std::uint16_t key) { return {.key = key}; }

bool IsRefused(std::string_view keys) {
  const auto error = ResumeNext([&] { ParseSendKeys(keys); });
  return error && error->Number() == 5;
}

TEST(SendKeys, PlainCharactersStandForThemselves) {
  EXPECT_THAT(ParseSendKeys("aB ö"),
              ElementsAre(Letter('a'), Letter('B'), Letter(' '), Letter(U'ö')));
  EXPECT_THAT(ParseSendKeys(""), IsEmpty());
}

TEST(SendKeys, ATildeIsEnter) { EXPECT_THAT(ParseSendKeys("~"), ElementsAre(Named(VK_RETURN))); }

TEST(SendKeys, NamesStandInBracesInAnyCase) {
  EXPECT_THAT(ParseSendKeys("{Del}{DELETE}{enter}{F1}{f16}{PgDn}"),
              ElementsAre(Named(VK_DELETE), Named(VK_DELETE), Named(VK_RETURN), Named(VK_F1),
                          Named(VK_F16), Named(VK_NEXT)));
}

TEST(SendKeys, CharactersThatMeanSomethingStandInBraces) {
  EXPECT_THAT(
      ParseSendKeys("{+}{^}{%}{~}{(}{)}{{}{}}{[}{]}{F}"),
      ElementsAre(Letter('+'), Letter('^'), Letter('%'), Letter('~'), Letter('('), Letter(')'),
                  Letter('{'), Letter('}'), Letter('['), Letter(']'), Letter('F')));
}

TEST(SendKeys, ACountRepeatsAKey) {
  EXPECT_THAT(ParseSendKeys("{LEFT 3}"),
              ElementsAre(Named(VK_LEFT), Named(VK_LEFT), Named(VK_LEFT)));
  EXPECT_THAT(ParseSendKeys("{h 2}"), ElementsAre(Letter('h'), Letter('h')));
  EXPECT_THAT(ParseSendKeys("{  2}"), ElementsAre(Letter(' '), Letter(' ')));
  EXPECT_THAT(ParseSendKeys("{x 0}"), IsEmpty());
}

TEST(SendKeys, AModifierHoldsForTheNextKey) {
  EXPECT_THAT(ParseSendKeys("^cd"),
              ElementsAre(KeyPress{.character = 'c', .ctrl = true}, Letter('d')));
  EXPECT_THAT(ParseSendKeys("%{F4}"), ElementsAre(KeyPress{.key = VK_F4, .alt = true}));
  EXPECT_THAT(ParseSendKeys("+^{END}"),
              ElementsAre(KeyPress{.key = VK_END, .shift = true, .ctrl = true}));
}

TEST(SendKeys, AModifierHoldsForAGroup) {
  EXPECT_THAT(ParseSendKeys("^(ac)x"),
              ElementsAre(KeyPress{.character = 'a', .ctrl = true},
                          KeyPress{.character = 'c', .ctrl = true}, Letter('x')));
  EXPECT_THAT(ParseSendKeys("^(a+(b)c)"),
              ElementsAre(KeyPress{.character = 'a', .ctrl = true},
                          KeyPress{.character = 'b', .shift = true, .ctrl = true},
                          KeyPress{.character = 'c', .ctrl = true}));
  EXPECT_THAT(ParseSendKeys("()"), IsEmpty());
}

TEST(SendKeys, RefusesWhatIsNoNotation) {
  for (const std::string_view keys :
       {"^", "(a", "a)", "{", "{}", "}", "[", "]", "{NONE}", "{F17}", "{F0}", "{LEFT x}",
        "{LEFT 99999}", "{LEFT 2000}", "^(a", "\xFF", "{\xFF}"}) {
    EXPECT_TRUE(IsRefused(keys)) << keys;
  }
}

// The events that the system gets.

/// Each event as "+key" or "-key", a character by itself as "+'u".
std::vector<std::string> Events(std::string_view keys) {
  std::vector<std::string> events;
  for (const INPUT& event : InputOf(ParseSendKeys(keys))) {
    const bool isUp = (event.ki.dwFlags & KEYEVENTF_KEYUP) != 0;
    const bool isUnit = (event.ki.dwFlags & KEYEVENTF_UNICODE) != 0;
    events.push_back(std::string(isUp ? "-" : "+") + (isUnit ? "'" : "") +
                     std::to_string(isUnit ? event.ki.wScan : event.ki.wVk));
  }
  return events;
}

TEST(KeyInput, ModifiersAreHeldAroundAGroup) {
  EXPECT_THAT(Events("^(ac)"), ElementsAre("+17", "+65", "-65", "+67", "-67", "-17"));
}

TEST(KeyInput, ModifiersAreReleasedInTheEnd) {
  EXPECT_THAT(Events("+{LEFT}%{F4}"),
              ElementsAre("+16", "+37", "-37", "-16", "+18", "+115", "-115", "-18"));
}

TEST(KeyInput, ACharacterWithoutAKeyGoesByItself) {
  EXPECT_THAT(Events("日"), ElementsAre("+'26085", "-'26085"));
  EXPECT_THAT(Events("\xF0\x9F\x98\x80"), ElementsAre("+'55357", "-'55357", "+'56832", "-'56832"));
}

TEST(KeyInput, KeysBesideTheNumberPadAreMarked) {
  const auto isExtended = [](std::string_view keys) {
    return (InputOf(ParseSendKeys(keys))[0].ki.dwFlags & KEYEVENTF_EXTENDEDKEY) != 0;
  };
  EXPECT_TRUE(isExtended("{DEL}"));
  EXPECT_TRUE(isExtended("{UP}"));
  EXPECT_FALSE(isExtended("{ENTER}"));
}

}  // namespace send_keys_test
}  // namespace brimwork::windows
