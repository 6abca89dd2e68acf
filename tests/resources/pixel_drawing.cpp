#include "resources/pixel_drawing.h"

#include <cstdio>
#include <stdexcept>
#include <string>

namespace brimwork {
namespace {

struct Rectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

[[noreturn]] void Refuse(std::string_view what) {
  throw std::runtime_error("no pixel drawing: " + std::string(what));
}

/// The value of an attribute of an element; throws when it has none.
std::string Attribute(std::string_view element, std::string_view name) {
  const std::string opening = ' ' + std::string(name) + "=\"";
  const std::size_t at = element.find(opening);
  if (at == std::string_view::npos)
    Refuse("no " + std::string(name) + " in " + std::string(element));
  const std::size_t start = at + opening.size();
  return std::string(element.substr(start, element.find('"', start) - start));
}

PixelPicture EmptyPicture(std::string_view element) {
  if (Attribute(element, "shape-rendering") != "crispEdges") Refuse("its edges are not crisp");
  const std::string box = Attribute(element, "viewBox");
  PixelPicture picture;
  int end = 0;
  const int numbers =
      std::sscanf(box.c_str(), "0 0 %d %d%n", &picture.width, &picture.height, &end);
  if (numbers != 2 || end != static_cast<int>(box.size())) Refuse("the viewBox " + box);
  picture.pixels.assign(static_cast<std::size_t>(picture.width * picture.height), kTransparent);
  return picture;
}

/// Takes the first rectangle off a path's data.
Rectangle TakeRectangle(std::string& data) {
  Rectangle rectangle;
  int back = 0;
  int end = 0;
  std::sscanf(data.c_str(), "M%d %dh%dv%dh-%dz %n", &rectangle.x, &rectangle.y, &rectangle.width,
              &rectangle.height, &back, &end);
  if (end == 0 || back != rectangle.width) Refuse("no rectangle on whole pixels: " + data);
  data.erase(0, static_cast<std::size_t>(end));
  return rectangle;
}

void FillRectangle(PixelPicture& picture, const Rectangle& r, Colour colour) {
  if (r.x < 0 || r.y < 0 || r.x + r.width > picture.width || r.y + r.height > picture.height) {
    Refuse("a rectangle outside the picture");
  }
  for (int y = r.y; y < r.y + r.height; ++y) {
    for (int x = r.x; x < r.x + r.width; ++x) picture.At(x, y) = colour;
  }
}

void FillPath(PixelPicture& picture, std::string_view element) {
  const std::string fill = Attribute(element, "fill");
  unsigned colour = 0;
  if (std::sscanf(fill.c_str(), "#%6x", &colour) != 1) Refuse("the fill " + fill);
  std::string data = Attribute(element, "d");
  while (!data.empty()) FillRectangle(picture, TakeRectangle(data), colour);
}

void DrawElement(PixelPicture& picture, std::string_view element) {
  if (element.starts_with("svg ")) {
    picture = EmptyPicture(element);
  } else if (element.starts_with("path ")) {
    FillPath(picture, element);
  } else if (element != "title" && element != "/title" && element != "/svg") {
    Refuse("the element " + std::string(element));
  }
}

}  // namespace

PixelPicture DrawPixels(std::string_view svg) {
  PixelPicture picture;
  for (std::size_t at = svg.find('<'); at != std::string_view::npos; at = svg.find('<', at)) {
    const std::size_t end = svg.find('>', at);
    if (end == std::string_view::npos) Refuse("an element without an end");
    DrawElement(picture, svg.substr(at + 1, end - at - 1));
    at = end;
  }
  return picture;
}

}  // namespace brimwork
