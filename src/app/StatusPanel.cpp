#include "app/StatusPanel.h"

#include "app/services/PlainText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype shownLines = 20;
constexpr int repaintIntervalMs = 50;

// The first lines as the plain text of a tool tip.
QString linesToolTip(const QStringList& lines, qsizetype total) {
    QStringList shown = lines.first(qMin(lines.size(), shownLines));
    if (total > shown.size())
        shown.append(QString(QChar(0x2026)));
    return plainToolTip(shown.join(u'\n'));
}

// Text of a button or an entry, in which "&" is no mnemonic.
QString literalText(const QString& text) {
    return QString(text).replace(u'&', "&&"_L1);
}

} // namespace

OperationResult operationResult(const QString& verb, qsizetype done, qsizetype total,
                                const QStringList& failures) {
    QString text = done == total ? StatusPanel::tr("%1 %2").arg(verb).arg(done)
                                 : StatusPanel::tr("%1 %2 of %3").arg(verb).arg(done).arg(total);
    if (!failures.isEmpty())
        text = StatusPanel::tr("%1, %2 failed").arg(text).arg(failures.size());
    return {text, failures};
}

StatusPanel::StatusPanel(QWidget* parent) : QWidget(parent), _unsavedMenu(new QMenu(this)) {
    setObjectName("statusPanel"_L1);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    _lastResult = addButton(u"tBLastResult"_s, tr("Last result"));
    _progress = addButton(u"tBBatchProgress"_s, tr("Progress of the batch"));
    _shownCount = addButton(u"tBShownCount"_s, tr("Shown files"));
    _unsavedCount = addButton(u"tBUnsavedCount"_s, tr("Unsaved files"));
    _unsavedCount->setMenu(_unsavedMenu);
    _unsavedCount->setPopupMode(QToolButton::InstantPopup);
    // The views above keep their height when the first button shows.
    setMinimumHeight(_shownCount->sizeHint().height());
    connect(_shownCount, &QToolButton::clicked, this, &StatusPanel::showAllRequested);
    connect(_progress, &QToolButton::clicked, this, &StatusPanel::progressClicked);
    connect(_lastResult, &QToolButton::clicked, this, [this] {
        if (!_failures.isEmpty())
            QGuiApplication::clipboard()->setText(_failures.join(u'\n'));
    });
}

QToolButton* StatusPanel::addButton(const QString& name, const QString& accessibleName) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(accessibleName);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->hide();
    layout()->addWidget(button);
    return button;
}

void StatusPanel::showCounts(int shown, int total) {
    _shownCount->setText(tr("%1 of %2 shown").arg(shown).arg(total));
    // Until the first filter the reason is empty, about which arg() would warn.
    const QString reason = QString(_hidingReason).replace("%1"_L1, QString::number(total - shown));
    _shownCount->setToolTip(reason + u'\n' + tr("Click to show all files."));
    _shownCount->setVisible(shown < total);
}

void StatusPanel::showUnsaved(const Unsaved& unsaved) {
    _unsavedCount->setText(tr("%1 unsaved").arg(unsaved.count));
    _unsavedCount->setToolTip(linesToolTip(unsaved.names, unsaved.count));
    fillUnsavedMenu(unsaved);
    // Also without unsaved files as long as there is a step of undo or an offer to restore.
    _unsavedCount->setVisible(!_unsavedMenu->isEmpty());
}

void StatusPanel::fillUnsavedMenu(const Unsaved& unsaved) {
    _unsavedMenu->clear();
    const auto add = [this](const QString& text, void (StatusPanel::*request)()) {
        _unsavedMenu->addAction(literalText(text), this, request);
    };
    if (!unsaved.undoText.isEmpty())
        add(tr("Undo %1").arg(unsaved.undoText), &StatusPanel::undoRequested);
    if (!unsaved.redoText.isEmpty())
        add(tr("Redo %1").arg(unsaved.redoText), &StatusPanel::redoRequested);
    if (unsaved.count > 0) {
        _unsavedMenu->addSeparator();
        add(tr("Save tags"), &StatusPanel::saveRequested);
        add(tr("Show unsaved files"), &StatusPanel::showUnsavedRequested);
    }
    if (unsaved.offeredCount > 0) {
        _unsavedMenu->addSeparator();
        add(tr("Restore %1 files of %2").arg(unsaved.offeredCount).arg(unsaved.offeredTime),
            &StatusPanel::restoreRequested);
        add(tr("Discard"), &StatusPanel::discardRequested);
    }
}

void StatusPanel::showProgress(const QString& text) {
    _progressText = text;
    updateProgress();
}

void StatusPanel::showBlockingProgress(const QString& text) {
    _blockingText = text;
    updateProgress();
    if (!text.isEmpty())
        repaintNow();
}

void StatusPanel::updateProgress() {
    // While captions wait for an answer the user may start a blocking operation, whose text then comes first.
    const QString& text = _blockingText.isEmpty() ? _progressText : _blockingText;
    _progress->setText(text);
    _progress->setVisible(!text.isEmpty());
}

void StatusPanel::showResult(const OperationResult& result) {
    _failures = result.failures;
    _lastResult->setText(literalText(result.text));
    _lastResult->setToolTip(linesToolTip(_failures, _failures.size()));
    _lastResult->setVisible(!result.text.isEmpty());
}

void StatusPanel::addToResult(const QString& verb, const QString& failure) {
    QStringList failures;
    if (_addedFiles == 0)
        // The next event loop iteration starts a new count.
        QTimer::singleShot(0, this, [this] { _addedFiles = 0; });
    else
        failures = _failures;
    ++_addedFiles;
    if (!failure.isNull())
        failures.append(failure);
    showResult(operationResult(verb, _addedFiles - failures.size(), _addedFiles, failures));
}

void StatusPanel::repaintNow() {
    if (_sinceRepaint.isValid() && _sinceRepaint.elapsed() < repaintIntervalMs)
        return;
    _sinceRepaint.start();
    // The panel is a child of the status bar, whose message is repainted together with it.
    if (parentWidget())
        parentWidget()->repaint();
}
