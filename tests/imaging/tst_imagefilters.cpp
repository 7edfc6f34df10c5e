#include "imaging/ImageDSP.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "imaging/ImageFilters.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>
#include <QtTest>

#include <memory>

using Options = QHash<QString, QVariant>;

class TestImageFilters : public QObject {
    Q_OBJECT

private slots:
    void namesAreListedInOrder();
    void rowsStartAsTheTableTells_data();
    void rowsStartAsTheTableTells();
    void rowsRunTheirRoutine_data();
    void rowsRunTheirRoutine();
    void applyPassesOverWhatItCannotRun();
    void inputFormats_data();
    void inputFormats();
    void optionsRoundTrip_data();
    void optionsRoundTrip();
    void optionsFromBypassToValueInOrder();
    void sliderMovesReportOnce();
    void doubleSliderShowsTenths();
    void bypassReportsUnlessBlocked();
    void buttonsReport();

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

static QImage colourful(QImage::Format format = QImage::Format_ARGB32) {
    QImage image(16, 16, QImage::Format_ARGB32);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            image.setPixel(x, y, qRgba(17 * x, 17 * y, 255 - 9 * x, 255 - 5 * y));
    return image.convertToFormat(format);
}

void TestImageFilters::namesAreListedInOrder() {
    QCOMPARE(_filters.filterNames(),
             QStringList({"Brightness", "Contrast", "Blur", "WhitePoint", "BlackPoint", "Sharpen"}));
}

void TestImageFilters::rowsStartAsTheTableTells_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QList<int>>("range"); // lowest, highest, value
    QTest::addColumn<bool>("applies");
    const auto add = [](const char* name, const char* label, const QList<int>& range, bool applies) {
        QTest::newRow(name) << name << label << range << applies;
    };
    add("brightness", "Brightness", {-255, 255, 10}, true);
    add("Contrast", "Contrast", {10, 30, 10}, true);
    add("BLUR", "Blur", {0, 18, 0}, false);
    add("WhitePoint", "WhitePoint", {0, 255, 255}, false);
    add("blackPoint", "BlackPoint", {0, 255, 0}, false);
    add("Sharpen", "Sharpen", {}, true);
    add("Invalid", "Invalid", {10, 30, 10}, false);
    add("Nonsense", "Invalid", {10, 30, 10}, false);
    add("", "Invalid", {10, 30, 10}, false);
}

void TestImageFilters::rowsStartAsTheTableTells() {
    QFETCH(QString, name);
    QFETCH(QList<int>, range);
    makeRow(name);
    QTEST(child<QLabel>("labelFiltername")->text(), "label");
    QVERIFY(!_row->parentWidget());
    QVERIFY(_row->isFilterEnabled());
    if (range.isEmpty()) {
        QVERIFY(!qobject_cast<ImageFilterWidgetSlider*>(_row->optionWidget()));
        QCOMPARE(_row->optionWidget()->parentWidget(), _row.get());
    } else {
        const auto* const slider = child<QSlider>("horizontalSlider");
        const auto* const box = child<QSpinBox>("spinBox");
        QCOMPARE(QList<int>({slider->minimum(), slider->maximum(), slider->value()}), range);
        QCOMPARE(QList<int>({box->minimum(), box->maximum(), box->value()}), range);
        QVERIFY(child<QDoubleSpinBox>("doubleSpinBox")->isHidden());
        QVERIFY(!box->isHidden());
    }
    const QImage result = apply(colourful());
    QTEST(_applied, "applies");
    QCOMPARE(result == colourful(), !_applied);
}

void TestImageFilters::rowsRunTheirRoutine_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::addColumn<QImage>("result");
    const QImage image = colourful();
    const auto add = [](const char* name, int value, const QImage& result) {
        QTest::addRow("%s at %d", name, value) << name << value << result;
    };
    add("Brightness", -40, ImageDSP::brightness(image, 1.0, -40));
    add("Contrast", 30, ImageDSP::brightness(image, 10.0 / 30, 1));
    add("Blur", 7, ImageDSP::blurred(image, image.rect(), 7, false));
    add("WhitePoint", 120, ImageDSP::whitePointed(image, 120));
    add("BlackPoint", 120, ImageDSP::blackPointed(image, 120));
    QImage sharp = image;
    const QList<double> kernel{-1, -1, -1, -1, 9, -1, -1, -1, -1};
    ImageDSP::convolute(sharp, {}, image, image.rect(), QPainter::CompositionMode_Source, kernel, 3, 3);
    add("Sharpen", 0, sharp);
    add("Brightness", 0, image);
    add("Blur", 0, image);
    add("WhitePoint", 255, image);
    add("BlackPoint", 0, image);
}

void TestImageFilters::rowsRunTheirRoutine() {
    QFETCH(QString, name);
    QFETCH(int, value);
    QFETCH(QImage, result);
    makeRow(name);
    _row->setOptions({{"value", value}});
    QCOMPARE(apply(colourful()), result);
    QCOMPARE(_applied, result != colourful());
    _row->setFilterEnabled(false, true);
    QCOMPARE(apply(colourful()), colourful());
    QVERIFY(!_applied);
}

void TestImageFilters::applyPassesOverWhatItCannotRun() {
    const QImage image = colourful();
    bool applied = false;
    makeRow("Sharpen");
    QVERIFY(apply({}).isNull());
    QVERIFY(!_applied);
    QWidget stranger;
    QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter widget to base...");
    QCOMPARE(_filters.applyFilter(image, &stranger, &applied), image);
    QTest::ignoreMessage(QtDebugMsg, "Error, invalid filter type");
    makeRow("Nonsense");
    QCOMPARE(apply(image), image);
    ImageFilterWidgetBase odd;
    odd.setFilterType(ImageFilters::Blur);
    QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter option widget...");
    odd.setOptionWidget(new QWidget(&odd));
    QTest::ignoreMessage(QtDebugMsg, "Error, unable to cast filter option widget to Slider...");
    QCOMPARE(_filters.applyFilter(image, &odd, &applied), image);
    QVERIFY(!applied);
}

void TestImageFilters::inputFormats_data() {
    QTest::addColumn<QImage>("image");
    QTest::addColumn<QImage::Format>("format");
    const auto add = [](const char* name, QImage::Format from, QImage::Format to) {
        QTest::newRow(name) << colourful(from) << to;
    };
    add("RGB32 as it is", QImage::Format_RGB32, QImage::Format_RGB32);
    add("ARGB32 as it is", QImage::Format_ARGB32, QImage::Format_ARGB32);
    add("premultiplied as it is", QImage::Format_ARGB32_Premultiplied, QImage::Format_ARGB32_Premultiplied);
    add("32 bits in another order", QImage::Format_RGBX8888, QImage::Format_RGB32);
    add("32 bits in another order with alpha", QImage::Format_RGBA8888, QImage::Format_ARGB32);
    add("30 bits of colour", QImage::Format_RGB30, QImage::Format_RGB32);
    add("64 bits", QImage::Format_RGBA64, QImage::Format_ARGB32);
    add("64 bits without alpha", QImage::Format_RGBX64, QImage::Format_RGB32);
    add("8-bit grey", QImage::Format_Grayscale8, QImage::Format_RGB32);
    add("16-bit grey", QImage::Format_Grayscale16, QImage::Format_RGB32);
    add("one bit", QImage::Format_Mono, QImage::Format_RGB32);
    QImage indexed = colourful(QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(1, 2, 3), qRgba(4, 5, 6, 100)});
    indexed.fill(1);
    QTest::newRow("indexed with alpha") << indexed << QImage::Format_ARGB32;
    indexed.setColorTable({qRgb(1, 2, 3), qRgb(4, 5, 6)});
    QTest::newRow("indexed without alpha") << indexed << QImage::Format_RGB32;
}

void TestImageFilters::inputFormats() {
    QFETCH(QImage, image);
    QFETCH(QImage::Format, format);
    makeRow("Brightness");
    const QImage result = apply(image);
    QCOMPARE(result, ImageDSP::brightness(image.convertToFormat(format), 1.0, 10));
    QCOMPARE(result.format(), format);
    for (const QString& name : _filters.filterNames()) {
        makeRow(name);
        _row->setOptions({{"value", 12}});
        QCOMPARE(apply(image), apply(image.convertToFormat(format)));
        QVERIFY(_applied);
    }
}

void TestImageFilters::optionsRoundTrip_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<Options>("options");
    QTest::addColumn<Options>("kept");
    const auto add = [](const char* row, const char* name, const Options& options, const Options& kept) {
        QTest::newRow(row) << name << options << kept;
    };
    const auto whole = [](bool bypassed, int value) {
        return Options{{"bypassed", bypassed}, {"sliderType", 0}, {"value", value}};
    };
    const auto tenths = [](double value) {
        return Options{{"bypassed", false}, {"sliderType", 1}, {"valueD", value}};
    };
    add("whole number", "Blur", whole(true, 7), whole(true, 7));
    add("tenths", "Blur", tenths(1.3), tenths(1.3));
    add("hundredths are cut", "Brightness", tenths(-2.39), tenths(-2.3));
    add("beyond the range", "Blur", whole(false, 99), whole(false, 18));
    add("below the range", "Contrast", whole(false, -5), whole(false, 10));
    add("beyond all numbers", "Blur", tenths(1e300), tenths(1.8));
    add("not a number", "Blur", tenths(qQNaN()), tenths(0.0));
    add("nothing stored", "Brightness", {}, whole(false, 0));
    add("nothing stored, clamped", "Contrast", {}, whole(false, 10));
    add("wrong types", "Blur", {{"bypassed", "true"}, {"value", "x"}, {"sliderType", QStringList()}},
        whole(true, 0));
    add("unknown slider type", "Blur", {{"sliderType", 7}, {"value", 3}},
        {{"bypassed", false}, {"sliderType", 7}});
    add("no slider", "Sharpen", whole(true, 7), {{"bypassed", true}});
}

void TestImageFilters::optionsRoundTrip() {
    QFETCH(QString, name);
    QFETCH(Options, options);
    makeRow(name);
    _row->setOptions(options);
    QTEST(_row->options(), "kept");
}

void TestImageFilters::optionsFromBypassToValueInOrder() {
    makeRow("Brightness");
    QList<int> valuesSeen;
    connect(_row.get(), &ImageFilterWidgetBase::optionChanged, this,
            [&] { valuesSeen.append(child<QSlider>("horizontalSlider")->value()); });
    _row->setOptions({{"bypassed", true}, {"value", 50}});
    QCOMPARE(valuesSeen, QList<int>({10}));
    QCOMPARE(child<QSlider>("horizontalSlider")->value(), 50);
    QCOMPARE(child<QSpinBox>("spinBox")->value(), 50);
}

void TestImageFilters::sliderMovesReportOnce() {
    makeRow("Brightness");
    auto* const option = qobject_cast<ImageFilterWidgetSlider*>(_row->optionWidget());
    QSignalSpy moved(option, &ImageFilterWidgetSlider::sliderChanged);
    QSignalSpy changed(_row.get(), &ImageFilterWidgetBase::optionChanged);
    child<QSlider>("horizontalSlider")->setValue(15);
    child<QSpinBox>("spinBox")->setValue(20);
    QCOMPARE(moved, QList<QList<QVariant>>({{15}, {20}}));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(option->value(), 20);
    option->setValue(30);
    QCOMPARE(moved.count(), 2);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(child<QSpinBox>("spinBox")->value(), 30);
}

void TestImageFilters::doubleSliderShowsTenths() {
    ImageFilterWidgetSlider option;
    option.setRange(-255, 255);
    option.setSliderType(ImageFilterWidgetSlider::SliderDouble);
    const auto* const slider = option.findChild<QSlider*>("horizontalSlider");
    auto* const box = option.findChild<QDoubleSpinBox*>("doubleSpinBox");
    QVERIFY(option.findChild<QSpinBox*>("spinBox")->isHidden());
    QVERIFY(!box->isHidden());
    QSignalSpy moved(&option, &ImageFilterWidgetSlider::sliderChanged);
    for (int value = -255; value <= 255; ++value) {
        option.setValue(value);
        QCOMPARE(box->value(), value / 10.0);
        QCOMPARE(option.valueD(), value / 10.0);
    }
    QCOMPARE(moved.count(), 0);
    for (int value = -255; value <= 255; ++value) {
        box->setValue(value / 10.0);
        QCOMPARE(slider->value(), value);
    }
    QCOMPARE(moved.count(), 511);
    box->setValue(1.29);
    QCOMPARE(slider->value(), 12);
    box->setValue(1.25);
    QCOMPARE(box->value(), 1.2);
    option.setSliderType(ImageFilterWidgetSlider::SliderType(5));
    QVERIFY(!box->isHidden());
    QCOMPARE(QMetaType::fromName("ImageFilterWidgetSlider::SliderType"),
             QMetaType::fromType<ImageFilterWidgetSlider::SliderType>());
}

void TestImageFilters::bypassReportsUnlessBlocked() {
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

void TestImageFilters::buttonsReport() {
    makeRow("Blur");
    QSignalSpy removed(_row.get(), &ImageFilterWidgetBase::itemDelete);
    QSignalSpy up(_row.get(), &ImageFilterWidgetBase::itemMoveUp);
    QSignalSpy down(_row.get(), &ImageFilterWidgetBase::itemMoveDown);
    child<QToolButton>("tBDelete")->click();
    QCOMPARE(QList<qsizetype>({removed.count(), up.count(), down.count()}), QList<qsizetype>({1, 0, 0}));
    child<QToolButton>("tBMoveUp")->click();
    QCOMPARE(QList<qsizetype>({removed.count(), up.count(), down.count()}), QList<qsizetype>({1, 1, 0}));
    child<QToolButton>("tBMoveDown")->click();
    QCOMPARE(QList<qsizetype>({removed.count(), up.count(), down.count()}), QList<qsizetype>({1, 1, 1}));
}

QTEST_MAIN(TestImageFilters)
#include "tst_imagefilters.moc"
