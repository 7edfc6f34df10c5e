#include "faults/Operations.h"

#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSpinBox>

namespace {

// While it exists, chooses a file in file dialogs and accepts all others. A dialog that keeps reappearing is
// rejected.
class EverYes : public QObject {
public:
    explicit EverYes(const QString& path) : _path(path) { startTimer(2); }

protected:
    void timerEvent(QTimerEvent*) override {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        if (!dialog)
            return;
        if (++_answers > 5)
            dialog->reject();
        else if (qobject_cast<QFileDialog*>(dialog))
            chooseFiles({_path})(dialog);
        else if (box && box->button(QMessageBox::Yes))
            box->button(QMessageBox::Yes)->click();
        else if (box && box->button(QMessageBox::Ok))
            box->button(QMessageBox::Ok)->click();
        else
            dialog->accept();
    }

private:
    QString _path;
    int _answers = 0;
};

std::function<void(WindowDriver&, const QString&)> slot(void (MainWindow::*operation)()) {
    return [operation](WindowDriver& driver, const QString& target) {
        const EverYes answer(target);
        (driver.window().*operation)();
    };
}

void resize(WindowDriver& driver, const QString&) {
    for (const char* name : {"sBSpecificW", "sBSpecificH"})
        driver.widget<QSpinBox>(name)->setValue(64);
    driver.click("pBProcessResize");
}

void tag(WindowDriver& driver, const QString&) {
    driver.window().onAddTagsAccepted("new, tag");
    driver.window().replaceTagText("new", "old");
    driver.window().splitTagText("l");
    driver.widget<QListWidget>("lwAllImagesTags")->selectAll();
    driver.widget<QListWidget>("lwAllImagesTags")->clearSelection();
}

void saveRaw(WindowDriver& driver, const QString&) {
    driver.widget<QPlainTextEdit>("pTETagsFromFile")->setPlainText(QString(60'000, 'r'));
    driver.window().onSaveTagTxtFile();
}

void applyEffects(WindowDriver& driver, const QString&) {
    driver.widget<QListWidget>("lWDspEffects")->clear();
    driver.window().onAddDspEffectItem("Brightness");
    driver.click("pBDspApply");
}

void grabFrame(WindowDriver& driver, const QString&) {
    QImage frame(16, 16, QImage::Format_RGB32);
    frame.fill(Qt::blue);
    driver.window().onVideoPicCaptured(frame, "clip.mp4");
}

void import(WindowDriver& driver, const QString& target) {
    const EverYes answer(target + "/new.png");
    driver.window().importFiles();
}

void look(WindowDriver& driver, const QString&) {
    driver.window().onItemSelectedChanged();
    for (const char* text : {"a", ":missingtxt", ""})
        driver.window().onFilterImages(text);
    driver.window().onImagesSortByFileName();
    driver.window().onTagsExport();
    driver.window().onCopyComment();
    driver.window().onDspReset();
}

} // namespace

const QList<Operation>& operations() {
    const QByteArray noTxt = "Failed to open txt file:";
    const QByteArray noRawTxt = "Failed to open txt file, error:";
    const QByteArray noImage = "Unable to read image, error:";
    const QByteArray noWrite = "Error, unable to write file:";
    const QByteArray noOutPath = "Error, unable to create out path";
    const QByteArray unprocessed = "Image not processed";
    const QByteArray noPrompt = "Error, unable to open file:";
    const QByteArray noFrame = "Error, unable to save file to:";
    const QByteArray noJson = "Error, unable to open file for writting:";
    const QByteArray noImport = "Unable to import file from";
    const QByteArray noCopy = "Error, unable to copy file:";
    const QByteArray noTrash = "Error, unable to move file to trash";
    static const QList<Operation> all{
        {"look", look, {}},
        {"tag", tag, {}},
        {"save tags",
         slot(&MainWindow::onSaveTags),
         {"", noTxt, noTxt, noTxt, "Failed to write data to txt file:"}},
        {"save raw text",
         saveRaw,
         {"", noRawTxt, noRawTxt, noRawTxt, "Failed to write data to txt file, error:"}},
        {"resize", resize, {noImage, noImage, noWrite, noOutPath, noWrite}},
        {"apply effects", applyEffects, {unprocessed, unprocessed, noWrite, noOutPath, noWrite}},
        {"send a prompt", slot(&MainWindow::onOllamaSendPrompt), {noPrompt, noPrompt, "", "", ""}},
        {"grab a frame", grabFrame, {"", noFrame, "", noFrame, noFrame}},
        {"extract",
         slot(&MainWindow::onExtractWorkflow),
         {"", "", noJson, noJson, "Error, unable to write content to the file:"}},
        {"import", import, {"", "", "", noImport, noImport}},
        {"copy", slot(&MainWindow::copyFiles), {noCopy, noCopy, noCopy, noCopy, noCopy}},
        {"edit", [](WindowDriver& driver, const QString&) { driver.window().editImage(); }, {}},
        {"clear stray texts",
         slot(&MainWindow::deleteStrayTxtFiles),
         {"", "Working path dont exists.", "", "Failed to trash file:", ""}},
        {"move", slot(&MainWindow::moveFiles), {noCopy, noCopy, noCopy, noCopy, ""}},
        {"delete", slot(&MainWindow::deleteFile), {noTrash, noTrash, "", noTrash, ""}},
        {"refresh", slot(&MainWindow::onRefreshOpenFilePath), {"", "Directory dont exists at:", "", "", ""}},
    };
    return all;
}
