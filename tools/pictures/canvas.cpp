#include "pictures/canvas.h"

namespace pictures {

Color Gradient(const std::vector<GradientStop>& stops, float place) {
  for (std::size_t i = 1; i < stops.size(); ++i) {
    if (place > stops[i].place) continue;
    const GradientStop& from = stops[i - 1];
    return Mix(from.color, stops[i].color,
               Smooth(from.place, stops[i].place, place) * 0.5F +
                   0.5F * Clamp01((place - from.place) / (stops[i].place - from.place)));
  }
  return stops.back().color;
}

Canvas Paint(const Scene& scene, base::PixelSize size, int samples) {
  Canvas canvas(size);
  const float step = 1.0F / static_cast<float>(size.height * samples);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      Color sum;
      for (int i = 0; i < samples * samples; ++i) {
        const auto column = static_cast<float>(x * samples + i % samples);
        const auto row = static_cast<float>(y * samples + i / samples);
        const Color color = scene((column + 0.5F) * step, (row + 0.5F) * step);
        sum = sum + Color{Clamp01(color.r), Clamp01(color.g), Clamp01(color.b)};
      }
      canvas.at(x, y) = sum * (1.0F / static_cast<float>(samples * samples));
    }
  }
  return canvas;
}

Scene PartOf(const Scene& scene, float left, float top, float height) {
  return [=](float x, float y) { return scene(left + x * height, top + y * height); };
}

}  // namespace pictures
