#include "imaging/ImageFilters.h"

#include <array>

namespace {

constexpr std::array filterNameTable{
    QT_TRANSLATE_NOOP("ImageFilters", "Invalid"),    QT_TRANSLATE_NOOP("ImageFilters", "Brightness"),
    QT_TRANSLATE_NOOP("ImageFilters", "Contrast"),   QT_TRANSLATE_NOOP("ImageFilters", "Blur"),
    QT_TRANSLATE_NOOP("ImageFilters", "WhitePoint"), QT_TRANSLATE_NOOP("ImageFilters", "BlackPoint"),
    QT_TRANSLATE_NOOP("ImageFilters", "Sharpen")};

const char* filterNameOf(ImageFilters::FilterType type) {
    const auto index = static_cast<size_t>(type);
    // A negative type becomes a huge index, and counts as invalid, too.
    return filterNameTable[index < filterNameTable.size() ? index : 0];
}

} // namespace

ImageFilters::ImageFilters(QObject* parent) : QObject(parent) {}

QStringList ImageFilters::filterNames() const {
    QStringList names;
    for (size_t i = 1; i < filterNameTable.size(); ++i)
        names.append(QLatin1StringView(filterNameTable[i]));
    return names;
}

QString ImageFilters::filterName(FilterType type) {
    return QLatin1StringView(filterNameOf(type));
}

QString ImageFilters::filterCaption(FilterType type) {
    return tr(filterNameOf(type));
}

ImageFilters::FilterType ImageFilters::filterType(const QString& name) {
    for (size_t i = 0; i < filterNameTable.size(); ++i) {
        if (name.compare(QLatin1StringView(filterNameTable[i]), Qt::CaseInsensitive) == 0)
            return static_cast<FilterType>(i);
    }
    return Invalid;
}
