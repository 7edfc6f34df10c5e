#include "catalogue/MediaModel.h"

namespace {

// All rows without a thumbnail share one canvas.
QImage emptyCanvas(const QSize& size) {
    // Only views request it, so it is used on the GUI thread alone.
    static QImage canvas;
    if (canvas.size() != size)
        canvas = centredOnCanvas({}, size);
    return canvas;
}

} // namespace

QVariant MediaItem::data(int role) const {
    switch (role) {
    case Qt::DecorationRole:
        if (!_canvasSize.isValid())
            return {};
        return _thumbnail.isNull() ? emptyCanvas(_canvasSize) : centredOnCanvas(_thumbnail, _canvasSize);
    case RoleCanvasSize:
        return _canvasSize.isValid() ? QVariant(_canvasSize) : QVariant();
    case RoleHidden:
        return _hidden;
    default:
        return QStandardItem::data(role);
    }
}

void MediaItem::setData(const QVariant& value, int role) {
    switch (role) {
    case Qt::DecorationRole: {
        const auto image = value.value<QImage>();
        setThumbnail(image, image.size());
        emitDataChanged();
        break;
    }
    case RoleHidden:
        _hidden = value.toBool();
        emitDataChanged();
        break;
    default:
        QStandardItem::setData(value, role);
    }
}

void MediaItem::setThumbnail(const QImage& image, const QSize& canvasSize) {
    _thumbnail = compactThumbnail(image);
    _canvasSize = canvasSize;
}
