#include "imaging/ResizeGeometry.h"

#include "app/services/ImageFile.h"

#include <QSizeF>

#include <algorithm>

namespace {

constexpr int sideFollows = -1;

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

// An estimate of the result's size in floating point, as its sides may exceed any integer.
QSizeF resizedSize(QSizeF size, const ResizeOptions& options) {
    if (options.mode == ResizeMode::None)
        return size;
    if (options.mode == ResizeMode::Scale)
        return size * options.scale;
    if (options.mode == ResizeMode::AspectRatio)
        return {size.width(), std::min(size.width(), size.height()) * options.aspectRatio};
    QSizeF target = options.specificSize;
    const SpecificSizeOperation operation = specificSizeOperation(options.specificSize);
    // The side that follows gets the ratio of the source.
    if (operation == SpecificSizeOperation::ScaleToHeight)
        target.setWidth(size.width() * target.height() / size.height());
    if (operation == SpecificSizeOperation::ScaleToWidth)
        target.setHeight(size.height() * target.width() / size.width());
    size.scale(target, options.aspectRatioMode);
    return size;
}

} // namespace

ResizeMode resizeModeAfterToggle(ResizeMode toggled, bool on) {
    if (on)
        return toggled;
    // One mode stays chosen: switching it off chooses another.
    return toggled == ResizeMode::Scale ? ResizeMode::SpecificSize : ResizeMode::Scale;
}

SpecificSizeOperation specificSizeOperation(const QSize& size) {
    if (size.width() == sideFollows)
        return size.height() == sideFollows ? SpecificSizeOperation::Nothing
                                            : SpecificSizeOperation::ScaleToHeight;
    return size.height() == sideFollows ? SpecificSizeOperation::ScaleToWidth
                                        : SpecificSizeOperation::ScaleToSize;
}

QSize scaledSize(const QSize& size, double factor) {
    // QSize rounds, and limits the result to the range of int.
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
    // Checked before Qt computes the size in integers.
    if (exceedsImageAllocationLimit(resizedSize(image.size(), options)))
        return QImage();
    switch (options.mode) {
    case ResizeMode::None:
        return std::nullopt;
    case ResizeMode::Scale:
        return image.scaled(scaledSize(image.size(), options.scale), options.aspectRatioMode,
                            options.transformationMode);
    case ResizeMode::SpecificSize:
        return resizedToSpecificSize(image, options);
    case ResizeMode::AspectRatio:
        // Where the crop reaches beyond the image, copy() sets the pixels to 0.
        return image.copy(aspectRatioCrop(image.size(), options.aspectRatio));
    }
    return std::nullopt;
}
