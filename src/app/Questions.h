#pragma once

#include <QMessageBox>
#include <QString>

// A modal question; the given default button is the harmless answer.
[[nodiscard]] inline QMessageBox::StandardButton askUser(QWidget* parent, const QString& text,
                                                         const QString& informativeText,
                                                         QMessageBox::StandardButtons buttons,
                                                         QMessageBox::StandardButton defaultButton) {
    QMessageBox box(parent);
    box.setText(text);
    box.setInformativeText(informativeText);
    box.setTextFormat(Qt::PlainText);
    box.setStandardButtons(buttons);
    box.setDefaultButton(defaultButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

[[nodiscard]] inline bool userSaysYes(QWidget* parent, const QString& text,
                                      const QString& informativeText = {}) {
    return askUser(parent, text, informativeText, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) !=
           QMessageBox::No;
}

// A modal message with an OK button.
inline void tellUser(QWidget* parent, const QString& text) {
    QMessageBox box(parent);
    box.setText(text);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
