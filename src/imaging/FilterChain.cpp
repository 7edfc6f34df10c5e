#include "imaging/FilterChain.h"

#include "imaging/ImageDSP.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

struct NumberedFilter {
    ImageFilters::FilterType type;
    FilterRange range;
};

constexpr std::array numberedFilters{
    NumberedFilter{ImageFilters::Brightness, {-255, 255, 10, 0}},
    // An initial value below the range, which the slider of a new row raises to 10.
    NumberedFilter{ImageFilters::Contrast, {10, 30, 0, std::nullopt}},
    NumberedFilter{ImageFilters::Blur, {0, 18, 0, 0}},
    NumberedFilter{ImageFilters::WhitePoint, {0, 255, 255, 255}},
    NumberedFilter{ImageFilters::BlackPoint, {0, 255, 0, 0}},
};

constexpr auto bypassedOption = "bypassed"_L1;
constexpr auto numberTypeOption = "sliderType"_L1;
constexpr auto valueOption = "value"_L1;
constexpr auto tenthsOption = "valueD"_L1;

constexpr int sharpenSide = 3;
constexpr std::array sharpenKernel{-1.0, -1.0, -1.0, -1.0, 9.0, -1.0, -1.0, -1.0, -1.0};

QImage sharpened(const QImage& image) {
    // A shared copy: convolute() gives it new pixels and leaves those that it reads.
    QImage result = image;
    ImageDSP::convolute(result, QPointF(0, 0), image, QRectF(image.rect()), QPainter::CompositionMode_Source,
                        sharpenKernel, sharpenSide, sharpenSide);
    return result;
}

QImage numberFiltered(const QImage& image, ImageFilters::FilterType type, int value) {
    switch (type) {
    case ImageFilters::Brightness:
        return ImageDSP::brightness(image, 1.0, value);
    case ImageFilters::Contrast:
        // The fixed offset of 1 changes the image at any value, so that no value is neutral.
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

// Stored numbers may be anything; those beyond an integer become its lowest or highest value.
int valueFromTenths(double tenths) {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    const double value = tenths * tenthsPerUnit;
    // Not a number is unequal to itself, and clamp() would return it.
    return value == value ? static_cast<int>(std::clamp(value, lowest, highest)) : 0;
}

} // namespace

std::optional<FilterRange> filterRange(ImageFilters::FilterType type) {
    const auto found = std::ranges::find(numberedFilters, type, &NumberedFilter::type);
    return found == numberedFilters.end() ? std::nullopt : std::optional(found->range);
}

QImage filteredImage(const QImage& image, const FilterStep& step, bool* applied) {
    if (image.isNull() || step.isBypassed)
        return image;
    if (step.type == ImageFilters::Sharpen) {
        *applied = true;
        return sharpened(filterInput(image));
    }
    const std::optional<FilterRange> range = filterRange(step.type);
    if (!range) {
        // A row of an unknown name, which a stored profile may contain.
        qDebug() << "Error, invalid filter type";
        return image;
    }
    // A neutral row does not count as applied, so that a batch writes no file for it. A filter without a
    // neutral value never returns here.
    if (range->neutral == step.value)
        return image;
    *applied = true;
    return numberFiltered(filterInput(image), step.type, step.value);
}

StoredFilterOptions storedFilterOptions(const QHash<QString, QVariant>& options) {
    // Profiles come from a file: a value of another type is converted, or becomes false or 0.
    StoredFilterOptions stored{.isBypassed = options.value(bypassedOption, false).toBool(),
                               .numberType = options.value(numberTypeOption, 0).toInt(),
                               .value = {}};
    if (stored.numberType == 0)
        stored.value = options.value(valueOption, 0).toInt();
    else if (stored.numberType == 1)
        stored.value = valueFromTenths(options.value(tenthsOption, 0.0).toDouble());
    return stored;
}

QHash<QString, QVariant> bypassOption(bool isBypassed) {
    return {{bypassedOption, isBypassed}};
}

void storeFilterNumber(QHash<QString, QVariant>& options, int numberType, int value) {
    options.insert(numberTypeOption, numberType);
    if (numberType == 0)
        options.insert(valueOption, value);
    else if (numberType == 1)
        // Nothing is lost on the way back: n / 10.0 * 10.0 equals n for every integer.
        options.insert(tenthsOption, value / tenthsPerUnit);
}

QList<FilterStep> filterChain(const EffectList& effects) {
    QList<FilterStep> chain;
    for (const auto& [name, options] : effects) {
        const StoredFilterOptions stored = storedFilterOptions(options);
        FilterStep step{.type = ImageFilters::filterType(name), .isBypassed = stored.isBypassed};
        if (const std::optional<FilterRange> range = filterRange(step.type))
            // The slider of a row limits a stored value in the same way, and keeps its initial one where the
            // type of number is unknown.
            step.value = std::clamp(stored.value.value_or(range->initial), range->minimum, range->maximum);
        chain.append(step);
    }
    return chain;
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
