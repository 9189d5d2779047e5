// Sizes, points and rectangles in whole pixels, top-left origin.
#pragma once

#include <algorithm>

namespace base {

struct PixelSize {
  int width = 0;
  int height = 0;

  bool isEmpty() const { return width <= 0 || height <= 0; }
  bool operator==(const PixelSize&) const = default;
};

struct PixelPoint {
  int x = 0;
  int y = 0;

  bool operator==(const PixelPoint&) const = default;
};

// A place in twips.
struct TwipsPoint {
  float x = 0;
  float y = 0;
};

// Half open: covers columns left to right() - 1 and rows top to bottom() - 1.
struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  static PixelRect ofSize(PixelSize size) { return {0, 0, size.width, size.height}; }

  int right() const { return left + width; }
  int bottom() const { return top + height; }
  bool isEmpty() const { return width <= 0 || height <= 0; }
  PixelSize size() const { return {width, height}; }
  long long area() const { return isEmpty() ? 0 : static_cast<long long>(width) * height; }
  bool contains(PixelPoint p) const { return p.x >= left && p.x < right() && p.y >= top && p.y < bottom(); }
  PixelRect movedBy(int dx, int dy) const { return {left + dx, top + dy, width, height}; }

  // The common part; empty (all zero) when the two do not meet.
  PixelRect intersected(const PixelRect& other) const {
    const int l = std::max(left, other.left);
    const int t = std::max(top, other.top);
    const int r = std::min(right(), other.right());
    const int b = std::min(bottom(), other.bottom());
    if (r <= l || b <= t) return {};
    return {l, t, r - l, b - t};
  }

  // The smallest rectangle around both; an empty one adds nothing.
  PixelRect united(const PixelRect& other) const {
    if (isEmpty()) return other;
    if (other.isEmpty()) return *this;
    const int l = std::min(left, other.left);
    const int t = std::min(top, other.top);
    return {l, t, std::max(right(), other.right()) - l, std::max(bottom(), other.bottom()) - t};
  }

  bool operator==(const PixelRect&) const = default;
};

}  // namespace base
