#include "app/services/LongLines.h"

#include <QPlainTextEdit>
#include <QTextDocument>

namespace {

constexpr int longRun = 10'000;

bool holdsLongRun(const QTextDocument& document, int begin, int end) {
    int run = 0;
    for (int position = begin; position < end; ++position) {
        run = document.characterAt(position).isSpace() ? 0 : run + 1;
        if (run > longRun)
            return true;
    }
    return false;
}

} // namespace

void keepLongLinesQuick(QPlainTextEdit* edit) {
    const QTextOption::WrapMode usual = edit->wordWrapMode();
    // The document emits contentsChange before it lays the text out, so the new mode takes effect in time.
    QObject::connect(edit->document(), &QTextDocument::contentsChange, edit,
                     [edit, usual](int position, int, int added) {
                         const QTextDocument& document = *edit->document();
                         // Only then: otherwise each key stroke would search the whole text for a run.
                         if (document.isEmpty())
                             edit->setWordWrapMode(usual);
                         else if (edit->wordWrapMode() == usual && added > longRun &&
                                  holdsLongRun(document, position, position + added))
                             edit->setWordWrapMode(QTextOption::WrapAnywhere);
                     });
}
