#include "imaging/ImageFilters.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array filterNameTable{"Invalid"_L1,    "Brightness"_L1, "Contrast"_L1, "Blur"_L1,
                                     "WhitePoint"_L1, "BlackPoint"_L1, "Sharpen"_L1};

} // namespace

ImageFilters::ImageFilters(QObject* parent) : QObject(parent) {}

QStringList ImageFilters::filterNames() const {
    return {filterNameTable.begin() + 1, filterNameTable.end()};
}

QString ImageFilters::filterName(FilterType type) {
    const auto index = static_cast<size_t>(type);
    return index < filterNameTable.size() ? filterNameTable[index] : filterNameTable[Invalid];
}

ImageFilters::FilterType ImageFilters::filterType(const QString& name) {
    for (size_t i = 0; i < filterNameTable.size(); ++i) {
        if (name.compare(filterNameTable[i], Qt::CaseInsensitive) == 0)
            return static_cast<FilterType>(i);
    }
    return Invalid;
}
