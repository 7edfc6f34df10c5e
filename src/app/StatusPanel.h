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

// The right end of the status bar: how many files are shown and unsaved, the progress of a batch and the
// result of the last operation. Each button is hidden while it has nothing to show. Independent of the
// catalogue: the owner sets the values and connects the signals.
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

    // Why files are hidden; "%1" is replaced by their number.
    void setHidingReason(const QString& reason) { _hidingReason = reason; }
    void showCounts(int shown, int total);
    void showUnsaved(const Unsaved& unsaved);
    // Progress of a batch during which the window stays usable; empty without one.
    void showProgress(const QString& text);
    // Progress of an operation that blocks the window, shown instead of the above until it is set to an empty
    // text. Painted at once.
    void showBlockingProgress(const QString& text);
    void showResult(const OperationResult& result);
    // Adds one file to the result of an operation that reports its files one by one. Files of one event loop
    // iteration are counted together. The failure is null on success.
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
    qsizetype _addedFiles = 0; // in this event loop iteration
    QElapsedTimer _sinceRepaint;
};
