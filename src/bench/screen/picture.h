// A button's picture: 16 by 16 points, each of a colour or see-through.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace brimwork::bench {

/// 0xAARRGGBB, with an AA of 0 (see-through) or 255.
using Colour = std::uint32_t;

inline constexpr Colour kSeeThrough = 0;

struct Picture {
  static constexpr int kSize = 16;

  std::array<Colour, kSize * kSize> points{};

  Colour& At(int x, int y) { return points[static_cast<std::size_t>(y * kSize + x)]; }
  Colour At(int x, int y) const { return points[static_cast<std::size_t>(y * kSize + x)]; }

  bool operator==(const Picture&) const = default;
};

inline bool IsSeeThrough(Colour colour) { return colour >> 24 == 0; }

}  // namespace brimwork::bench
