#include "imaging/ImageFilterWidgetBase.h"

#include "app/services/Themes.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "ui_ImageFilterWidgetBase.h"

#include <QDebug>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kBypassedOption = "bypassed"_L1;
constexpr auto kSliderTypeOption = "sliderType"_L1;
constexpr auto kValueOption = "value"_L1;
constexpr auto kTenthsOption = "valueD"_L1;

// Stored numbers may be anything; what no slider can hold goes to the end of the range.
int sliderValueFromTenths(double tenths) {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    const double value = tenths * 10.0;
    return value == value ? static_cast<int>(std::clamp(value, lowest, highest)) : 0;
}

} // namespace

ImageFilterWidgetBase::ImageFilterWidgetBase(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::ImageFilterWidgetBase>()) {
    _ui->setupUi(this);
    connect(_ui->tBDelete, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemDelete);
    connect(_ui->tBMoveUp, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemMoveUp);
    connect(_ui->tBMoveDown, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemMoveDown);
    connect(_ui->cBEnabled, &QCheckBox::checkStateChanged, this, &ImageFilterWidgetBase::optionChanged);
    updateIcons(Themes::instance()->isDarkTheme());
}

ImageFilterWidgetBase::~ImageFilterWidgetBase() = default;

void ImageFilterWidgetBase::setFilterType(ImageFilters::FilterType type) {
    _filterType = type;
    _ui->labelFiltername->setText(ImageFilters::filterName(type));
}

void ImageFilterWidgetBase::setOptionWidget(QWidget* widget) {
    _optionWidget = widget;
    _ui->hLFilterOptions->addWidget(widget);
    if (const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(widget))
        connect(slider, &ImageFilterWidgetSlider::sliderChanged, this, &ImageFilterWidgetBase::optionChanged);
    else
        qDebug() << "Error, unable to cast filter option widget...";
}

bool ImageFilterWidgetBase::isFilterEnabled() const {
    return !_ui->cBEnabled->isChecked();
}

void ImageFilterWidgetBase::setFilterEnabled(bool enabled, bool blockSignals) {
    std::optional<QSignalBlocker> blocker;
    if (blockSignals)
        blocker.emplace(_ui->cBEnabled);
    _ui->cBEnabled->setChecked(!enabled);
}

QHash<QString, QVariant> ImageFilterWidgetBase::options() const {
    QHash<QString, QVariant> options{{kBypassedOption, _ui->cBEnabled->isChecked()}};
    const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(_optionWidget);
    if (!slider)
        return options;
    options.insert(kSliderTypeOption, static_cast<int>(slider->sliderType()));
    switch (slider->sliderType()) {
    case ImageFilterWidgetSlider::SliderInt:
        options.insert(kValueOption, slider->value());
        break;
    case ImageFilterWidgetSlider::SliderDouble:
        options.insert(kTenthsOption, slider->valueD());
        break;
    default:
        qDebug() << "Invalid option slider type.";
    }
    return options;
}

void ImageFilterWidgetBase::setOptions(const QHash<QString, QVariant>& options) {
    _ui->cBEnabled->setChecked(options.value(kBypassedOption, false).toBool());
    auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(_optionWidget);
    if (!slider)
        return;
    slider->setSliderType(
        static_cast<ImageFilterWidgetSlider::SliderType>(options.value(kSliderTypeOption, 0).toInt()));
    switch (slider->sliderType()) {
    case ImageFilterWidgetSlider::SliderInt:
        slider->setValue(options.value(kValueOption, 0).toInt());
        break;
    case ImageFilterWidgetSlider::SliderDouble:
        slider->setValue(sliderValueFromTenths(options.value(kTenthsOption, 0.0).toDouble()));
        break;
    default:
        qDebug() << "Invalid option slider type.";
    }
}

void ImageFilterWidgetBase::updateIcons(bool dark) {
    Themes::instance()->tintButtons(dark, {_ui->tBDelete, _ui->tBMoveDown, _ui->tBMoveUp});
}
