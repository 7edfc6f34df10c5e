#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "editor/EditImageWidget.h"
#include "safetensors/SafetensorsDialog.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QAction>
#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSplitter>
#include <QToolButton>
#include <QtEndian>

#include <optional>

namespace {

QByteArray modelFile(const QByteArray& header, int dataSize = 0) {
    QByteArray file(8, '\0');
    qToLittleEndian<quint64>(static_cast<quint64>(header.size()), file.data());
    return file + header + QByteArray(dataSize, '\0');
}

const QByteArray fullHeader = R"({"__metadata__":{"b":" last ","a":"first"},)"
                              R"("w":{"dtype":"F16","shape":[2,3],"data_offsets":[0,12]}})";
const QByteArray bareHeader = R"({"w":{"dtype":"U8","shape":[1],"data_offsets":[0,1]}})";

} // namespace

// Model files opened from the menu, each in a window of its own.
class TestWindowSafetensors : public QObject {
    Q_OBJECT

private slots:
    void init() {
        WindowDriver::forgetSettings();
        _folder.emplace();
        _folder->addFile("full.safetensors", modelFile(fullHeader, 12));
        _driver.emplace();
    }

    void cleanup() {
        _driver.reset();
        _folder.reset();
    }

    void filesOpenSideBySide() {
        _folder->addFile("bare.safetensors", modelFile(bareHeader, 1));
        _folder->addImage("full.png", {40, 30});
        const QList<SafetensorsDialog*> dialogs = inspect({"full.safetensors", "bare.safetensors"});
        QCOMPARE(dialogs.size(), 2);
        QVERIFY(dialogs[0]->isVisible() && !dialogs[0]->isModal() && dialogs[1]->isVisible());
        QCOMPARE(dialogs[0]->windowTitle(), QString("File: full.safetensors"));
        QCOMPARE(output(dialogs[0]), QString("a\t:\tfirst\nb\t:\tlast\n"));
        QCOMPARE(output(dialogs[1]), QString());
        const auto* view = dialogs[0]->findChild<EditImageWidget*>();
        QCOMPARE(view->imageSize(), QSize(40, 30));
        QVERIFY(view->autoFit() && view->autoCenter());
        QVERIFY(dialogs[1]->findChild<EditImageWidget*>()->imageFilePath().isEmpty());
        QCOMPARE(_driver->statusText(),
                 "Inspecting " + _folder->filePath("bare.safetensors") + " safetensors");
        QVERIFY(!box(dialogs[0], "cBTensor")->isChecked() && box(dialogs[0], "cBMetainfo")->isChecked());
    }

    void faultsShowInPlaceOfTheList() {
        const QString path = _folder->addFile("bad.safetensors", modelFile(fullHeader, 11));
        _folder->addFile("short.safetensors", "abc");
        const QList<SafetensorsDialog*> dialogs = inspect({"bad.safetensors", "short.safetensors"});
        QCOMPARE(dialogs.size(), 2);
        QVERIFY(output(dialogs[0]).startsWith("Failed to load: " + path + " invalid data offsets error: "));
        QVERIFY(!output(dialogs[0]).contains("first"));
        box(dialogs[0], "cBMetainfo")->click();
        QVERIFY(output(dialogs[0]).contains("invalid data offsets error: "));
        QVERIFY(output(dialogs[1]).contains("short.safetensors error: "));
    }

    void theButtonsWalkTheDirectory() {
        _folder->addFile("bare.safetensors", modelFile(bareHeader, 1));
        SafetensorsDialog* dialog = inspect({"full.safetensors"}).value(0);
        QVERIFY(dialog);
        box(dialog, "cBTensor")->click();
        press(dialog, "tBSafetensorNext");
        QCOMPARE(dialog->windowTitle(), QString("File: bare.safetensors"));
        QCOMPARE(output(dialog), QString("w\t:\tU8 [1]\n"));
        press(dialog, "tBSafetensorPrev");
        QCOMPARE(dialog->windowTitle(), QString("File: full.safetensors"));
        QFile::remove(_folder->filePath("full.safetensors"));
        press(dialog, "tBSafetensorNext");
        QCOMPARE(dialog->windowTitle(), QString("File: bare.safetensors"));
        QFile::remove(_folder->filePath("bare.safetensors"));
        press(dialog, "tBSafetensorPrev");
        QCOMPARE(dialog->windowTitle(), QString("File: "));
        QCOMPARE(WindowDriver::logCount("No files found"), 1);
    }

    void placesAreKept() {
        QPointer<SafetensorsDialog> dialog = inspect({"full.safetensors"}).value(0);
        QVERIFY(dialog);
        dialog->resize(500, 400);
        dialog->findChild<QSplitter*>()->setSizes({100, 380});
        const QByteArray splitterState = dialog->saveSplitterState();
        dialog->close();
        QTRY_VERIFY(!dialog);
        dialog = inspect({"full.safetensors"}).value(0);
        QCOMPARE(dialog->size(), QSize(500, 400));
        QCOMPARE(dialog->saveSplitterState(), splitterState);
        dialog->resize(510, 410);
        // A window that is still open at the end is kept as well.
        _driver.reset();
        _driver.emplace();
        QCOMPARE(inspect({"full.safetensors"}).value(0)->size(), QSize(510, 410));
    }

private:
    // The dialogs of the files that the user chooses now, in that order.
    QList<SafetensorsDialog*> inspect(const QStringList& names) {
        QStringList paths;
        for (const QString& name : names)
            paths.append(_folder->filePath(name));
        const ModalAnswer answer(chooseFiles(paths));
        _driver->widget<QAction>("action_InspectSafetensor")->trigger();
        return answer.isUsed() ? _driver->window().findChildren<SafetensorsDialog*>()
                               : QList<SafetensorsDialog*>();
    }

    static QString output(const SafetensorsDialog* dialog) {
        return dialog->findChild<QPlainTextEdit*>("pTEOutput")->toPlainText();
    }
    static QCheckBox* box(const SafetensorsDialog* dialog, const char* name) {
        return dialog->findChild<QCheckBox*>(QLatin1StringView(name));
    }
    static void press(const SafetensorsDialog* dialog, const char* name) {
        dialog->findChild<QToolButton*>(QLatin1StringView(name))->click();
    }

    std::optional<MediaFolder> _folder;
    std::optional<WindowDriver> _driver;
};

QTEST_MAIN(TestWindowSafetensors)
#include "tst_window_safetensors.moc"
