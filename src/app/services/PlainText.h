#pragma once

#include <QString>
#include <QTextDocument>

// A name or a path for a tool tip, which would take one with "<" for HTML.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
