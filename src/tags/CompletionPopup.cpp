#include "tags/CompletionPopup.h"

#include "catalogue/ShortTextDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextBlock>
#include <QTreeWidget>

#include <utility>

namespace {

constexpr int maxTextWidth = 420;

} // namespace

CompletionPopup::CompletionPopup(QWidget* edit, Offer offer)
    : QObject(edit), _edit(edit), _offer(std::move(offer)) {
    edit->installEventFilter(this);
}

CompletionPopup::CompletionPopup(QLineEdit* edit, Offer offer)
    : CompletionPopup(static_cast<QWidget*>(edit), std::move(offer)) {
    _line = [edit] { return Line{edit->text(), edit->cursorPosition()}; };
    _replace = [edit](qsizetype start, qsizetype end, const QString& text) {
        edit->setSelection(int(start), int(end - start));
        edit->insert(text);
    };
    _cursorRect = [edit] { return QRect(edit->mapToGlobal(QPoint()), edit->size()); };
    // Not textChanged: a text that the program sets offers nothing.
    connect(edit, &QLineEdit::textEdited, this, &CompletionPopup::update);
}

CompletionPopup::CompletionPopup(QPlainTextEdit* edit, Offer offer)
    : CompletionPopup(static_cast<QWidget*>(edit), std::move(offer)) {
    _takesChosen = true;
    _line = [edit] {
        const QTextCursor cursor = edit->textCursor();
        return Line{cursor.block().text(), cursor.positionInBlock()};
    };
    _replace = [edit](qsizetype start, qsizetype end, const QString& text) {
        QTextCursor cursor = edit->textCursor();
        const int line = cursor.block().position();
        cursor.setPosition(line + int(start));
        cursor.setPosition(line + int(end), QTextCursor::KeepAnchor);
        cursor.insertText(text);
        edit->setTextCursor(cursor);
    };
    _cursorRect = [edit] {
        const QRect cursor = edit->cursorRect();
        return QRect(edit->viewport()->mapToGlobal(cursor.topLeft()), cursor.size());
    };
    // Clicks reach the viewport alone.
    edit->viewport()->installEventFilter(this);
    connect(edit, &QPlainTextEdit::textChanged, this, &CompletionPopup::update);
}

bool CompletionPopup::isOpen() const {
    return _list && _list->isVisible();
}

void CompletionPopup::update() {
    // Typing on after Ctrl+Enter makes Ctrl+Z undo the typing again.
    _isAccepted = false;
    if (_isInserting || !_edit->isVisible())
        return;
    const Line line = _line();
    const CompletionOffer offer = _offer(line.text, line.cursor);
    _start = offer.start;
    _offered = line;
    if (offer.rows.isEmpty())
        hide();
    else
        open(offer.rows);
}

void CompletionPopup::open(const QList<Completion>& rows) {
    if (!_list) {
        _list = new QTreeWidget(_edit);
        _list->setObjectName("completions");
        _list->setAccessibleName(tr("Completions"));
        // A tool tip window takes neither focus nor activation from the window that the user types in.
        _list->setWindowFlags(Qt::ToolTip);
        _list->setAttribute(Qt::WA_ShowWithoutActivating);
        _list->setFocusPolicy(Qt::NoFocus);
        _list->setColumnCount(2);
        _list->setHeaderHidden(true);
        _list->setRootIsDecorated(false);
        _list->setUniformRowHeights(true);
        // The popup is sized to its rows, see place().
        _list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        _list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        _list->setItemDelegate(new ShortTextDelegate(_list));
        _list->header()->setStretchLastSection(false);
        connect(_list, &QTreeWidget::itemPressed, this, &CompletionPopup::insertCompletion);
    }
    _list->clear();
    const QBrush quiet = _list->palette().brush(QPalette::PlaceholderText);
    for (const Completion& row : rows) {
        // Line ends would make a row higher; the stored text is inserted as it is.
        auto* item = new QTreeWidgetItem(_list, {row.text.simplified(), row.note});
        item->setData(0, Qt::UserRole, row.text);
        item->setForeground(1, quiet);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    // Nothing is chosen at first, so that Enter and Tab keep their usual effect.
    _list->setCurrentItem(nullptr);
    place();
    // Each time, as the edit may have moved to another window. A filter is not installed twice.
    _edit->window()->installEventFilter(this);
    _list->show();
}

void CompletionPopup::place() {
    _list->resizeColumnToContents(0);
    _list->setColumnWidth(0, qMin(_list->columnWidth(0), maxTextWidth));
    const int frame = 2 * _list->frameWidth();
    _list->resizeColumnToContents(1);
    const QSize row(_list->columnWidth(0) + _list->columnWidth(1),
                    _list->visualItemRect(_list->topLevelItem(0)).height());
    QRect rect({}, QSize(row.width() + frame, row.height() * _list->topLevelItemCount() + frame));
    const QRect cursor = _cursorRect();
    const QRect screen = _edit->screen()->availableGeometry();
    rect.moveTopLeft(cursor.bottomLeft() + QPoint(0, 1));
    if (rect.bottom() > screen.bottom())
        rect.moveBottom(cursor.top() - 1);
    rect.moveLeft(qMax(screen.left(), qMin(rect.left(), screen.right() - rect.width())));
    _list->setGeometry(rect);
}

void CompletionPopup::hide() {
    if (_list)
        _list->hide();
}

void CompletionPopup::step(int rows) {
    const int count = _list->topLevelItemCount();
    const int current = _list->indexOfTopLevelItem(_list->currentItem());
    // A step beyond either end clears the choice, as at first.
    const int next = current < 0 && rows < 0 ? count - 1 : current + rows;
    _list->setCurrentItem(next < count ? _list->topLevelItem(next) : nullptr);
}

void CompletionPopup::insertCompletion(const QTreeWidgetItem* item) {
    const QString text = item->data(0, Qt::UserRole).toString();
    hide();
    // The cursor was moved in a way that emits no signal here, such as by selecting all.
    if (_line() != _offered)
        return;
    // The insertion changes the text, which would open the list again.
    _isInserting = true;
    _replace(_start, _offered.cursor, text);
    _isInserting = false;
    // A completion that ends in a blank is followed by a value, whose completions are offered at once.
    if (text.endsWith(u' '))
        update();
}

bool CompletionPopup::handleKey(int key, Qt::KeyboardModifiers modifiers) {
    const bool isEnter = key == Qt::Key_Enter || key == Qt::Key_Return;
    const QTreeWidgetItem* chosen = isOpen() ? _list->currentItem() : nullptr;
    // Enter of the numeric keypad has this modifier.
    modifiers &= ~Qt::KeypadModifier;
    if (isEnter && modifiers == Qt::ControlModifier) {
        const QString text = chosen ? chosen->data(0, Qt::UserRole).toString() : QString();
        if (chosen && _takesChosen)
            insertCompletion(chosen);
        hide();
        _isAccepted = true;
        emit accepted(text);
        return true;
    }
    const bool isStep = modifiers == Qt::NoModifier && (key == Qt::Key_Up || key == Qt::Key_Down);
    // From Home to Page Down the keys move the cursor away from the text that was completed.
    if (key >= Qt::Key_Home && key <= Qt::Key_PageDown && !isStep)
        hide();
    if (!isOpen() || modifiers != Qt::NoModifier)
        return false;
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Up:
        step(key == Qt::Key_Down ? 1 : -1);
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        if (chosen)
            insertCompletion(chosen);
        else
            hide();
        return chosen != nullptr;
    default:
        return false;
    }
}

bool CompletionPopup::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto* keys = static_cast<QKeyEvent*>(event);
        return watched == _edit && handleKey(keys->key(), keys->modifiers());
    }
    case QEvent::ShortcutOverride: {
        // After Ctrl+Enter these keys reach the window, which undoes the added tag, not the typing.
        const auto* keys = static_cast<QKeyEvent*>(event);
        return watched == _edit && _isAccepted &&
               (keys->matches(QKeySequence::Undo) || keys->matches(QKeySequence::Redo));
    }
    case QEvent::MouseButtonPress:
        hide();
        return false;
    case QEvent::FocusOut:
    case QEvent::Hide:
        if (watched == _edit)
            hide();
        return false;
    // The window moves, resizes or loses its activation, and the list would stay where it is.
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
        if (watched == _edit->window())
            hide();
        return false;
    default:
        return false;
    }
}
