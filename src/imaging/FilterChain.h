#pragma once

#include "imaging/EffectList.h"
#include "imaging/ImageFilters.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

// What a filter does to an image, without the row that shows it.

struct FilterRange {
    int minimum;
    int maximum;
    int initial;
    // The value that leaves every image as it is.
    std::optional<int> neutral;
};

// A slider moves in tenths of the number that a row of tenths shows and stores.
constexpr double tenthsPerUnit = 10.0;

// Nothing for a filter without a number.
[[nodiscard]] std::optional<FilterRange> filterRange(ImageFilters::FilterType type);

struct FilterStep {
    ImageFilters::FilterType type = ImageFilters::Invalid;
    int value = 0; // within the range of the filter, if it has one
    bool isBypassed = false;

    bool operator==(const FilterStep&) const = default;
};

// Sets the flag if the step was applied and does not write it otherwise. An image in another format than
// those of filterInput() results in ARGB32 or RGB32.
[[nodiscard]] QImage filteredImage(const QImage& image, const FilterStep& step, bool* applied);

// The options of a stored row: missing keys count as false and 0.
struct StoredFilterOptions {
    bool isBypassed = false;
    int numberType = 0;       // 0 whole numbers, 1 tenths
    std::optional<int> value; // none for an unknown type of number
};
[[nodiscard]] StoredFilterOptions storedFilterOptions(const QHash<QString, QVariant>& options);
[[nodiscard]] QHash<QString, QVariant> bypassOption(bool isBypassed);
void storeFilterNumber(QHash<QString, QVariant>& options, int numberType, int value);

// One step for each row of a stored chain, in its order.
[[nodiscard]] QList<FilterStep> filterChain(const EffectList& effects);

// The image in a format that the pixel routines accept: 32-bit RGB and ARGB as they are, all others converted
// to ARGB32, or to RGB32 without an alpha channel.
[[nodiscard]] QImage filterInput(const QImage& image);
