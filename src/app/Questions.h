#pragma once

#include <QLabel>
#include <QMessageBox>
#include <QString>

// Sets texts that contain paths, so that "<" and "&" in them are not interpreted as markup.
inline void setPlainTexts(QMessageBox& box, const QString& text, const QString& informativeText = {}) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(informativeText);
    // QMessageBox applies its format to the main text only; the informative text is a label of its own.
    const QList<QLabel*> labels = box.findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
}

// A modal question; the given default button is the harmless answer.
[[nodiscard]] inline QMessageBox::StandardButton askUser(QWidget* parent, const QString& text,
                                                         const QString& informativeText,
                                                         QMessageBox::StandardButtons buttons,
                                                         QMessageBox::StandardButton defaultButton) {
    QMessageBox box(parent);
    setPlainTexts(box, text, informativeText);
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
inline void showNotice(QWidget* parent, const QString& text) {
    QMessageBox box(parent);
    setPlainTexts(box, text);
    box.exec();
}
