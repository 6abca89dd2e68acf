// What the options of a run mean, the same for every file of it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/command_request.h"
#include "memory/date_time.h"
#include "memory/setting_values.h"

namespace brimwork {

struct SpellRun;

struct RunOptions {
  CommandRequest command;
  bool write = false;  // with none of these three, the result of one file goes to standard output
  bool check = false;
  bool diff = false;
  bool lists = false;     // tell about the files and change none
  bool isUnsafe = false;  // write also what brimwork cannot vouch for
  bool warnings = true;

  std::string encoding = "WINDOWS-1252";
  std::optional<int> tabWidth;
  SettingValues settings;  // the stored ones, with those of this run in front
  DateTime now;
  std::string dateLocale;

  std::vector<std::string> paths;  // as given; "-" is standard input
  std::string stdinFileName;
  std::optional<int> jobs;  // none: one a processor

  std::shared_ptr<SpellRun> spelling;  // null: no spelling is checked

  bool PrintsResult() const { return !write && !check && !diff && !lists; }
};

}  // namespace brimwork
