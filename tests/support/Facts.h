#pragma once

#include <QColor>
#include <QImage>
#include <QMap>
#include <QString>

// What can be seen from outside, by the name of the thing: of the window, or as a model says it must be.
using Facts = QMap<QString, QString>;

// A line for each thing that is not as it must be; empty if all is.
[[nodiscard]] QString difference(const Facts& expected, const Facts& actual);

// All files below a directory: "disk NAME" with the text, or a digest of what is no text.
[[nodiscard]] Facts diskFacts(const QString& directory);
[[nodiscard]] QString contentFact(const QByteArray& content);

// The colours that test pictures are painted in, which outlive JPEG and scaling.
[[nodiscard]] QString colourName(const QColor& colour);
// That of the pixel in the middle; "none" for a transparent one.
[[nodiscard]] QString middleColour(const QImage& image);
