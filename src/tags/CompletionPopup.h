#pragma once

#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

#include <functional>

class QLineEdit;
class QPlainTextEdit;
class QTreeWidget;
class QTreeWidgetItem;

struct Completion {
    QString text;
    QString note; // shown quieter beside the text: a count, or a line of help

    bool operator==(const Completion&) const = default;
};

// What is offered at the cursor of a line. A row replaces the characters from start to the cursor.
struct CompletionOffer {
    qsizetype start = 0;
    QList<Completion> rows = {};
};

// The list of completions below the text that the user types. The edit keeps the focus and all keys but those
// that choose: Down and Up, Tab and Enter for the chosen row, Escape. Owned by the edit.
class CompletionPopup : public QObject {
    Q_OBJECT

public:
    using Offer = std::function<CompletionOffer(const QString& line, qsizetype cursor)>;

    CompletionPopup(QLineEdit* edit, Offer offer);
    CompletionPopup(QPlainTextEdit* edit, Offer offer);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // Ctrl+Enter, with the text of the chosen row; null without one. In a text of several lines that row is
    // inserted before.
    void accepted(const QString& chosen);

private:
    struct Line {
        QString text;
        qsizetype cursor = 0;

        bool operator==(const Line&) const = default;
    };

    CompletionPopup(QWidget* edit, Offer offer);
    [[nodiscard]] bool isOpen() const;
    void update();
    void open(const QList<Completion>& rows);
    void hide();
    void place();
    void step(int rows);
    void insertCompletion(const QTreeWidgetItem* item);
    [[nodiscard]] bool handleKey(int key, Qt::KeyboardModifiers modifiers);

    QWidget* _edit;
    Offer _offer;
    QTreeWidget* _list = nullptr; // made at the first offer
    qsizetype _start = 0;
    Line _offered; // the line that the list completes
    bool _isInserting = false;
    bool _isAccepted = false; // and nothing has been typed since
    bool _takesChosen = false;
    std::function<Line()> _line;                                                       // at the cursor
    std::function<void(qsizetype start, qsizetype end, const QString& text)> _replace; // in that line
    std::function<QRect()> _cursorRect;                                                // on the screen
};
