#include "catalogue/IconIdentityProxyModel.h"

#include <QImage>

IconIdentityProxyModel::IconIdentityProxyModel(const QSize& iconSize, QObject* parent)
    : QIdentityProxyModel(parent), _iconSize(iconSize) {}

QVariant IconIdentityProxyModel::data(const QModelIndex& index, int role) const {
    if (index.column() == 0 && role == Qt::SizeHintRole)
        return _iconSize;
    QVariant value = QIdentityProxyModel::data(index, role);
    if (index.column() == 0 && role == Qt::DecorationRole) {
        if (const auto image = value.value<QImage>(); !image.isNull())
            return image.scaled(_iconSize, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    }
    return value;
}
