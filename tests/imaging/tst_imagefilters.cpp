#include "imaging/ImageDSP.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilters.h"
#include "support/Rows.h"

#include <memory>

using Options = QHash<QString, QVariant>;

namespace {

QImage colourful(QImage::Format format = QImage::Format_ARGB32) {
    QImage image(16, 16, QImage::Format_ARGB32);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            image.setPixel(x, y, qRgba(17 * x, 17 * y, 255 - 9 * x, 255 - 5 * y));
    return image.convertToFormat(format);
}

} // namespace

class TestImageFilters : public QObject {
    Q_OBJECT

private slots:
    void rowsRunTheirRoutine_data() {
        const QImage image = colourful();
        QImage sharp = image;
        const QList<double> kernel{-1, -1, -1, -1, 9, -1, -1, -1, -1};
        ImageDSP::convolute(sharp, {}, image, image.rect(), QPainter::CompositionMode_Source, kernel, 3, 3);
        addRows<QString, int, QImage>({
            {"brightness", "Brightness", -40, ImageDSP::brightness(image, 1.0, -40)},
            {"contrast", "Contrast", 30, ImageDSP::brightness(image, 10.0 / 30, 1)},
            {"blur", "Blur", 7, ImageDSP::blurred(image, image.rect(), 7, false)},
            {"white point", "WhitePoint", 120, ImageDSP::whitePointed(image, 120)},
            {"black point", "BlackPoint", 120, ImageDSP::blackPointed(image, 120)},
            {"sharpen", "Sharpen", 0, sharp},
        });
    }
    void rowsRunTheirRoutine() {
        const auto& [name, value, result] = row<QString, int, QImage>();
        makeRow(name);
        _row->setOptions({{"value", value}});
        QCOMPARE(apply(colourful()), result);
        QCOMPARE(_applied, result != colourful());
        // Images of other than 32 bits are converted first.
        QCOMPARE(apply(colourful(QImage::Format_RGBX64)).convertToFormat(QImage::Format_RGB32),
                 apply(colourful(QImage::Format_RGB32)).convertToFormat(QImage::Format_RGB32));
        _row->setFilterEnabled(false, true);
        QCOMPARE(apply(colourful()), colourful());
        QVERIFY(!_applied);
    }

    void optionsRoundTrip_data() {
        const auto whole = [](bool bypassed, int value) {
            return Options{{"bypassed", bypassed}, {"sliderType", 0}, {"value", value}};
        };
        const auto tenths = [](double value) {
            return Options{{"bypassed", false}, {"sliderType", 1}, {"valueD", value}};
        };
        const Options oddTypes{{"bypassed", "true"}, {"value", "x"}, {"sliderType", QStringList()}};
        const Options oddSlider{{"sliderType", 7}, {"value", 3}};
        addRows<QString, Options, Options>({
            {"whole number", "Blur", whole(true, 7), whole(true, 7)},
            {"hundredths are cut", "Brightness", tenths(-2.39), tenths(-2.3)},
            {"beyond all numbers", "Blur", tenths(1e300), tenths(1.8)},
            {"nothing stored", "Brightness", {}, whole(false, 0)},
            {"wrong types", "Blur", oddTypes, whole(true, 0)},
            {"unknown slider type", "Blur", oddSlider, {{"bypassed", false}, {"sliderType", 7}}},
            {"no slider", "Sharpen", whole(true, 7), {{"bypassed", true}}},
        });
    }
    void optionsRoundTrip() {
        const auto& [name, options, kept] = row<QString, Options, Options>();
        makeRow(name);
        _row->setOptions(options);
        QCOMPARE(_row->options(), kept);
    }

private:
    template <typename Child>
    Child* child(const QString& name) const {
        return _row->findChild<Child*>(name);
    }
    void makeRow(const QString& name) { _row.reset(_filters.createFilterWidget(name)); }
    QImage apply(const QImage& image) {
        _applied = false;
        return _filters.applyFilter(image, _row.get(), &_applied);
    }

    ImageFilters _filters;
    std::unique_ptr<ImageFilterWidgetBase> _row;
    bool _applied = false;
};

QTEST_MAIN(TestImageFilters)
#include "tst_imagefilters.moc"
