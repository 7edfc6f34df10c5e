#include "editor/CutGeometry.h"
#include "editor/EditImageWidget.h"

#include <QAction>
#include <QCursor>
#include <QMenu>

void EditImageWidget::onContextMenu(QPoint) {
    auto* menu = new QMenu(this);
    // popup() returns at once, so that the menu cannot live on the stack.
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    if (_tool == ToolCut)
        addCutEntries(menu);
    else
        addViewEntries(menu);
    menu->popup(QCursor::pos());
}

void EditImageWidget::addViewEntries(QMenu* menu) {
    const auto addToggle = [this, menu](const QString& text, bool checked, auto toggle) {
        QAction* action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(checked);
        connect(action, &QAction::triggered, this, [this, toggle] {
            toggle();
            // Reports the zoom of auto fit, too, which the toggle does not.
            updateView();
        });
    };
    addToggle(tr("Auto fit"), _autoFit, [this] { toggleAutoFit(); });
    addToggle(tr("Auto center"), _autoCenter, [this] { toggleAutoCenter(); });
    addToggle(tr("Update on resize"), _updateOnResize, [this] { _updateOnResize = !_updateOnResize; });
    connect(menu->addAction(tr("Reset zoom")), &QAction::triggered, this, &EditImageWidget::resetZoom);
    menu->addSeparator();
    connect(menu->addAction(tr("&Save as")), &QAction::triggered, this, &EditImageWidget::saveImageAs);
}

void EditImageWidget::addCutEntries(QMenu* menu) {
    const auto addAlignment = [this, menu](const QString& text, CutAlignment alignment) {
        // Nothing is emitted: the number fields follow at the next release of a key or button.
        connect(menu->addAction(text), &QAction::triggered, this,
                [this, alignment] { onCutRectSet(alignedCutRect(_cutRect, alignment, _pixmap.rect())); });
    };
    addAlignment(tr("F&it"), CutAlignment::Fit);
    addAlignment(tr("Align &height"), CutAlignment::Height);
    addAlignment(tr("Align &width"), CutAlignment::Width);
    addAlignment(tr("Align c&enter"), CutAlignment::Center);
    menu->addSeparator();
    addAlignment(tr("Same width"), CutAlignment::SameWidth);
    addAlignment(tr("Same height"), CutAlignment::SameHeight);
    menu->addSeparator();
    addAlignment(tr("Align edge &left"), CutAlignment::EdgeLeft);
    addAlignment(tr("Align edge &right"), CutAlignment::EdgeRight);
    addAlignment(tr("Align edge &top"), CutAlignment::EdgeTop);
    addAlignment(tr("Align edge &bottom"), CutAlignment::EdgeBottom);
}
