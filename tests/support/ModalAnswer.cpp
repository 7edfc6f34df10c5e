#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QTimerEvent>

namespace {

constexpr int pollIntervalMs = 2;

QAction* menuAction(const QMenu* menu, const QString& text) {
    for (QAction* action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

void triggerEntry(QMenu* menu, const QStringList& path) {
    const QMenu* current = menu;
    for (const QString& text : path.first(path.size() - 1)) {
        const QAction* action = menuAction(current, text);
        if (!action || !action->menu())
            return;
        current = action->menu();
    }
    QAction* action = menuAction(current, path.last());
    // The menu is closed first, as a click of the mouse does: the entry may open a window of its own.
    menu->close();
    if (action)
        action->trigger();
}

} // namespace

ModalAnswer::ModalAnswer(DialogAnswer answer) : _dialogAnswer(std::move(answer)) {
    startTimer(pollIntervalMs);
}

ModalAnswer::ModalAnswer(MenuAnswer answer) : _menuAnswer(std::move(answer)) {
    startTimer(pollIntervalMs);
}

ModalAnswer::ModalAnswer(QMessageBox::StandardButton button)
    : ModalAnswer(DialogAnswer([button](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        if (box && box->button(button))
            box->button(button)->click();
        else
            dialog->reject();
    })) {}

ModalAnswer::ModalAnswer(const QString& menuEntry)
    : ModalAnswer(MenuAnswer([menuEntry](QMenu* menu) { triggerEntry(menu, menuEntry.split('/')); })) {}

void ModalAnswer::timerEvent(QTimerEvent* event) {
    if (_dialogAnswer) {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            killTimer(event->id());
            answerDialog(dialog);
        }
    } else if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        killTimer(event->id());
        answerMenu(menu);
    }
}

void ModalAnswer::answerDialog(QDialog* dialog) {
    _isUsed = true;
    if (const auto* box = qobject_cast<QMessageBox*>(dialog))
        _text = box->text();
    _dialogAnswer(dialog);
}

void ModalAnswer::answerMenu(QMenu* menu) {
    _isUsed = true;
    _menuAnswer(menu);
}

ModalAnswer::DialogAnswer chooseFiles(const QStringList& paths) {
    return [paths](QDialog* dialog) {
        auto* fileDialog = qobject_cast<QFileDialog*>(dialog);
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        if (!fileDialog || !edit || paths.isEmpty()) {
            dialog->reject();
            return;
        }
        if (fileDialog->fileMode() == QFileDialog::Directory ||
            fileDialog->acceptMode() == QFileDialog::AcceptSave) {
            edit->setText(paths.first());
        } else {
            fileDialog->setDirectory(QFileInfo(paths.first()).path());
            QStringList quoted;
            for (const QString& path : paths)
                quoted.append('"' + QFileInfo(path).fileName() + '"');
            edit->setText(quoted.join(' '));
        }
        static_cast<QDialog*>(fileDialog)->accept();
    };
}
