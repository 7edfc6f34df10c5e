#pragma once

#include <QSignalBlocker>
#include <QStandardItemModel>

// The catalogue's model. Rows that come by the thousand are announced as one change.
class MediaItemModel : public QStandardItemModel {
    Q_OBJECT

public:
    using QStandardItemModel::QStandardItemModel;

    // While it lives, appended rows are not announced one by one; at its end the model is reset.
    class BulkInsert {
    public:
        explicit BulkInsert(MediaItemModel& model) : _model(model) {
            _model.beginResetModel();
            _model.blockSignals(true);
        }
        ~BulkInsert() {
            _model.blockSignals(false);
            _model.endResetModel();
        }
        Q_DISABLE_COPY_MOVE(BulkInsert)

    private:
        MediaItemModel& _model;
    };
};
