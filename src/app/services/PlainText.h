#pragma once

#include <QString>
#include <QTextDocument>

// A name or a path as the text of a tool tip, which would otherwise interpret "<" as HTML.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
