#include "memory/locale_clock.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>
#include <time.h>

#include <array>
#include <cstdio>
#include <memory>
#include <type_traits>

#include "environment/text.h"
#include "memory/user_folders.h"

namespace brimwork {
namespace {

struct FreeLocale {
  void operator()(locale_t locale) const { freelocale(locale); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

/// Null for a locale that is not installed, and for those whose dates are the plain ones.
Locale OpenLocale(const std::string& name) {
  const std::string_view base = Split(name, ".").front();
  if (base == "C" || base == "POSIX") return nullptr;
  return Locale(newlocale(LC_TIME_MASK | LC_CTYPE_MASK, name.c_str(), nullptr));
}

std::string PlainDate(const DateTime& now) {
  return std::to_string(now.month) + "/" + std::to_string(now.day) + "/" + std::to_string(now.year);
}

std::string PlainTime(const DateTime& now) {
  const int hour = now.hour % 12 == 0 ? 12 : now.hour % 12;
  std::array<char, 16> minutesAndSeconds{};
  std::snprintf(minutesAndSeconds.data(), minutesAndSeconds.size(), ":%02d:%02d", now.minute,
                now.second);
  return std::to_string(hour) + minutesAndSeconds.data() + (now.hour < 12 ? " AM" : " PM");
}

/// text in UTF-8; as it is when its character set is not known.
std::string ToUtf8(const std::string& text, const char* characterSet) {
  const iconv_t converter = iconv_open("UTF-8", characterSet);
  if (converter == reinterpret_cast<iconv_t>(-1)) return text;
  std::string from = text;
  std::string to(from.size() * 4, '\0');
  char* input = from.data();
  char* output = to.data();
  std::size_t inputLeft = from.size();
  std::size_t outputLeft = to.size();
  const bool converted =
      iconv(converter, &input, &inputLeft, &output, &outputLeft) != static_cast<std::size_t>(-1);
  iconv_close(converter);
  if (!converted) return text;
  to.resize(to.size() - outputLeft);
  return to;
}

int DayOfWeek(const DateTime& now) {
  std::tm noon{};
  noon.tm_year = now.year - 1900;
  noon.tm_mon = now.month - 1;
  noon.tm_mday = now.day;
  noon.tm_hour = 12;
  timegm(&noon);
  return noon.tm_wday;
}

std::string Formatted(const DateTime& now, const std::string& form, locale_t locale) {
  std::tm time{};
  time.tm_year = now.year - 1900;
  time.tm_mon = now.month - 1;
  time.tm_mday = now.day;
  time.tm_hour = now.hour;
  time.tm_min = now.minute;
  time.tm_sec = now.second;
  time.tm_wday = DayOfWeek(now);
  std::array<char, 256> text{};
  const std::size_t size = strftime_l(text.data(), text.size(), form.c_str(), &time, locale);
  return ToUtf8(std::string(text.data(), size), nl_langinfo_l(CODESET, locale));
}

/// The conversion letter of the directive that starts at the percent sign, past flags and width.
std::size_t ConversionAt(std::string_view form, std::size_t percent) {
  const auto letter = form.find_first_not_of("_-^#0123456789", percent + 1);
  return letter == std::string_view::npos ? form.size() : letter;
}

}  // namespace

std::string DateLocaleName() {
  for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
    if (std::string name = EnvironmentVariable(variable); !name.empty()) return name;
  }
  return "C";
}

std::string WithFullYear(std::string_view dateForm) {
  std::string form(dateForm);
  for (auto percent = form.find('%'); percent != std::string::npos;) {
    const std::size_t letter = ConversionAt(form, percent);
    if (letter == form.size()) break;
    if (form[letter] == 'D') form.replace(percent, letter + 1 - percent, "%m/%d/%y");
    if (form[letter] == 'y') form[letter] = 'Y';
    percent = form.find('%', letter + 1);
  }
  return form;
}

LocaleClock::LocaleClock(const DateTime& now, const std::string& localeName) {
  const Locale locale = OpenLocale(localeName);
  if (!locale) {
    shortDate_ = PlainDate(now);
    generalDate_ = shortDate_ + " " + PlainTime(now);
    return;
  }
  const std::string dateForm = WithFullYear(nl_langinfo_l(D_FMT, locale.get()));
  shortDate_ = Formatted(now, dateForm, locale.get());
  generalDate_ = Formatted(now, dateForm + " " + nl_langinfo_l(T_FMT, locale.get()), locale.get());
}

}  // namespace brimwork
