#include "bench/model/project_changes.h"

#include <algorithm>
#include <ranges>
#include <vector>

#include "bench/model/component_kind.h"
#include "environment/text.h"
#include "memory/project_lines.h"

namespace brimwork::bench {
namespace {

constexpr std::string_view kNamingKeys[] = {"Startup", "IconForm"};

const ComponentListing* ListedOn(const ProjectLine& line,
                                 std::span<const ComponentListing> listings) {
  const std::string_view file = ComponentIn(line.value).file;
  const auto found = std::ranges::find_if(
      listings, [&](const ComponentListing& listing) { return listing.before.file == file; });
  return found == listings.end() ? nullptr : &*found;
}

std::string ValueFor(const ProjectLine& line, const Listing& now) {
  const bool isQuoted = Unquoted(line.value) != line.value;
  if (!ComponentIn(line.value).name.empty()) return now.name + "; " + now.file;
  return isQuoted ? '"' + now.file + '"' : now.file;
}

bool IsAsBefore(const ProjectLine& line, const ComponentListing& listing) {
  const bool namesIt = !ComponentIn(line.value).name.empty();
  return listing.before.file == listing.now.file &&
         (!namesIt || listing.before.name == listing.now.name);
}

/// The text with what one line lists as it is now.
std::string WithLineChanged(const std::string& text, const ProjectLine& line,
                            std::span<const ComponentListing> listings) {
  const ComponentListing* listing = ListedOn(line, listings);
  if (listing == nullptr) return WithoutLine(text, line);
  if (IsAsBefore(line, *listing)) return text;
  return WithValueOf(text, line, ValueFor(line, listing->now));
}

std::string WithNameFollowed(std::string text, const ComponentListing& listing) {
  for (const std::string_view key : kNamingKeys) {
    for (const ProjectLine& line : ProjectLinesOf(text)) {
      if (!EqualNames(line.key, key) || Unquoted(line.value) != listing.before.name) continue;
      text = WithProjectValue(text, key, listing.now.name);
      break;
    }
  }
  return text;
}

}  // namespace

std::string WithListings(std::string text, std::span<const ComponentListing> listings) {
  const auto count = ProjectLinesOf(text).size();
  // From the last line up, so that the ones above stay where they are.
  for (std::size_t i = count; i-- > 0;) {
    const std::vector<ProjectLine> lines = ProjectLinesOf(text);
    if (KindOfKey(lines[i].key) != nullptr) text = WithLineChanged(text, lines[i], listings);
  }
  for (const ComponentListing& listing : listings) {
    if (listing.before.file.empty()) {
      text =
          WithComponentLine(text, KindOfType(listing.type).key, listing.now.name, listing.now.file);
    } else if (listing.before.name != listing.now.name) {
      text = WithNameFollowed(std::move(text), listing);
    }
  }
  return text;
}

}  // namespace brimwork::bench
