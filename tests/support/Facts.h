#pragma once

#include <QColor>
#include <QImage>
#include <QMap>
#include <QString>

// What can be observed from outside, by the name of the observed thing: the actual values of the window, or
// those that a model expects.
using Facts = QMap<QString, QString>;

// A line for each fact that differs from the expected one; empty if none does.
[[nodiscard]] QString difference(const Facts& expected, const Facts& actual);

// All files below a directory: "disk NAME" with the text, or a digest of what is no text.
[[nodiscard]] Facts diskFacts(const QString& directory);
[[nodiscard]] QString contentFact(const QByteArray& content);

// The colours of test pictures, which are recognised after JPEG compression and scaling.
[[nodiscard]] QString colourName(const QColor& colour);
// The name of the colour of the pixel in the middle; "none" for a transparent one.
[[nodiscard]] QString middleColour(const QImage& image);
