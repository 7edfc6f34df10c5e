#include "imaging/ImageFilters.h"

#include "imaging/ImageDSP.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct SliderFilter {
    ImageFilters::FilterType type;
    int minimum;
    int maximum;
    int initial;
    // The value that leaves every image as it is.
    std::optional<int> neutral;
};

constexpr std::array kFilterNames{"Invalid"_L1,    "Brightness"_L1, "Contrast"_L1, "Blur"_L1,
                                  "WhitePoint"_L1, "BlackPoint"_L1, "Sharpen"_L1};

constexpr std::array kSliderFilters{
    SliderFilter{ImageFilters::Brightness, -255, 255, 10, 0},
    SliderFilter{ImageFilters::Contrast, 10, 30, 0, std::nullopt},
    SliderFilter{ImageFilters::Blur, 0, 18, 0, 0},
    SliderFilter{ImageFilters::WhitePoint, 0, 255, 255, 255},
    SliderFilter{ImageFilters::BlackPoint, 0, 255, 0, 0},
};

constexpr int kSharpenSide = 3;
constexpr std::array kSharpenKernel{-1.0, -1.0, -1.0, -1.0, 9.0, -1.0, -1.0, -1.0, -1.0};

const SliderFilter* sliderFilter(ImageFilters::FilterType type) {
    const auto* const found = std::ranges::find(kSliderFilters, type, &SliderFilter::type);
    return found == kSliderFilters.end() ? nullptr : found;
}

QImage sharpened(const QImage& image) {
    QImage result = image;
    ImageDSP::convolute(result, QPointF(0, 0), image, QRectF(image.rect()), QPainter::CompositionMode_Source,
                        kSharpenKernel, kSharpenSide, kSharpenSide);
    return result;
}

QImage sliderFiltered(const QImage& image, ImageFilters::FilterType type, int value) {
    switch (type) {
    case ImageFilters::Brightness:
        return ImageDSP::brightness(image, 1.0, value);
    case ImageFilters::Contrast:
        return ImageDSP::brightness(image, 10.0 / value, 1);
    case ImageFilters::Blur:
        return ImageDSP::blurred(image, image.rect(), value, false);
    case ImageFilters::WhitePoint:
        return ImageDSP::whitePointed(image, value);
    case ImageFilters::BlackPoint:
        return ImageDSP::blackPointed(image, value);
    default:
        return image;
    }
}

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
    if (const SliderFilter* const filter = sliderFilter(type)) {
        slider->setRange(filter->minimum, filter->maximum);
        slider->setValue(filter->initial);
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
    if (!filterRow->isFilterEnabled())
        return image;
    if (filterRow->filterType() == Sharpen) {
        *applied = true;
        return sharpened(filterInput(image));
    }
    const SliderFilter* const filter = sliderFilter(filterRow->filterType());
    if (!filter) {
        qDebug() << "Error, invalid filter type";
        return image;
    }
    const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(filterRow->optionWidget());
    if (!slider) {
        qDebug() << "Error, unable to cast filter option widget to Slider...";
        return image;
    }
    const int value = slider->value();
    if (filter->neutral == value)
        return image;
    *applied = true;
    return sliderFiltered(filterInput(image), filter->type, value);
}

QImage filterInput(const QImage& image) {
    switch (image.format()) {
    case QImage::Format_RGB32:
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied:
        return image;
    default:
        return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    }
}
