// What a project file's text is to be once its project has changed; what did not change keeps every
// character.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace brimwork::bench {

/// How a project file lists a component. The name is "" where the line gives the file alone.
struct Listing {
  std::string name;
  std::string file;

  bool operator==(const Listing&) const = default;
};

/// A component as the project file lists it so far and as it is to be listed.
struct ComponentListing {
  int type = 0;    // component_type::k...
  Listing before;  // no file: not yet
  Listing now;
};

/// The text with the components listed as they are now, each on its line; lines of components that
/// are not among them go, new ones come behind those of their kind. What the project starts with
/// follows a new name.
std::string WithListings(std::string text, std::span<const ComponentListing> listings);

}  // namespace brimwork::bench
