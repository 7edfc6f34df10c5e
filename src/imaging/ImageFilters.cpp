#include "imaging/ImageFilters.h"

#include "imaging/FilterChain.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"

#include <QDebug>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kFilterNames{"Invalid"_L1,    "Brightness"_L1, "Contrast"_L1, "Blur"_L1,
                                  "WhitePoint"_L1, "BlackPoint"_L1, "Sharpen"_L1};

} // namespace

ImageFilters::ImageFilters(QObject* parent) : QObject(parent) {}

QStringList ImageFilters::filterNames() const {
    return {kFilterNames.begin() + 1, kFilterNames.end()};
}

QString ImageFilters::filterName(FilterType type) {
    const auto index = static_cast<size_t>(type);
    return index < kFilterNames.size() ? kFilterNames[index] : kFilterNames[Invalid];
}

ImageFilters::FilterType ImageFilters::filterType(const QString& name) {
    for (size_t i = 0; i < kFilterNames.size(); ++i) {
        if (name.compare(kFilterNames[i], Qt::CaseInsensitive) == 0)
            return static_cast<FilterType>(i);
    }
    return Invalid;
}

ImageFilterWidgetBase* ImageFilters::createFilterWidget(const QString& filterName) const {
    const FilterType type = filterType(filterName);
    auto* const row = new ImageFilterWidgetBase;
    row->setFilterType(type);
    if (type == Sharpen) {
        row->setOptionWidget(new QWidget(row));
        return row;
    }
    auto* const slider = new ImageFilterWidgetSlider(row);
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
