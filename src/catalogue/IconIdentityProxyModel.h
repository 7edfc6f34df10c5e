#pragma once

#include <QIdentityProxyModel>
#include <QSize>

// Shows the decoration of the first column at icon size, for the views with many columns.
class IconIdentityProxyModel : public QIdentityProxyModel {
    Q_OBJECT

public:
    explicit IconIdentityProxyModel(const QSize& iconSize, QObject* parent = nullptr);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QSize _iconSize;
};
