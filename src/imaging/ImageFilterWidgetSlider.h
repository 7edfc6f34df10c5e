#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class ImageFilterWidgetSlider;
}

// The option widget of a filter with a number. The slider holds the value; one box shows it as it is, the
// other a tenth of it.
class ImageFilterWidgetSlider : public QWidget {
    Q_OBJECT

public:
    // Stored in the options of a row.
    enum SliderType : qint32 { SliderInt = 0, SliderDouble = 1 };
    Q_ENUM(SliderType)

    explicit ImageFilterWidgetSlider(QWidget* parent = nullptr);
    ~ImageFilterWidgetSlider() override;

    void setRange(int min, int max);
    // Shows the box of that type. An unknown type is stored and changes nothing on the screen.
    void setSliderType(SliderType type);
    [[nodiscard]] SliderType sliderType() const { return _sliderType; }
    // Emits nothing.
    void setValue(int value);
    [[nodiscard]] int value() const;
    [[nodiscard]] double valueD() const;

signals:
    void sliderChanged(int value);

public slots:
    void sliderValueChanged(int value);

private:
    void onTenthsChanged(double tenths);
    void showTenths();

    std::unique_ptr<Ui::ImageFilterWidgetSlider> _ui;
    SliderType _sliderType = SliderInt;
};
