// The stretches of one line of code that are meant for people: literals and comments.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "environment/basic_lines.h"

namespace brimwork {

struct ProseStretch {
  std::size_t offset = 0;  // in bytes
  std::size_t size = 0;

  bool Holds(std::size_t at) const { return offset <= at && at < offset + size; }
  bool operator==(const ProseStretch&) const = default;
};

/// The insides of literals and the whole comment, from the left. above: what the line continues.
std::vector<ProseStretch> ProseOf(std::string_view line, Continues above);

}  // namespace brimwork
