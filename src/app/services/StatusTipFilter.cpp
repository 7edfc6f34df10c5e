#include "app/services/StatusTipFilter.h"

#include <QMainWindow>
#include <QStatusTipEvent>

namespace {

class EmptyTipFilter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::StatusTip && static_cast<QStatusTipEvent*>(event)->tip().isEmpty();
    }
};

} // namespace

void keepMessages(QMainWindow* window) {
    window->installEventFilter(new EmptyTipFilter(window));
}
