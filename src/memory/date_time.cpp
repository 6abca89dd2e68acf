#include "memory/date_time.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <ctime>

#include "environment/text.h"
#include "memory/user_folders.h"

namespace brimwork {
namespace {

constexpr std::string_view kShape = "0000-00-00T00:00:00";
constexpr std::size_t kDateSize = 10;

bool HasShape(std::string_view text) {
  if (text.size() != kShape.size() && text.size() != kDateSize) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool fits = kShape[i] == '0'   ? IsDigit(text[i])
                      : kShape[i] == 'T' ? text[i] == 'T' || text[i] == ' '
                                         : text[i] == kShape[i];
    if (!fits) return false;
  }
  return true;
}

/// Digits that HasShape has seen; 0 behind the text's end.
int Number(std::string_view text, std::size_t at, std::size_t digits) {
  int number = 0;
  for (const char c : text.substr(std::min(at, text.size()), digits))
    number = number * 10 + c - '0';
  return number;
}

bool Exists(const DateTime& moment) {
  using namespace std::chrono;
  const year_month_day date(year(moment.year), month(static_cast<unsigned>(moment.month)),
                            day(static_cast<unsigned>(moment.day)));
  return moment.year > 0 && date.ok() && moment.hour < 24 && moment.minute < 60 &&
         moment.second < 60;
}

DateTime FromUtc(std::int64_t secondsSince1970) {
  using namespace std::chrono;
  const sys_seconds moment{seconds(secondsSince1970)};
  const auto day = floor<days>(moment);
  const year_month_day date(day);
  const hh_mm_ss time(moment - day);
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

DateTime FromSourceDateEpoch(const std::string& text) {
  constexpr std::int64_t kEndOfYear9999 = 253402300799;
  std::int64_t seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  if (error != std::errc() || end != text.data() + text.size() || seconds < 0 ||
      seconds > kEndOfYear9999) {
    throw DateTimeError("SOURCE_DATE_EPOCH is \"" + text +
                        "\", which is no number of seconds since 1970; correct or unset it");
  }
  return FromUtc(seconds);
}

DateTime FromLocalClock() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  tzset();  // localtime_r need not look at TZ by itself
  localtime_r(&now, &local);
  // A leap second has no place in Visual Basic's dates.
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     std::min(local.tm_sec, 59)};
}

}  // namespace

DateTime ParseDateTime(std::string_view text) {
  if (!HasShape(text)) {
    throw DateTimeError("\"" + std::string(text) +
                        "\" is no date; write it as 2026-11-21T10:20:30 or 2026-11-21");
  }
  const DateTime moment{Number(text, 0, 4),  Number(text, 5, 2),  Number(text, 8, 2),
                        Number(text, 11, 2), Number(text, 14, 2), Number(text, 17, 2)};
  if (!Exists(moment)) {
    throw DateTimeError("\"" + std::string(text) + "\" is a date or time that does not exist");
  }
  return moment;
}

DateTime ResolveNow(const std::optional<std::string>& given) {
  if (given) return ParseDateTime(*given);
  const std::string epoch = EnvironmentVariable("SOURCE_DATE_EPOCH");
  return epoch.empty() ? FromLocalClock() : FromSourceDateEpoch(epoch);
}

}  // namespace brimwork
