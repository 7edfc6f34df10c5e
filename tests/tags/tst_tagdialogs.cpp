#include "tags/AddTagsDialog.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/TagsExportDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

// The small windows of the tag subsystem.
class TestTagDialogs : public QObject {
    Q_OBJECT

private slots:
    void exportFollowsItsOptions() {
        TagsExportDialog dialog;
        const auto* text = dialog.findChild<QPlainTextEdit*>("plainTextEdit");
        const auto* status = dialog.findChild<QLabel*>("labelStatus");
        dialog.setTags({});
        QCOMPARE(status->text(), QString("Tags count: 0"));
        dialog.setTags({"b", "a", "b"});
        QCOMPARE(text->toPlainText(), QString("a [1]\nb [2]\n"));
        QCOMPARE(status->text(), QString("Tags count: 2"));
        dialog.findChild<QCheckBox*>("cBRemoveDuplicates")->setChecked(false);
        QCOMPARE(text->toPlainText(), QString("a [1]\nb [2]\nb [2]\n"));
        QCOMPARE(status->text(), QString("Tags count: 3"));
        dialog.findChild<QCheckBox*>("cBNumOccurance")->setChecked(false);
        dialog.findChild<QGroupBox*>("gBSort")->setChecked(true);
        dialog.findChild<QComboBox*>("cBSortDirection")->setCurrentIndex(1);
        QCOMPARE(text->toPlainText(), QString("b\nb\na\n"));
        dialog.findChild<QGroupBox*>("gBSort")->setChecked(false);
        QCOMPARE(text->toPlainText(), QString("a\nb\nb\n"));
    }

    void exportKeepsTheScrollPosition() {
        TagsExportDialog dialog;
        dialog.resize(300, 200);
        dialog.show();
        dialog.setTags(QString("tag,").repeated(500).split(','));
        dialog.findChild<QCheckBox*>("cBRemoveDuplicates")->setChecked(false);
        auto* scrollBar = dialog.findChild<QPlainTextEdit*>("plainTextEdit")->verticalScrollBar();
        scrollBar->setValue(100);
        dialog.findChild<QCheckBox*>("cBNumOccurance")->setChecked(false);
        QCOMPARE(scrollBar->value(), 100);
    }
};

QTEST_MAIN(TestTagDialogs)
#include "tst_tagdialogs.moc"
