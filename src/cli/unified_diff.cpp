#include "cli/unified_diff.h"

#include <cstdio>
#include <string>

#include "environment/text.h"

namespace brimwork {
namespace {

bool NeedsQuotes(char c) { return static_cast<unsigned char>(c) < ' ' || c == '"' || c == '\\'; }

std::string Escaped(char c) {
  if (c == '"' || c == '\\') return {'\\', c};
  char octal[8];
  std::snprintf(octal, sizeof octal, "\\%03o",
                static_cast<unsigned>(static_cast<unsigned char>(c)));
  return octal;
}

/// A name as a header line holds it: quoted where a character would end or bend the line, and
/// closed with a tab where a blank would end the name.
std::string HeaderName(std::string_view name) {
  std::string quoted;
  bool needsQuotes = false;
  for (const char c : name) {
    needsQuotes = needsQuotes || NeedsQuotes(c);
    quoted += NeedsQuotes(c) ? Escaped(c) : std::string(1, c);
  }
  if (needsQuotes) return '"' + quoted + '"';
  return Contains(name, " ") ? quoted + '\t' : quoted;
}

}  // namespace

DiffStat UnifiedDiff(const DiffLabels& labels, const FileLines& before, const FileLines& after,
                     const std::vector<DiffAnchor>& anchors, const DiffOptions& options,
                     const TextSink& sink) {
  std::string header =
      "--- " + HeaderName(labels.before) + "\n+++ " + HeaderName(labels.after) + "\n";
  HunkWriter writer(before, after, std::move(header), options, sink);
  CompareFiles(before, after, anchors, writer);
  return writer.Finish();
}

}  // namespace brimwork
