// Pictures by key, for whoever asks the form for them. It is not seen.
#pragma once

#include <string>
#include <string_view>

#include "environment/control.h"
#include "environment/run_time_error.h"

namespace brimwork {

class ImageList : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kImageList; }

  /// The name of the picture's resource. Raises error 35601 for a key that the list has not.
  std::string_view Picture(std::string_view key) const {
    for (const ImageLayout& image : Layout().images) {
      if (image.key == key) return image.resource;
    }
    throw RunTimeError(error_number::kElementNotFound, "Element not found");
  }
};

}  // namespace brimwork
