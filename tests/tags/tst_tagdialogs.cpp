#include "tags/AddTagsDialog.h"
#include "tags/ReplaceTextDialog.h"
#include "tags/TagsExportDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

// The small windows of the tag subsystem.
class TestTagDialogs : public QObject {
    Q_OBJECT

private slots:
    void editingSendsBothPaths() {
        auto dialog = std::make_unique<AddTagsDialog>();
        QCOMPARE(dialog->findChild<QPushButton*>("pBAdd")->text(), QString("Add"));
        dialog->setTagFile("/d/a%1.png", "/d/a%1.txt", "red");
        QCOMPARE(dialog->findChild<QLabel*>("labelTags")->text(), QString("Tags from: /d/a%1.txt"));
        QCOMPARE(dialog->findChild<QPushButton*>("pBAdd")->text(), QString("Save"));
        const QSignalSpy edited(dialog.get(), &AddTagsDialog::addTagsTxtAccepted);
        const QSignalSpy destroyed(dialog.get(), &AddTagsDialog::aboutToBeDestroyed);
        for (const char* button : {"pBCancel", "pBAdd"})
            dialog->findChild<QPushButton*>(button)->click();
        QCOMPARE(edited, QList<QVariantList>({{"/d/a%1.png", "/d/a%1.txt", "red"}}));
        dialog.reset();
        QCOMPARE(destroyed.count(), 1);
    }

    void replaceAndSplitShareAWindow() {
        for (const int type : {int(ReplaceTextDialog::Replace), int(ReplaceTextDialog::Split), 0}) {
            ReplaceTextDialog dialog;
            dialog.setOperationType(type);
            const QSignalSpy replaced(&dialog, &ReplaceTextDialog::replaceText);
            const QSignalSpy split(&dialog, &ReplaceTextDialog::splitText);
            dialog.open();
            QCOMPARE(dialog.findChild<QWidget*>("widgetDst")->isVisible(), type != ReplaceTextDialog::Split);
            dialog.findChild<QLineEdit*>("lESrcText")->setText("src");
            dialog.findChild<QPushButton*>("pBCancel")->click();
            QVERIFY(!dialog.isVisible());
            QCOMPARE(replaced.count() + split.count(), 0);
            dialog.open();
            dialog.findChild<QPushButton*>("pBOk")->click();
            QVERIFY(!dialog.isVisible());
            QCOMPARE(replaced.count(), type == ReplaceTextDialog::Replace ? 1 : 0);
            QCOMPARE(split.count(), type == ReplaceTextDialog::Split ? 1 : 0);
        }
    }

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
