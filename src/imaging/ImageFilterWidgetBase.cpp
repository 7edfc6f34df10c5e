#include "imaging/ImageFilterWidgetBase.h"

#include "app/services/Themes.h"
#include "imaging/FilterChain.h"
#include "imaging/ImageFilterWidgetSlider.h"
#include "ui_ImageFilterWidgetBase.h"

#include <QDebug>
#include <QSignalBlocker>

#include <optional>

ImageFilterWidgetBase::ImageFilterWidgetBase(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::ImageFilterWidgetBase>()) {
    _ui->setupUi(this);
    connect(_ui->tBDelete, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemDelete);
    connect(_ui->tBMoveUp, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemMoveUp);
    connect(_ui->tBMoveDown, &QToolButton::clicked, this, &ImageFilterWidgetBase::itemMoveDown);
    connect(_ui->cBEnabled, &QCheckBox::checkStateChanged, this, &ImageFilterWidgetBase::optionChanged);
    // The main window passes on later changes of the theme.
    updateIcons(Themes::instance()->isDarkTheme());
}

ImageFilterWidgetBase::~ImageFilterWidgetBase() = default;

void ImageFilterWidgetBase::setFilterType(ImageFilters::FilterType type) {
    _filterType = type;
    _ui->labelFiltername->setText(ImageFilters::filterCaption(type));
}

void ImageFilterWidgetBase::setOptionWidget(QWidget* widget) {
    _optionWidget = widget;
    _ui->hLFilterOptions->addWidget(widget);
    if (const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(widget))
        connect(slider, &ImageFilterWidgetSlider::sliderChanged, this, &ImageFilterWidgetBase::optionChanged);
    else // as for each filter without a number; the word "Error" is part of the fixed text
        qDebug() << "Error, unable to cast filter option widget...";
}

// The check box means bypass, the opposite of its object name.
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
    QHash<QString, QVariant> options = bypassOption(_ui->cBEnabled->isChecked());
    const auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(_optionWidget);
    if (!slider)
        return options;
    storeFilterNumber(options, slider->sliderType(), slider->value());
    if (slider->sliderType() != ImageFilterWidgetSlider::SliderInt &&
        slider->sliderType() != ImageFilterWidgetSlider::SliderDouble)
        qDebug() << "Invalid option slider type.";
    return options;
}

void ImageFilterWidgetBase::setOptions(const QHash<QString, QVariant>& options) {
    const StoredFilterOptions stored = storedFilterOptions(options);
    // Not blocked: a change on a connected row runs the preview.
    _ui->cBEnabled->setChecked(stored.isBypassed);
    auto* const slider = qobject_cast<ImageFilterWidgetSlider*>(_optionWidget);
    if (!slider)
        return;
    slider->setSliderType(static_cast<ImageFilterWidgetSlider::SliderType>(stored.numberType));
    if (stored.value)
        slider->setValue(*stored.value);
    else
        qDebug() << "Invalid option slider type.";
}

void ImageFilterWidgetBase::updateIcons(bool dark) {
    Themes::instance()->tintButtons(dark, {_ui->tBDelete, _ui->tBMoveDown, _ui->tBMoveUp});
}
