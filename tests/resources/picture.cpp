#include "resources/picture.h"

#include <fstream>
#include <stdexcept>
#include <string>

namespace brimwork {

std::filesystem::path ResourcePath(std::string_view name) {
  return std::filesystem::path(BRIMWORK_SOURCE_DIR) / "resources" / name;
}

std::set<Colour> Palette() {
  constexpr std::string_view kRow = "| #";
  constexpr std::size_t kDigits = 6;
  std::ifstream readme(ResourcePath("README.md"));
  std::set<Colour> colours;
  for (std::string line; std::getline(readme, line);) {
    if (!line.starts_with(kRow)) continue;
    const std::string digits = line.substr(kRow.size(), kDigits);
    colours.insert(static_cast<Colour>(std::stoul(digits, nullptr, 16)));
  }
  if (colours.empty()) throw std::runtime_error("no palette in resources/README.md");
  return colours;
}

std::set<Colour> ColoursOf(const PixelPicture& picture) {
  std::set<Colour> colours(picture.pixels.begin(), picture.pixels.end());
  colours.erase(kTransparent);
  return colours;
}

int CountDifferences(const PixelPicture& one, const PixelPicture& other) {
  if (one.width != other.width || one.height != other.height) {
    throw std::runtime_error("pictures of two sizes cannot be compared");
  }
  int differences = 0;
  for (std::size_t i = 0; i < one.pixels.size(); ++i) {
    if (one.pixels[i] != other.pixels[i]) ++differences;
  }
  return differences;
}

}  // namespace brimwork
