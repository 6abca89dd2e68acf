// The settings of one section, by key.
#pragma once

#include <functional>
#include <map>
#include <string>

namespace brimwork {

using SettingValues = std::map<std::string, std::string, std::less<>>;

}  // namespace brimwork
