#pragma once

#include <QImage>

#include <array>
#include <functional>

// The pixel work of the filters as plain loops over opaque images of 32 bits a pixel.
namespace reference {

// Every channel through a table; alpha becomes 255.
[[nodiscard]] QImage mapped(QImage image, const std::function<int(int)>& channel);

// Feeds each pixel into the next, down, right, up and left, walking whole columns one after the other. The
// weight is in sixteenths. Gives premultiplied words.
[[nodiscard]] QImage blurredByColumns(const QImage& image, int weight);

// A kernel of three by three. Taps outside the image are left out.
[[nodiscard]] QImage convolved(const QImage& image, const std::array<int, 9>& kernel);

} // namespace reference
