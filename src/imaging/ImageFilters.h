#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

class ImageFilterWidgetBase;

// The catalogue of filters: names, row widgets, and running one row over one image.
class ImageFilters : public QObject {
    Q_OBJECT

public:
    enum FilterType : qint32 {
        Invalid = 0,
        Brightness = 1,
        Contrast = 2,
        Blur = 3,
        WhitePoint = 4,
        BlackPoint = 5,
        Sharpen = 6
    };
    Q_ENUM(FilterType)

    explicit ImageFilters(QObject* parent = nullptr);

    [[nodiscard]] QStringList filterNames() const;
    // The caller owns the row. Names are matched in any case; an unknown one gives a row that does nothing.
    [[nodiscard]] ImageFilterWidgetBase* createFilterWidget(const QString& filterName) const;
    // Sets the flag if the row was applied and does not write it otherwise. The result has a format of
    // filterInput(), or that of the image if the row was not applied.
    [[nodiscard]] QImage applyFilter(const QImage& image, QWidget* row, bool* applied) const;

    // "Invalid" outside the table. Profiles and the command line hold the name, the user sees the caption.
    [[nodiscard]] static QString filterName(FilterType type);
    [[nodiscard]] static QString filterCaption(FilterType type);
    [[nodiscard]] static FilterType filterType(const QString& name);
};
