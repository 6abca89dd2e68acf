// What the user sees of the environment's windows and command bars.
#pragma once

#include <string>
#include <vector>

#include "environment/vbe.h"

namespace brimwork {

/// The captions of the visible windows, in the order of the collection.
inline std::vector<std::string> ShownWindows(VBE& vbe) {
  std::vector<std::string> captions;
  for (const auto& window : vbe.Windows()) {
    if (window->Visible()) captions.push_back(window->Caption());
  }
  return captions;
}

/// The names of the visible command bars, in the order of the collection.
inline std::vector<std::string> ShownBars(VBE& vbe) {
  std::vector<std::string> names;
  for (const auto& bar : vbe.CommandBars()) {
    if (bar->Visible()) names.push_back(bar->Name());
  }
  return names;
}

}  // namespace brimwork
