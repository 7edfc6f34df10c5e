#include "imaging/ImageFilterWidgetSlider.h"

#include "imaging/FilterChain.h"
#include "ui_ImageFilterWidgetSlider.h"

#include <QMetaType>
#include <QSignalBlocker>

ImageFilterWidgetSlider::ImageFilterWidgetSlider(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::ImageFilterWidgetSlider>()) {
    qRegisterMetaType<ImageFilterWidgetSlider::SliderType>();
    _ui->setupUi(this);
    _ui->doubleSpinBox->hide();
    // The boxes set the slider only; its own signal updates the other box and reports the change.
    connect(_ui->spinBox, &QSpinBox::valueChanged, _ui->horizontalSlider, &QSlider::setValue);
    connect(_ui->doubleSpinBox, &QDoubleSpinBox::valueChanged, this,
            &ImageFilterWidgetSlider::onTenthsChanged);
    connect(_ui->horizontalSlider, &QSlider::valueChanged, this,
            &ImageFilterWidgetSlider::sliderValueChanged);
}

ImageFilterWidgetSlider::~ImageFilterWidgetSlider() = default;

void ImageFilterWidgetSlider::setRange(int min, int max) {
    _ui->spinBox->setRange(min, max);
    _ui->doubleSpinBox->setRange(min / tenthsPerUnit, max / tenthsPerUnit);
    _ui->horizontalSlider->setRange(min, max);
}

void ImageFilterWidgetSlider::setSliderType(SliderType type) {
    _sliderType = type;
    if (type != SliderInt && type != SliderDouble)
        return;
    _ui->spinBox->setVisible(type == SliderInt);
    _ui->doubleSpinBox->setVisible(type == SliderDouble);
}

void ImageFilterWidgetSlider::setValue(int value) {
    // Blocked, so that restoring a row does not run the chain for each number.
    const QSignalBlocker sliderBlocker(_ui->horizontalSlider);
    const QSignalBlocker spinBoxBlocker(_ui->spinBox);
    _ui->horizontalSlider->setValue(value);
    _ui->spinBox->setValue(value);
    showTenths();
}

int ImageFilterWidgetSlider::value() const {
    return _ui->horizontalSlider->value();
}

double ImageFilterWidgetSlider::valueD() const {
    return value() / tenthsPerUnit;
}

void ImageFilterWidgetSlider::sliderValueChanged(int value) {
    // Blocked, as the boxes would set the slider once more.
    const QSignalBlocker spinBoxBlocker(_ui->spinBox);
    const QSignalBlocker doubleSpinBoxBlocker(_ui->doubleSpinBox);
    _ui->spinBox->setValue(value);
    _ui->doubleSpinBox->setValue(value / tenthsPerUnit);
    emit sliderChanged(value);
}

void ImageFilterWidgetSlider::onTenthsChanged(double tenths) {
    // Truncated: the box has two decimals, the slider steps of a tenth.
    _ui->horizontalSlider->setValue(static_cast<int>(tenths * tenthsPerUnit));
    // A number between two tenths does not move the slider, so no signal of it corrects the box.
    showTenths();
}

void ImageFilterWidgetSlider::showTenths() {
    const QSignalBlocker blocker(_ui->doubleSpinBox);
    _ui->doubleSpinBox->setValue(valueD());
}
