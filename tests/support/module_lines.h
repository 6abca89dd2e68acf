// A module's text as the lines that a test writes down.
#pragma once

#include <string>
#include <vector>

#include "environment/code_module.h"

namespace brimwork {

using TextLines = std::vector<std::string>;

/// Every line of its own, the last one ended too: no lines make an empty text.
inline std::string JoinedLines(const TextLines& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

inline TextLines LinesOf(CodeModule& module) {
  TextLines lines;
  for (int line = 1; line <= module.CountOfLines(); ++line) lines.push_back(module.Lines(line, 1));
  return lines;
}

}  // namespace brimwork
