#include "imaging/ResizeGeometry.h"

#include <algorithm>

namespace {

constexpr int kSideFollows = -1;

std::optional<QImage> resizedToSpecificSize(const QImage& image, const ResizeOptions& options) {
    const QSize& size = options.specificSize;
    switch (specificSizeOperation(size)) {
    case SpecificSizeOperation::Nothing:
        return std::nullopt;
    case SpecificSizeOperation::ScaleToHeight:
        return image.scaledToHeight(size.height(), options.transformationMode);
    case SpecificSizeOperation::ScaleToWidth:
        return image.scaledToWidth(size.width(), options.transformationMode);
    case SpecificSizeOperation::ScaleToSize:
        return image.scaled(size, options.aspectRatioMode, options.transformationMode);
    }
    return std::nullopt;
}

} // namespace

ResizeMode resizeModeAfterToggle(ResizeMode toggled, bool on) {
    if (on)
        return toggled;
    return toggled == ResizeMode::Scale ? ResizeMode::SpecificSize : ResizeMode::Scale;
}

SpecificSizeOperation specificSizeOperation(const QSize& size) {
    if (size.width() == kSideFollows)
        return size.height() == kSideFollows ? SpecificSizeOperation::Nothing
                                             : SpecificSizeOperation::ScaleToHeight;
    return size.height() == kSideFollows ? SpecificSizeOperation::ScaleToWidth
                                         : SpecificSizeOperation::ScaleToSize;
}

QSize scaledSize(const QSize& size, double factor) {
    return size * factor;
}

QRect aspectRatioCrop(const QSize& size, double aspectRatio) {
    const int height = static_cast<int>(std::min(size.width(), size.height()) * aspectRatio);
    QRect crop(QPoint(0, 0), size.scaled(QSize(size.width(), height), Qt::IgnoreAspectRatio));
    crop.moveCenter(QRect(QPoint(0, 0), size).center());
    return crop;
}

QImage reducedToFit(const QImage& image, const QSize& size) {
    if (image.width() <= size.width() && image.height() <= size.height())
        return image;
    return image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

std::optional<QImage> resizedImage(const QImage& image, const ResizeOptions& options) {
    switch (options.mode) {
    case ResizeMode::None:
        return std::nullopt;
    case ResizeMode::Scale:
        return image.scaled(scaledSize(image.size(), options.scale), options.aspectRatioMode,
                            options.transformationMode);
    case ResizeMode::SpecificSize:
        return resizedToSpecificSize(image, options);
    case ResizeMode::AspectRatio:
        return image.copy(aspectRatioCrop(image.size(), options.aspectRatio));
    }
    return std::nullopt;
}
