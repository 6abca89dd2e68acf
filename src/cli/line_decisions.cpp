#include "cli/line_decisions.h"

#include <algorithm>
#include <utility>

namespace brimwork {

bool LineDecisions::Cover(std::size_t offset, std::size_t size) const {
  return std::ranges::any_of(decisions_, [&](const Decision& decision) {
    return decision.offset < offset + size && offset < decision.offset + decision.size;
  });
}

void LineDecisions::Add(std::size_t offset, std::size_t size,
                        std::optional<std::string> replacement) {
  const auto behind = std::ranges::upper_bound(decisions_, offset, {}, &Decision::offset);
  decisions_.insert(behind, {offset, size, std::move(replacement)});
}

std::string LineDecisions::Corrected(std::string_view line, std::size_t offset,
                                     std::size_t end) const {
  std::string corrected;
  for (const Decision& decision : decisions_) {
    if (!decision.IsIn(offset, end) || !decision.replacement) continue;
    corrected.append(line.substr(offset, decision.offset - offset)).append(*decision.replacement);
    offset = decision.offset + decision.size;
  }
  return corrected.append(line.substr(offset, end - offset));
}

void LineDecisions::TakeOver(std::size_t offset, std::size_t end) {
  std::size_t added = 0;  // wraps around where the line has become shorter
  for (Decision& decision : decisions_) {
    const bool isWritten = decision.replacement && decision.IsIn(offset, end);
    decision.offset += added;
    if (!isWritten) continue;
    added += decision.replacement->size() - decision.size;
    decision.size = decision.replacement->size();
    decision.replacement.reset();
  }
}

}  // namespace brimwork
