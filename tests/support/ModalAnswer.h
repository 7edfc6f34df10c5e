#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>

#include <functional>

class QDialog;
class QMenu;

// Answers the next modal window or popup menu, which a test arms before the action that opens it.
class ModalAnswer : public QObject {
    Q_OBJECT

public:
    using DialogAnswer = std::function<void(QDialog*)>;
    using MenuAnswer = std::function<void(QMenu*)>;

    explicit ModalAnswer(DialogAnswer answer);
    explicit ModalAnswer(MenuAnswer answer);

    // Presses a button of the next message box.
    explicit ModalAnswer(QMessageBox::StandardButton button);
    // Picks the entry of that text from the next menu; a submenu's entry as "&View/&Icon".
    explicit ModalAnswer(const QString& menuEntry);

    // Whether the window was opened and answered, and the texts of a message box.
    [[nodiscard]] bool isUsed() const { return _isUsed; }
    [[nodiscard]] QString text() const { return _text; }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void answerDialog(QDialog* dialog);
    void answerMenu(QMenu* menu);

    DialogAnswer _dialogAnswer;
    MenuAnswer _menuAnswer;
    bool _isUsed = false;
    QString _text;
};

// Types a path into the next file dialog and accepts it; an empty path cancels.
[[nodiscard]] ModalAnswer::DialogAnswer chooseFiles(const QStringList& paths);
