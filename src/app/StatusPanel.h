#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QMenu;
class QToolButton;

// The outcome of an operation that the user started.
struct OperationResult {
    QString text;         // "resized 228 of 237, 9 failed"
    QStringList failures; // a line each: file and reason
};

// "saved 237", or "saved 228 of 237, 9 failed". The failures are the lines of file and reason.
[[nodiscard]] OperationResult operationResult(const QString& verb, qsizetype done, qsizetype total,
                                              const QStringList& failures);

// The right end of the status bar: how many files are shown and unsaved, how far a batch is and what the last
// operation did. Each button is hidden while it has nothing to say. Knows no catalogue; whoever owns it fills
// it and follows its signals.
class StatusPanel : public QWidget {
    Q_OBJECT

public:
    struct Unsaved {
        qsizetype count = 0;
        QStringList names; // the first ones
        QString undoText;  // empty without a step
        QString redoText;
        qsizetype offeredCount = 0; // files that an earlier run left unsaved
        QString offeredTime;
    };

    explicit StatusPanel(QWidget* parent = nullptr);

    // Why files are hidden; "%1" stands for their number.
    void setHidingReason(const QString& reason) { _hidingReason = reason; }
    void showCounts(int shown, int total);
    void showUnsaved(const Unsaved& unsaved);
    // How far a batch is that leaves the window alive; empty without one.
    void showProgress(const QString& text);
    // How far an operation is that blocks the window, in place of the above until it is empty again. Painted
    // at once.
    void showBlockingProgress(const QString& text);
    void showResult(const OperationResult& result);
    // One file of an operation that reports each by itself; those of one turn of the event loop are counted
    // together. The failure is null where the file was done.
    void addToResult(const QString& verb, const QString& failure);

    // Paints the window of the panel's status bar in the middle of a blocking loop, at most 20 times a
    // second.
    void repaintNow();

signals:
    void showAllRequested();
    void undoRequested();
    void redoRequested();
    void saveRequested();
    void showUnsavedRequested();
    void restoreRequested();
    void discardRequested();
    void progressClicked();

private:
    QToolButton* addButton(const QString& name, const QString& accessibleName);
    void updateProgress();
    void fillUnsavedMenu(const Unsaved& unsaved);

    QToolButton* _shownCount;
    QToolButton* _unsavedCount;
    QToolButton* _progress;
    QToolButton* _lastResult;
    QMenu* _unsavedMenu;
    QString _hidingReason;
    QString _progressText;
    QString _blockingText;
    QStringList _failures;
    qsizetype _addedFiles = 0; // in this turn of the event loop
    QElapsedTimer _sinceRepaint;
};
