#include "imaging/FilterChain.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "imaging/ImageFilters.h"

#include <QDebug>

#include <optional>

// The part of ImageFilters that makes and reads widgets, which the command line is not linked to.

ImageFilterWidgetBase* ImageFilters::createFilterWidget(const QString& filterName) const {
    const FilterType type = filterType(filterName);
    auto* const row = new ImageFilterWidgetBase;
    row->setFilterType(type);
    if (type == Sharpen) {
        // Without a number there is nothing to set, but a row always has an option widget.
        row->setOptionWidget(new QWidget(row));
        return row;
    }
    auto* const slider = new ImageFilterWidgetSlider(row);
    // For an unknown name the slider keeps the range of its form, and the row does nothing.
    if (const std::optional<FilterRange> range = filterRange(type)) {
        slider->setRange(range->minimum, range->maximum);
        slider->setValue(range->initial);
    }
    row->setOptionWidget(slider);
    return row;
}

QImage ImageFilters::applyFilter(const QImage& image, QWidget* row, bool* applied) const {
    qDebug() << "ImageFilters::applyFilter" << image;
    if (image.isNull())
        return image;
    const auto* const filterRow = qobject_cast<ImageFilterWidgetBase*>(row);
    if (!filterRow) {
        qDebug() << "Error, unable to cast filter widget to base...";
        return image;
    }
    FilterStep step{.type = filterRow->filterType(), .isBypassed = !filterRow->isFilterEnabled()};
    // A bypassed row needs no number, and Sharpen has none.
    if (!step.isBypassed && filterRange(step.type)) {
        const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(filterRow->optionWidget());
        if (!slider) {
            qDebug() << "Error, unable to cast filter option widget to Slider...";
            return image;
        }
        step.value = slider->value();
    }
    return filteredImage(image, step, applied);
}
