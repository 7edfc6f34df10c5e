#pragma once

#include "imaging/ImageFilters.h"

#include <QHash>
#include <QVariant>
#include <QWidget>

#include <memory>

class QListWidgetItem;

namespace Ui {
class ImageFilterWidgetBase;
}

// One row of the effect list: the user's control of a filter and at the same time its only data.
class ImageFilterWidgetBase : public QWidget {
    Q_OBJECT

public:
    explicit ImageFilterWidgetBase(QWidget* parent = nullptr);
    ~ImageFilterWidgetBase() override;

    void setFilterType(ImageFilters::FilterType type);
    [[nodiscard]] ImageFilters::FilterType filterType() const { return _filterType; }
    // The row becomes the owner of the widget.
    void setOptionWidget(QWidget* widget);
    [[nodiscard]] QWidget* optionWidget() const { return _optionWidget; }
    // The list item that shows this row; not owned.
    void setItem(QListWidgetItem* item) { _item = item; }
    [[nodiscard]] QListWidgetItem* item() const { return _item; }

    [[nodiscard]] bool isFilterEnabled() const;
    // With blockSignals, optionChanged is not emitted.
    void setFilterEnabled(bool enabled, bool blockSignals);

    // "bypassed" always; with a slider "sliderType" and "value" (whole) or "valueD" (tenths).
    [[nodiscard]] QHash<QString, QVariant> options() const;
    // Missing keys count as false and 0.
    void setOptions(const QHash<QString, QVariant>& options);

    void updateIcons(bool dark);

signals:
    void optionChanged();
    void itemDelete();
    void itemMoveUp();
    void itemMoveDown();

private:
    std::unique_ptr<Ui::ImageFilterWidgetBase> _ui;
    QWidget* _optionWidget = nullptr;
    ImageFilters::FilterType _filterType = ImageFilters::Invalid;
    QListWidgetItem* _item = nullptr;
};
