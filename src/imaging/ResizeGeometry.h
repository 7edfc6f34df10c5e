#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <optional>

// The three ways to resize; exactly one is chosen at a time.
enum class ResizeMode { None, SpecificSize, Scale, AspectRatio };

// The mode that is chosen after the user switched one on or off.
[[nodiscard]] ResizeMode resizeModeAfterToggle(ResizeMode toggled, bool on);

// The operation that a specific size requests; -1 means that this side follows the other.
enum class SpecificSizeOperation { Nothing, ScaleToHeight, ScaleToWidth, ScaleToSize };
[[nodiscard]] SpecificSizeOperation specificSizeOperation(const QSize& size);

struct ResizeOptions {
    ResizeMode mode = ResizeMode::SpecificSize;
    QSize specificSize{1920, 1080};
    double scale = 1.5;
    double aspectRatio = 1.5;
    Qt::AspectRatioMode aspectRatioMode = Qt::KeepAspectRatio;
    Qt::TransformationMode transformationMode = Qt::SmoothTransformation;

    bool operator==(const ResizeOptions&) const = default;
};

// Each side times the factor, rounded to the nearest, halves away from zero.
[[nodiscard]] QSize scaledSize(const QSize& size, double factor);

// The centred crop: full width, and as height the shorter side times the ratio, truncated. It extends beyond
// an image of less height.
[[nodiscard]] QRect aspectRatioCrop(const QSize& size, double aspectRatio);

// The image itself, or a smooth copy that fits into the size if the image is wider or higher.
[[nodiscard]] QImage reducedToFit(const QImage& image, const QSize& size);

// Nothing if the options request no operation; a null image if the new size is empty or too large.
[[nodiscard]] std::optional<QImage> resizedImage(const QImage& image, const ResizeOptions& options);
