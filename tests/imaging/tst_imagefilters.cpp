#include "imaging/ImageDSP.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "imaging/ImageFilters.h"
#include "support/Rows.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

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

// Fully of the second of two colours.
QImage indexed(QRgb second) {
    QImage image = colourful(QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3), second});
    image.fill(1);
    return image;
}

} // namespace

class TestImageFilters : public QObject {
    Q_OBJECT

private slots:
    void namesAreListedInOrder() {
        QCOMPARE(_filters.filterNames(),
                 QString("Brightness Contrast Blur WhitePoint BlackPoint Sharpen").split(' '));
    }

    void rowsStartAsTheTableTells_data() {
        using Range = QList<int>; // lowest, highest, value
        addRows<QString, QString, Range, bool>({
            {"brightness", "brightness", "Brightness", Range{-255, 255, 10}, true},
            {"contrast", "Contrast", "Contrast", Range{10, 30, 10}, true},
            {"blur", "BLUR", "Blur", Range{0, 18, 0}, false},
            {"white point", "WhitePoint", "WhitePoint", Range{0, 255, 255}, false},
            {"black point", "blackPoint", "BlackPoint", Range{0, 255, 0}, false},
            {"sharpen", "Sharpen", "Sharpen", Range(), true},
            {"no such filter", "Nonsense", "Invalid", Range{10, 30, 10}, false},
        });
    }
    void rowsStartAsTheTableTells() {
        const auto& [name, label, range, applies] = row<QString, QString, QList<int>, bool>();
        makeRow(name);
        QCOMPARE(child<QLabel>("labelFiltername")->text(), label);
        QVERIFY(_row->isFilterEnabled());
        if (range.isEmpty()) {
            QVERIFY(!qobject_cast<ImageFilterWidgetSlider*>(_row->optionWidget()));
        } else {
            const auto* const slider = child<QSlider>("horizontalSlider");
            const auto* const box = child<QSpinBox>("spinBox");
            QCOMPARE(QList<int>({slider->minimum(), slider->maximum(), slider->value()}), range);
            QCOMPARE(QList<int>({box->minimum(), box->maximum(), box->value()}), range);
            QVERIFY(child<QDoubleSpinBox>("doubleSpinBox")->isHidden() && !box->isHidden());
        }
        const QImage result = apply(colourful());
        QCOMPARE(_applied, applies);
        QCOMPARE(result == colourful(), !applies);
    }

    void rowsRunTheirRoutine_data() {
        const QImage image = colourful();
        QImage sharp = image;
        const QList<double> kernel{-1, -1, -1, -1, 9, -1, -1, -1, -1};
        ImageDSP::convolute(sharp, {}, image, image.rect(), QPainter::CompositionMode_Source, kernel, 3, 3);
        addRows<QString, int, QImage>({
            {"brightness", "Brightness", -40, ImageDSP::brightness(image, 1.0, -40)},
            {"no brightness", "Brightness", 0, image},
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
        _row->setFilterEnabled(false, true);
        QCOMPARE(apply(colourful()), colourful());
        QVERIFY(!_applied);
    }

    void whatCannotRunIsPassedOver() {
        const QImage image = colourful();
        makeRow("Sharpen");
        QVERIFY(apply({}).isNull());
        QVERIFY(!_applied);
        QWidget stranger;
        QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter widget to base...");
        QCOMPARE(_filters.applyFilter(image, &stranger, &_applied), image);
        QTest::ignoreMessage(QtDebugMsg, "Error, invalid filter type");
        makeRow("Nonsense");
        QCOMPARE(apply(image), image);
        ImageFilterWidgetBase odd;
        odd.setFilterType(ImageFilters::Blur);
        QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter option widget...");
        odd.setOptionWidget(new QWidget(&odd));
        QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter option widget to Slider...");
        QCOMPARE(_filters.applyFilter(image, &odd, &_applied), image);
        QVERIFY(!_applied);
    }

    void inputFormats_data() {
        using enum QImage::Format;
        addRows<QImage, QImage::Format>({
            {"RGB32 as it is", colourful(Format_RGB32), Format_RGB32},
            {"ARGB32 as it is", colourful(Format_ARGB32), Format_ARGB32},
            {"premultiplied as it is", colourful(Format_ARGB32_Premultiplied), Format_ARGB32_Premultiplied},
            {"32 bits in another order", colourful(Format_RGBA8888), Format_ARGB32},
            {"64 bits", colourful(Format_RGBX64), Format_RGB32},
            {"16-bit grey", colourful(Format_Grayscale16), Format_RGB32},
            {"one bit", colourful(Format_Mono), Format_RGB32},
            {"indexed", indexed(qRgb(4, 5, 6)), Format_RGB32},
            {"indexed with alpha", indexed(qRgba(4, 5, 6, 100)), Format_ARGB32},
        });
    }
    void inputFormats() {
        const auto& [image, format] = row<QImage, QImage::Format>();
        makeRow("Brightness");
        QCOMPARE(apply(image).format(), format);
        for (const QString& name : _filters.filterNames()) {
            makeRow(name);
            _row->setOptions({{"value", 12}});
            QCOMPARE(apply(image), apply(image.convertToFormat(format)));
            QVERIFY(_applied);
        }
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
            {"beyond the range", "Blur", whole(false, 99), whole(false, 18)},
            {"hundredths are cut", "Brightness", tenths(-2.39), tenths(-2.3)},
            {"beyond all numbers", "Blur", tenths(1e300), tenths(1.8)},
            {"not a number", "Blur", tenths(qQNaN()), tenths(0.0)},
            {"nothing stored", "Brightness", {}, whole(false, 0)},
            {"nothing stored, clamped", "Contrast", {}, whole(false, 10)},
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

    void theBypassIsSetBeforeTheValue() {
        makeRow("Brightness");
        QList<int> valuesSeen;
        connect(_row.get(), &ImageFilterWidgetBase::optionChanged, this,
                [&] { valuesSeen.append(child<QSlider>("horizontalSlider")->value()); });
        _row->setOptions({{"bypassed", true}, {"value", 50}});
        QCOMPARE(valuesSeen, QList<int>({10}));
        QCOMPARE(child<QSpinBox>("spinBox")->value(), 50);
    }

    void sliderMovesReportOnce() {
        makeRow("Brightness");
        auto* const option = qobject_cast<ImageFilterWidgetSlider*>(_row->optionWidget());
        QSignalSpy moved(option, &ImageFilterWidgetSlider::sliderChanged);
        QSignalSpy changed(_row.get(), &ImageFilterWidgetBase::optionChanged);
        child<QSlider>("horizontalSlider")->setValue(15);
        child<QSpinBox>("spinBox")->setValue(20);
        option->setValue(30);
        QCOMPARE(moved, QList<QList<QVariant>>({{15}, {20}}));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(child<QSpinBox>("spinBox")->value(), 30);
    }

    void aDoubleSliderShowsTenths() {
        ImageFilterWidgetSlider option;
        option.setRange(-255, 255);
        option.setSliderType(ImageFilterWidgetSlider::SliderDouble);
        auto* const box = option.findChild<QDoubleSpinBox*>("doubleSpinBox");
        QVERIFY(option.findChild<QSpinBox*>("spinBox")->isHidden() && !box->isHidden());
        QSignalSpy moved(&option, &ImageFilterWidgetSlider::sliderChanged);
        for (int value = -255; value <= 255; ++value) {
            option.setValue(value);
            QCOMPARE(box->value(), value / 10.0);
            QCOMPARE(option.valueD(), value / 10.0);
        }
        QCOMPARE(moved.count(), 0);
        for (int value = -255; value <= 255; ++value) {
            box->setValue(value / 10.0);
            QCOMPARE(option.value(), value);
        }
        QCOMPARE(moved.count(), 511);
        box->setValue(1.29);
        QCOMPARE(option.value(), 12);
        QCOMPARE(box->value(), 1.2);
    }

    void bypassReportsUnlessBlocked() {
        makeRow("Blur");
        QSignalSpy changed(_row.get(), &ImageFilterWidgetBase::optionChanged);
        _row->setFilterEnabled(false, true);
        QCOMPARE(changed.count(), 0);
        QVERIFY(child<QCheckBox>("cBEnabled")->isChecked());
        _row->setFilterEnabled(true, false);
        QCOMPARE(changed.count(), 1);
        child<QCheckBox>("cBEnabled")->click();
        QCOMPARE(changed.count(), 2);
        QVERIFY(!_row->isFilterEnabled());
    }

    void buttonsReport() {
        makeRow("Blur");
        QStringList told;
        connect(_row.get(), &ImageFilterWidgetBase::itemDelete, this, [&] { told << "delete"; });
        connect(_row.get(), &ImageFilterWidgetBase::itemMoveUp, this, [&] { told << "up"; });
        connect(_row.get(), &ImageFilterWidgetBase::itemMoveDown, this, [&] { told << "down"; });
        for (const char* button : {"tBDelete", "tBMoveUp", "tBMoveDown"})
            child<QToolButton>(button)->click();
        QCOMPARE(told, QStringList({"delete", "up", "down"}));
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
