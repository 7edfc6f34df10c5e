#include "imaging/ImageFilters.h"

#include <array>

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
