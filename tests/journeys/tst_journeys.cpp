#include "journeys/Desk.h"

#include "ollama/OllamaPeer.h"
#include "support/Clips.h"

#include <QAction>
#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

namespace {

void live(Desk& desk, const QList<Step>& steps) {
    const QString differs = desk.perform(steps);
    desk.walk();
    QVERIFY2(differs.isEmpty(), qPrintable(differs));
}

// The editor steps through the rows in the order of the views, which nothing has sorted.
void steppingFollowsTheRows(Desk& desk) {
    const QStringList rows = desk.driver.shownNames();
    desk.driver.select({rows.constFirst()});
    desk.driver.trigger("editImage");
    const QWidget* editor = desk.driver.toolWindow("EditImageDialog");
    const auto step = [editor](QKeySequence::StandardKey key) {
        for (QAction* action : editor->findChildren<QAction*>()) {
            if (action->shortcut() == QKeySequence(key))
                action->trigger();
        }
        return editor->windowTitle().section(' ', 2, 2);
    };
    QVERIFY(rows.size() > 2);
    desk.folder.addFile(rows[2], "no picture");
    const auto* status = editor->findChild<QLabel*>("labelStatus");
    QCOMPARE(step(QKeySequence::MoveToNextPage), rows[1]);
    QCOMPARE(step(QKeySequence::MoveToNextPage), rows[2]);
    QCOMPARE(status->text(), desk.folder.filePath(rows[2]) + ": no image was read");
    QCOMPARE(step(QKeySequence::MoveToPreviousPage), rows[1]);
    QCOMPARE(status->text(), "");
}

// The bytes that transformation and quality of the form must give.
void resizingObeysItsForm(Desk& desk) {
    const QImage fine(desk.folder.filePath("fine.jpg"));
    for (const int quality : {100, 20}) {
        for (const auto mode : {Qt::FastTransformation, Qt::SmoothTransformation}) {
            desk.driver.select({"fine.jpg"});
            desk.driver.widget<QComboBox>("cBResizeSrcTransformationType")->setCurrentIndex(int(mode));
            desk.driver.widget<QSlider>("hSResizeImgWriteQuality")->setValue(quality);
            desk.driver.widget<QSpinBox>("sBSpecificW")->setValue(90);
            desk.driver.widget<QSpinBox>("sBSpecificH")->setValue(-1);
            desk.driver.click("pBProcessResize");
            QBuffer expected;
            QImageWriter writer(&expected, "jpg");
            writer.setQuality(quality);
            QVERIFY(expected.open(QIODevice::WriteOnly) && writer.write(fine.scaledToWidth(90, mode)));
            QVERIFY(desk.folder.content("scaled/fine.jpg") == expected.data());
        }
    }
}

QByteArray modelFile(const QByteArray& header, int dataSize) {
    QByteArray size(8, '\0');
    size[0] = char(header.size());
    return size + header + QByteArray(dataSize, '\0');
}

} // namespace

// An hour with each part of the program: one step after the other, each with all that it changes.
class JourneysTest : public QObject {
    Q_OBJECT

public:
    static void initMain() { WindowDriver::useScreen({1600, 1200}); }

private slots:
    void files() {
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {40, 30}, Qt::red, {{"parameters", "a workflow"}});
            folder.addImage("b.jpg", {50, 30}, Qt::blue);
            folder.addImage("sub/c.png", {20, 20}, Qt::yellow);
            folder.addImage("other/a.png", {22, 22}, Qt::cyan);
            folder.addTags("a.png", "cat, dog");
            folder.addTags("sub/c.png", "inner");
            folder.addTags("c.png", "waiting");
            folder.addTags("gone.png", "stray");
            folder.addFile("empty/notes.md");
            folder.addFile("a_backup_0.txt", "stray");
        });
        const QList<Step> steps{
            {"select a.png", "lwImageTags=cat|dog"},
            {"listView > Copy co&mment", "clipboard=a workflow"},
            {"listView > E&xtract workflow -> FOLDER/sub",
             "asked=Select directory ; disk sub/a.json=\"a workflow\" ; tBLastResult=extracted 1"},
            {"listView > &Copy files -> FOLDER/other",
             "asked=Select directory ; complaints=Error, unable to copy file: FOLDER/a.png to: "
             "FOLDER/other/a.png error: Destination file exists ; statusbar=Error, unable to copy file: "
             "FOLDER/a.png to: FOLDER/other/a.png error: Destination file exists ; tBLastResult=copied 0 of "
             "1, 1 failed"},
            {"listView > &Open in native app", "opened=FOLDER/a.png"},
            {"listView > Show file in &file browser", "opened=FOLDER"},
            {"listView > &View/&List simple", "listView=a.png|b.jpg (list)"},
            {"listView > &View/&List", "labelCurrentSelectionTags=Current selection [0] tags: ; "
                                       "lwImageTags=(nothing) ; selected=(nothing) ; stackedWidget=page 1"},
            {"select b.jpg", ""},
            {"treeView > &View/&Table", "labelCurrentSelectionTags=Current selection [0] tags: ; "
                                        "selected=(nothing) ; stackedWidget=page 2"},
            {"select b.jpg", ""},
            {"tableView > &View/&Icon",
             "dockWidget_ImgPreview=Image 40x30 preview ; imgWidget=red ; labelTagsFromFile=File: "
             "FOLDER/a.txt ; listView=a.png|b.jpg ; lwImageTags=cat|dog ; pTETagsFromFile=cat, dog ; "
             "selected=a.png ; stackedWidget=page 0 ; tWComments=a.png|parameters: a workflow"},
            {"action_Import_files -> FOLDER/sub/c.png|FOLDER/other/a.png",
             "asked=Select files to import ; complaints=Error, unable to find model item for: "
             "\"FOLDER/c.png\" ; disk c.png=20x20 yellow ; labelTagsFromFile=File: FOLDER/c.txt ; "
             "listView=a.png|b.jpg|c.png ; lwAllImagesTags=cat|dog|waiting ; pTETagsFromFile=waiting ; row "
             "c.png=20x20 yellow ; statusbar=(background) ; tBLastResult=imported 1 ; tBUnsavedCount=0 "
             "unsaved"},
            {"listView > &Import files -> FOLDER/sub/c.png",
             "asked=Select files to import ; complaints=Unable to import file from FOLDER/sub/c.png, file "
             "already exist at: FOLDER/c.png ; statusbar=Unable to import file from FOLDER/sub/c.png, file "
             "already exist at: FOLDER/c.png ; tBLastResult=imported 0 of 1, 1 failed"},
            {"listView > &Copy files -> FOLDER/sub",
             "asked=Select directory ; disk sub/a.png=40x30 red ; tBLastResult=copied 1"},
            {"remove c.png", "disk c.png=(nothing) ; listView=a.png|b.jpg ; lwAllImagesTags=cat|dog ; row "
                             "c.png=(nothing) ; statusbar=Removed 1 missing items."},
            {"write d.png cyan 70x20",
             "disk d.png=70x20 cyan ; labelTagsFromFile=File tag, txt, missing for: FOLDER/d.txt ; "
             "listView=a.png|b.jpg|d.png ; pTETagsFromFile=(nothing) ; row d.png=70x20 cyan ; "
             "statusbar=(background)"},
            {"cBWorkingDirScanRecursive", "cBWorkingDirScanRecursive=rec. on"},
            {"tBRefreshOpenFilePath -> No", "asked=Refresh FOLDER working directory?"},
            {"tBRefreshOpenFilePath -> Yes",
             "asked=Refresh FOLDER working directory? ; labelCurrentSelectionTags=Current selection [0] "
             "tags: ; labelTagsFromFile=* ; listView=a.png|a.png|a.png|b.jpg|c.png|d.png ; "
             "lwAllImagesTags=cat|dog|inner ; lwImageTags=(nothing) ; pTETagsFromFile=* ; row "
             "other/a.png=22x22 cyan ; row sub/a.png=40x30 red ; row sub/c.png=20x20 yellow ; "
             "selected=(nothing) ; tBUnsavedCount=(nothing)"},
            {"select b.jpg|d.png", ""},
            {"listView > &Sort/&Path",
             "order of rows=FOLDER/sub|FOLDER/sub|FOLDER/other|FOLDER|FOLDER|FOLDER"},
            {"listView > &Sort/&Resolution", "order of rows=20x20|22x22|40x30|40x30|70x20|50x30"},
            {"listView > &Sort/&Name", "order of rows=c.png|a.png|a.png|d.png|b.jpg|a.png"},
            {"listView > &Delete stray txt files",
             "disk a_backup_0.txt=(nothing) ; disk c.txt=(nothing) ; disk gone.txt=(nothing) ; "
             "statusbar=(background) ; tBLastResult=deleted 3"},
            {"listView > &Move files -> FOLDER/other",
             "asked=Select directory ; disk b.jpg=(nothing) ; disk d.png=(nothing) ; disk other/b.jpg=50x30 "
             "blue ; disk other/d.png=70x20 cyan ; labelCurrentSelectionTags=Current selection [0] tags: ; "
             "labelTagsFromFile=* ; row b.jpg=(nothing) ; row d.png=(nothing) ; row other/b.jpg=50x30 blue ; "
             "row other/d.png=70x20 cyan ; selected=(nothing) ; statusbar=(background) ; tBLastResult=moved "
             "2 ; pTETagsFromFile=*"},
            {"select b.jpg",
             "labelTagsFromFile=File tag, txt, missing for: FOLDER/other/b.txt ; tWComments=b.jpg"},
            {"listView > Refresh -> No", "asked=Refresh FOLDER working directory?"},
            {"listView > &Delete file -> Cancel", "asked=Delete files."},
            {"listView > &Delete file -> OK",
             "asked=Delete files. ; disk other/b.jpg=(nothing) ; dockWidget_ImgPreview=* ; imgWidget=* ; "
             "labelTagsFromFile=* ; listView=a.png|a.png|a.png|c.png|d.png ; row other/b.jpg=(nothing) ; "
             "selected=* ; tBLastResult=deleted 1 ; tWComments=*"},
            {"tBSrcSelectPath -> Yes, FOLDER/sub",
             "asked=Change FOLDER working directory?|Select directory ; labelCurrentSelectionTags=Current "
             "selection [0] tags: ; lEWorkingPath=FOLDER/sub ; selected=(nothing) ; "
             "labelTagsFromFile=* ; listView=a.png|c.png ; lwAllImagesTags=inner ; pTETagsFromFile=* ; row "
             "a.png=(nothing) ; row other/a.png=(nothing) ; row other/d.png=(nothing) ; "
             "statusbar=(background)"},
            {"action_SelectWorkingPath -> No", "asked=Change FOLDER/sub working directory?"},
            {"write sub/d.png lime 20x10",
             "disk sub/d.png=20x10 lime ; labelTagsFromFile=File tag, txt, missing for: FOLDER/sub/d.txt ; "
             "listView=a.png|c.png|d.png ; pTETagsFromFile=(nothing) ; row sub/d.png=20x10 lime"},
            {"select d.png",
             "dockWidget_ImgPreview=Image 20x10 preview ; imgWidget=lime ; "
             "labelTagsFromFile=File tag, txt, missing for: FOLDER/sub/d.txt ; tWComments=d.png"},
            {"lEWorkingPath = FOLDER/none", "lEWorkingPath=FOLDER/none"},
            {"press Return in lEWorkingPath -> No",
             "asked=Change current working directory to FOLDER/none? ; lEWorkingPath=FOLDER/sub"},
            {"lEWorkingPath = FOLDER/none", "lEWorkingPath=FOLDER/none"},
            {"action_Import_files -> OK", "asked=Working directory don't exists at: FOLDER/none"},
            {"listView > &Delete stray txt files", "statusbar=Working path dont exists."},
            {"lEWorkingPath = ", "lEWorkingPath=(nothing)"},
            {"action_Import_files -> OK", "asked=Set working directory. Path is empty."},
            {"listView > &Delete stray txt files", "statusbar=Working path empty."},
            {"lEWorkingPath = FOLDER/empty", "lEWorkingPath=FOLDER/empty"},
            {"press Return in lEWorkingPath -> Yes",
             "asked=Change current working directory to FOLDER/empty? ; labelCurrentSelectionTags=Current "
             "selection [0] tags: ; labelTagsFromFile=File: ; listView=(nothing) ; lwAllImagesTags=(nothing) "
             "; row sub/a.png=(nothing) ; row sub/c.png=(nothing) ; row sub/d.png=(nothing) ; "
             "selected=(nothing) ; statusbar=(background)"},
            {"tBSaveTagTxtFile",
             "complaints=Error, file name is empty. ; statusbar=Error, file name is empty."},
            {"action_SelectWorkingPath -> FOLDER/sub",
             "asked=Select directory ; lEWorkingPath=FOLDER/sub ; labelTagsFromFile=* ; "
             "listView=a.png|c.png|d.png ; lwAllImagesTags=inner ; pTETagsFromFile=* ; row sub/a.png=40x30 "
             "red ; row sub/c.png=20x20 yellow ; row sub/d.png=20x10 lime ; statusbar=(background)"},
            {"write sub/e.png lime 20x10",
             "disk sub/e.png=20x10 lime ; labelTagsFromFile=File tag, txt, missing for: FOLDER/sub/e.txt ; "
             "listView=a.png|c.png|d.png|e.png ; pTETagsFromFile=(nothing) ; row sub/e.png=20x10 lime"},
            {"restart", "dockWidget_ImgPreview=Media preview ; imgWidget=none ; "
                        "labelCurrentSelectionTags=Current selection tags: ; tBLastResult=(nothing) ; "
                        "tWComments=(nothing) ; labelTagsFromFile=* ; pTETagsFromFile=*"},
            {"action_Options", "asked=Settings"},
            {"actionExit",
             "imgWidget=(nothing) ; stackedWidget=hidden, page 0 ; stackedWidgetMediaPreview=hidden, page 0 "
             "; tWTools=hidden, page 0 ; window=closed"},
        };
        live(desk, steps);
    }

    void tags() {
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {40, 30}, Qt::red);
            folder.addImage("b.png", {50, 30}, Qt::blue);
            folder.addImage("c.png", {60, 30}, Qt::yellow);
            QDir(folder.path()).mkdir("c.txt");
            folder.addTags("a.png", "cat, dog, ant");
            folder.addTags("b.png", "bee, cat, ant");
        });
        const QList<Step> steps{
            {"select a.png", "lwImageTags=cat|dog|ant"},
            {"addTag", "AddTagsDialog=Add tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = no, never", "AddTagsDialog.plainTextEdit=no, never"},
            {"AddTagsDialog.pBCancel", "AddTagsDialog=(nothing)"},
            {"listView > &Add tag", "AddTagsDialog=Add tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = fox", "AddTagsDialog.plainTextEdit=fox"},
            {"AddTagsDialog.pBAdd", "AddTagsDialog=(nothing) ; lwAllImagesTags=ant|bee|cat|dog|fox ; "
                                    "lwImageTags=cat|dog|ant|fox ; tBUnsavedCount=1 unsaved"},
            {"tBUnsavedCount > Undo add \"fox\" to 1 files",
             "lwAllImagesTags=ant|bee|cat|dog ; lwImageTags=cat|dog|ant ; tBUnsavedCount=0 unsaved"},
            {"press Ctrl+Y in listView",
             "lwAllImagesTags=ant|bee|cat|dog|fox ; lwImageTags=cat|dog|ant|fox ; tBUnsavedCount=1 unsaved"},
            {"press Ctrl+Z in listView",
             "lwAllImagesTags=ant|bee|cat|dog ; lwImageTags=cat|dog|ant ; tBUnsavedCount=0 unsaved"},
            {"press Ctrl+Shift+Z in listView",
             "lwAllImagesTags=ant|bee|cat|dog|fox ; lwImageTags=cat|dog|ant|fox ; tBUnsavedCount=1 unsaved"},
            {"tBUnsavedCount > Show unsaved files",
             "listView=a.png ; row b.png=(nothing) ; row c.png=(nothing) ; tBShownCount=1 of 3 shown"},
            {"tBShownCount", "listView=a.png|b.png|c.png ; row b.png=50x30 blue ; row c.png=60x30 yellow ; "
                             "tBShownCount=(nothing)"},
            {"press Ctrl+S in listView",
             "complaints=Failed to open txt file: \"Is a directory\" \"FOLDER/c.txt\" ; disk "
             "a.txt=\"cat,dog,ant,fox\" v2 ; disk b.txt=\"bee,cat,ant\" v2 ; "
             "tBLastResult=saved 2 of 3, 1 failed ; tBUnsavedCount=0 unsaved"},
            {"tBLastResult", "clipboard=FOLDER/c.txt: Is a directory"},
            {"lwImageTags > &Sort", "lwImageTags=ant|cat|dog|fox"},
            {"leFilterTag = do", "leFilterTag=do ; lwImageTags=dog"},
            {"leFilterTag = ", "leFilterTag=(nothing) ; lwImageTags=ant|cat|dog|fox"},
            {"lwImageTags > View &list", "lwImageTags=ant|cat|dog|fox (list)"},
            {"lwImageTags > View &icon", "lwImageTags=ant|cat|dog|fox"},
            {"select cat|fox in lwImageTags", ""},
            {"lwImageTags > &Copy to clipboard", "clipboard=cat,fox"},
            {"lwImageTags > &Delete", "lwAllImagesTags=ant|bee|cat|dog ; lwImageTags=dog|ant ; "
                                      "pTETagsFromFile=cat,dog,ant,fox ; tBUnsavedCount=1 unsaved"},
            {"select ant in lwImageTags", ""},
            {"lwImageTags > Delete &all",
             "lwAllImagesTags=bee|cat|dog ; lwImageTags=dog ; tBUnsavedCount=2 unsaved"},
            {"lwAllImagesTags > &Sort", "order of tags=bee|cat|dog"},
            {"lwAllImagesTags > &Sort", "order of tags=dog|cat|bee"},
            {"lwAllImagesTags > View &list", "lwAllImagesTags=bee|cat|dog (list)"},
            {"lwAllImagesTags > View &icon", "lwAllImagesTags=bee|cat|dog"},
            {"select dog in lwAllImagesTags",
             "listView=a.png ; row b.png=(nothing) ; row c.png=(nothing) ; statusbar=Found 1 images for tag: "
             "dog ; tBShownCount=1 of 3 shown"},
            {"lwAllImagesTags > &Copy to clipboard", "clipboard=dog"},
            {"lwAllImagesTags > &Refresh",
             "listView=a.png|b.png|c.png ; row b.png=50x30 blue ; row c.png=60x30 yellow ; statusbar=Found 0 "
             "images for tag:  ; tBShownCount=(nothing)"},
            {"lwAllImagesTags > R&eplace text -> dog|hound",
             "asked=Replace tags text ; lwAllImagesTags=bee|cat|hound ; lwImageTags=hound ; "
             "statusbar=Selected: 1 items"},
            {"lwAllImagesTags > Spli&t text -> u",
             "asked=Split tags by ; lwAllImagesTags=bee|cat|ho|nd ; lwImageTags=ho|nd"},
            {"select bee in lwAllImagesTags",
             "labelCurrentSelectionTags=Current selection [0] tags: ; listView=b.png ; lwImageTags=(nothing) "
             "; row a.png=(nothing) ; row c.png=(nothing) ; selected=(nothing) ; statusbar=Found 1 images "
             "for tag: bee ; tBShownCount=1 of 3 shown"},
            {"lwAllImagesTags > &Delete",
             "listView=a.png|b.png|c.png ; lwAllImagesTags=cat|ho|nd ; row a.png=40x30 red ; row c.png=60x30 "
             "yellow ; statusbar=Found 0 images for tag:  ; tBShownCount=(nothing)"},
            {"select c.png",
             "complaints=Error: \"file to open is a directory\" unable to open file: \"FOLDER/c.txt\" ; "
             "labelTagsFromFile=File tag, txt, missing for: FOLDER/c.txt"},
            {"pTETagsFromFile = kept", "pTETagsFromFile=kept"},
            {"tBSaveTagTxtFile",
             "complaints=Failed to open txt file: \"Is a directory\"|Failed to open txt file, error: Is a "
             "directory ; statusbar=Failed to open txt file, error: Is a directory ; tBLastResult=saved 0 of "
             "1, 1 failed"},
            {"cBBackupTxt", "cBBackupTxt=backup on"},
            {"cBSaveTagsDuplicates", "cBSaveTagsDuplicates=dups on"},
            {"tBSaveTags", "disk a.txt=\"ho,nd\" v3 ; disk a_backup_0.txt=\"cat,dog,ant,fox\" ; disk "
                           "b.txt=\"cat\" v3 ; disk b_backup_0.txt=\"bee,cat,ant\" ; disk c.txt=\"\" ; "
                           "statusbar=(background) ; tBLastResult=saved 3 ; tBUnsavedCount=0 unsaved"},
            {"cBBackupTxt", "cBBackupTxt=backup"},
            {"select a.png", "lwImageTags=ho|nd"},
            {"addTag", "AddTagsDialog=Add tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = cat,cat", "AddTagsDialog.plainTextEdit=cat,cat"},
            {"AddTagsDialog.pBAdd",
             "AddTagsDialog=(nothing) ; lwImageTags=ho|nd|cat|cat ; tBUnsavedCount=1 unsaved"},
            {"actionSave_tags", "disk a.txt=\"ho,nd,cat,cat\" v4 ; tBUnsavedCount=0 unsaved"},
            {"pTETagsFromFile = typed", "pTETagsFromFile=typed"},
            {"tBSaveTagTxtFile", "disk a.txt=\"typed\" v5 ; lwAllImagesTags=cat|typed ; lwImageTags=typed ; "
                                 "tBLastResult=saved 1"},
            {"listView > Edit &tag file", "AddTagsDialog=Edit tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = y\ny, y", "AddTagsDialog.plainTextEdit=y\\ny, y"},
            {"select b.png", "lwImageTags=cat"},
            {"AddTagsDialog.pBAdd", "AddTagsDialog=(nothing) ; disk a.txt=\"y\\ny, y\" v6 ; "
                                    "labelTagsFromFile=File: FOLDER/a.txt ; lwAllImagesTags=cat|y ; "
                                    "lwImageTags=* ; pTETagsFromFile=y\\ny, y"},
            {"select a.png", "lwImageTags=y|y|y"},
            {"leFilterImages = b.png",
             "labelCurrentSelectionTags=Current selection [0] tags: ; leFilterImages=b.png ; listView=b.png "
             "; lwImageTags=(nothing) ; row a.png=(nothing) ; row c.png=(nothing) ; selected=(nothing) ; "
             "tBShownCount=1 of 3 shown"},
            {"tBShownCount", "leFilterImages=(nothing) ; listView=a.png|b.png|c.png ; row a.png=40x30 red ; "
                             "row c.png=60x30 yellow ; tBShownCount=(nothing)"},
            {"select a.png", "lwImageTags=y|y|y"},
            {"listView > &Add tag", "AddTagsDialog=Add tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = last,last", "AddTagsDialog.plainTextEdit=last,last"},
            {"AddTagsDialog.pBAdd", "AddTagsDialog=(nothing) ; lwAllImagesTags=cat|last|y ; "
                                    "lwImageTags=y|y|y|last|last ; tBUnsavedCount=1 unsaved"},
            {"tBUnsavedCount > Save tags",
             "disk a.txt=\"y,y,y,last,last\" v7 ; tBLastResult=saved 3 ; tBUnsavedCount=0 unsaved"},
            {"tBExportTags", "TagsExportDialog=All tags"},
            {"TagsExportDialog.cBNumOccurance", "TagsExportDialog.cBNumOccurance=append count ; "
                                                "TagsExportDialog.plainTextEdit=cat\\nlast\\ny\\n"},
            {"TagsExportDialog.cBRemoveDuplicates",
             "TagsExportDialog.cBRemoveDuplicates=remove duplicates ; "
             "TagsExportDialog.plainTextEdit=cat\\nlast\\nlast\\ny\\ny\\ny\\n"},
            {"TagsExportDialog.cBSortByNumOccurance",
             "TagsExportDialog.cBSortByNumOccurance=sort by count ; TagsExportDialog.plainTextEdit=*"},
            {"TagsExportDialog.gBSort = true",
             "TagsExportDialog.plainTextEdit=cat\\nlast\\nlast\\ny\\ny\\ny\\n"},
            {"TagsExportDialog.cBSortDirection = Reversed",
             "TagsExportDialog.cBSortDirection=Reversed of Normal|Reversed ; "
             "TagsExportDialog.plainTextEdit=y\\ny\\ny\\nlast\\nlast\\ncat\\n"},
            {"TagsExportDialog.pBClose", "TagsExportDialog=(nothing)"},
        };
        live(desk, steps);
    }

    void imaging() {
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {100, 80}, Qt::blue);
            folder.addImage("b.jpg", {300, 240}, Qt::red);
            QImage fine(301, 200, QImage::Format_RGB32);
            for (int x = 0; x < fine.width(); ++x)
                QPainter(&fine).fillRect(x, 0, 1, fine.height(), QColor::fromHsv(x, 200, x % 256));
            folder.addImage("fine.jpg", fine);
        });
        const QList<Step> steps{
            {"select a.png|b.jpg", ""},
            {"sBSpecificW = 50", "sBSpecificW=50"},
            {"sBSpecificH = -1", "sBSpecificH=-1"},
            {"pBProcessResize", "disk scaled/a.png=50x40 blue ; disk scaled/b.jpg=50x40 red ; "
                                "statusbar=(background) ; tBLastResult=resized 2"},
            {"tWTools = 3", "tWTools=page 3"},
            {"cBDspEffectsList = Brightness", ""},
            {"tBAddEffect", "dockWidget_ImgPreview=Image 280x224 preview ; imgWidget=red ; "
                            "lWDspEffects=Brightness 10 (list)"},
            {"press Ctrl+S in imgWidget", "statusbar=Preview of effects is not saved, use Apply."},
            {"horizontalSlider = 255",
             "imgWidget=none ; lWDspEffects=Brightness 255 (list) ; statusbar=Filters applied to: 1 files"},
            {"pBDspApply", "disk processed/a.png=100x80 none ; disk processed/b.jpg=300x240 none ; "
                           "statusbar=Filters applied to: 2 files ; tBLastResult=filtered 2"},
            {"cBDspEffectsList = Sharpen",
             "cBDspEffectsList=Sharpen of Brightness|Contrast|Blur|WhitePoint|BlackPoint|Sharpen"},
            {"tBAddEffect",
             "complaints=Error, unable to cast filter option widget... ; dockWidget_ImgPreview=Image 300x240 "
             "preview ; lWDspEffects=Brightness 255|Sharpen (list) ; statusbar=Filters applied to: 1 files"},
            {"cBDspEffectsList = Contrast",
             "cBDspEffectsList=Contrast of Brightness|Contrast|Blur|WhitePoint|BlackPoint|Sharpen"},
            {"tBAddEffect", "lWDspEffects=Brightness 255|Sharpen|Contrast 10 (list)"},
            {"tBMoveDown", "lWDspEffects=Sharpen|Brightness 255|Contrast 10 (list)"},
            {"tBMoveUp", ""},
            {"tBDelete", "lWDspEffects=Brightness 255|Contrast 10 (list)"},
            {"tBMoveUp", "lWDspEffects=Contrast 10|Brightness 255 (list)"},
            {"cBEnabled", "imgWidget=red ; lWDspEffects=Contrast 10|Brightness off 255 (list)"},
            {"lWDspEffects > &Toggle bypass",
             "imgWidget=none ; lWDspEffects=Contrast off 10|Brightness 255 (list)"},
            {"lWDspEffects > &Bypass all",
             "imgWidget=red ; lWDspEffects=Contrast off 10|Brightness off 255 (list)"},
            {"pBDspApply", "statusbar=Filters applied to: 2 files ; tBLastResult=filtered 0 of 2"},
            {"lWDspEffects > &Toggle bypass", "imgWidget=none ; lWDspEffects=Contrast 10|Brightness 255 "
                                              "(list) ; statusbar=Filters applied to: "
                                              "1 files"},
            {"pBDspReset", "dockWidget_ImgPreview=Image 100x80 preview ; imgWidget=blue"},
            {"press Ctrl+S in imgWidget", "statusbar=(background) ; tBLastResult=saved 1"},
            {"tbProfileNew_HL", "ProfilesEditWidget=Profiles editor ; dockWidget_ImgPreview=Image 280x224 "
                                "preview ; imgWidget=red ; lWDspEffects= (list) ; statusbar=Filters applied "
                                "to: 1 files"},
            {"ProfilesEditWidget.lEProfileName = Soft", "ProfilesEditWidget.lEProfileName=Soft"},
            {"ProfilesEditWidget.pBApply", "ProfilesEditWidget=(nothing)"},
            {"cBDspEffectsList = Blur",
             "cBDspEffectsList=Blur of Brightness|Contrast|Blur|WhitePoint|BlackPoint|Sharpen"},
            {"tBAddEffect", "lWDspEffects=Blur 0 (list)"},
            {"tbProfileEdit_HL", "ProfilesEditWidget=Profiles editor"},
            {"ProfilesEditWidget.pBClose", "ProfilesEditWidget=(nothing)"},
            {"tbProfileEdit_HL", "ProfilesEditWidget=Profiles editor"},
            {"ProfilesEditWidget.lEProfileName = Softer", "ProfilesEditWidget.lEProfileName=Softer"},
            {"tbProfileMoveUp_HL", ""},
            {"ProfilesEditWidget.pBApply", "ProfilesEditWidget=(nothing)"},
            {"tbProfileMoveDown_HL", ""},
            {"restart",
             "cBDspEffectsList=Brightness of Brightness|Contrast|Blur|WhitePoint|BlackPoint|Sharpen ; "
             "dockWidget_ImgPreview=Media preview ; imgWidget=none ; labelCurrentSelectionTags=Current "
             "selection tags: ; labelTagsFromFile=* ; sBSpecificH=1080 ; sBSpecificW=1920 ; "
             "selected=(nothing) ; statusbar=(background) ; tBLastResult=(nothing) ; tWComments=(nothing) ; "
             "pTETagsFromFile=*"},
            {"cBProfilesName_HL = Default",
             "lWDspEffects=Contrast 10|Brightness 255 (list) ; statusbar=Select image/s."},
            {"select 0 in lWDspEffects", ""},
            {"lWDspEffects > &Remove selected", "lWDspEffects=Brightness 255 (list)"},
            {"tBDelete", "lWDspEffects= (list)"},
            {"cBProfilesName_HL = Softer", "lWDspEffects=Blur 0 (list)"},
            {"lWDspEffects > &Clear", "lWDspEffects= (list)"},
            {"select b.jpg",
             "dockWidget_ImgPreview=Image 280x224 preview ; statusbar=Filters applied to: 1 files"},
            {"press Ctrl+S in imgWidget", "statusbar=Preview of effects is not saved, use Apply."},
            {"tbProfileEdit_HL", "ProfilesEditWidget=Profiles editor"},
            {"write b.jpg lime 300x240", "disk b.jpg=300x240 lime v2"},
            {"tbProfileRemove_HL",
             "ProfilesEditWidget=(nothing) ; imgWidget=lime ; statusbar=Filters applied to: 1 files"},
        };
        live(desk, steps);
        resizingObeysItsForm(desk);
    }

    void editor() {
        Desk desk([](const MediaFolder& folder) {
            QImage picture(100, 80, QImage::Format_RGB32);
            picture.fill(Qt::blue);
            QPainter(&picture).fillRect(0, 0, 30, 80, Qt::red);
            folder.addImage("a.png", picture);
            folder.addImage("b.png", {60, 50}, Qt::red);
            folder.addFile("sub/notes.txt");
        });
        const QList<Step> steps{
            {"select a.png", ""},
            {"dockWidget_ImgPreview > Auto center", ""},
            {"dockWidget_ImgPreview > Auto fit", ""},
            {"imgWidget > Auto fit", ""},
            {"imgWidget > Auto center", ""},
            {"imgWidget > Update on resize", ""},
            {"imgWidget > Reset zoom", "imgWidget=none"},
            {"listView > &Edit image", "EditImageDialog=Edit image: a.png [100x80] [N - 2]"},
            {"EditImageDialog.&Next image [PgDown]", "EditImageDialog=Edit image: b.png [60x50] [N - 2]"},
            {"EditImageDialog.&Previous image [PgUp]", "EditImageDialog=Edit image: a.png [100x80] [N - 2]"},
            {"EditImageDialog.tBAutoCenter",
             "EditImageDialog.imgWidget=blue ; EditImageDialog.tBAutoCenter= on"},
            {"EditImageDialog.tBAutoFit", "EditImageDialog.tBAutoFit= on"},
            {"EditImageDialog.tBKeepAspectRatio", "EditImageDialog.tBKeepAspectRatio= on"},
            {"EditImageDialog.imgWidget > Reset zoom", "EditImageDialog.imgWidget=none"},
            {"EditImageDialog.imgWidget > Auto fit",
             "EditImageDialog.imgWidget=blue ; EditImageDialog.tBAutoFit=(nothing)"},
            {"EditImageDialog.imgWidget > Auto center", "EditImageDialog.tBAutoCenter=(nothing)"},
            {"EditImageDialog.imgWidget > Update on resize", ""},
            {"EditImageDialog.tBToolCut",
             "EditImageDialog.dSBCutHeight=80 ; EditImageDialog.dSBCutWidth=100 ; "
             "EditImageDialog.sBCutOutlineWidth=8 ; EditImageDialog.stackedWidget=page 0"},
            {"EditImageDialog.tBToolPan", "EditImageDialog.stackedWidget=hidden, page 0"},
            {"EditImageDialog.&Cut image [W]", "EditImageDialog.stackedWidget=page 0"},
            {"EditImageDialog.dSBCutWidth = 40", "EditImageDialog.dSBCutWidth=40"},
            {"EditImageDialog.dSBCutHeight = 20", "EditImageDialog.dSBCutHeight=20"},
            {"EditImageDialog.imgWidget > Align edge &bottom", ""},
            {"press Right in EditImageDialog.imgWidget",
             "EditImageDialog.dSBCutHeight=79 ; EditImageDialog.dSBCutX=8"},
            {"press Return in EditImageDialog.imgWidget",
             "EditImageDialog=Edit image: a.png [40x79] [N - 2] ; EditImageDialog.dSBCutX=0 ; "
             "EditImageDialog.imgWidget=none"},
            {"EditImageDialog.&Save image [Save, Ctrl+S]", "disk a.png=40x79 red v2 ; row a.png=100x80 red ; "
                                                           "statusbar=(background) ; tBLastResult=saved 1"},
            {"EditImageDialog.&Undo [Undo]",
             "EditImageDialog=Edit image: a.png [100x80] [N - 2] ; EditImageDialog.imgWidget=blue"},
            {"EditImageDialog.&Save image as [Shift+S] -> FOLDER/whole.png",
             "asked=Save image as ; disk whole.png=100x80 blue ; labelTagsFromFile=File tag, txt, missing "
             "for: FOLDER/whole.txt ; listView=a.png|b.png|whole.png ; row whole.png=100x80 blue"},
            {"EditImageDialog.&Save image as [Shift+S] -> FOLDER/sub/away.png",
             "asked=Save image as ; disk sub/away.png=100x80 blue ; statusbar=Saved image as file: "
             "FOLDER/sub/away.png, outside of working directory, not adding to list."},
            {"EditImageDialog.&Save image as [Shift+S] -> /proc/nowhere.png",
             "asked=Save image as ; complaints=Error, unable save image: \"/proc/nowhere.png\"|Error, unable "
             "to save image: /proc/nowhere.png ; statusbar=Error, unable to save image: /proc/nowhere.png ; "
             "tBLastResult=saved 0 of 1, 1 failed"},
            {"press C in EditImageDialog.imgWidget", "EditImageDialog.tBAutoCenter= on"},
            {"press F in EditImageDialog.imgWidget", "EditImageDialog.tBAutoFit= on"},
            {"press A in EditImageDialog.imgWidget", "EditImageDialog.tBKeepAspectRatio=(nothing)"},
            {"EditImageDialog.&Pan image [Q]", "EditImageDialog.stackedWidget=hidden, page 0"},
            {"press W in EditImageDialog",
             "EditImageDialog.dSBCutHeight=80 ; EditImageDialog.dSBCutWidth=100 ; "
             "EditImageDialog.stackedWidget=page 0"},
            {"press Q in EditImageDialog", "EditImageDialog.stackedWidget=hidden, page 0"},
            {"imgWidget > &Save as -> FOLDER/copy.png",
             "asked=Save image as ; disk copy.png=100x80 blue ; labelTagsFromFile=File tag, txt, missing "
             "for: FOLDER/copy.txt ; listView=a.png|b.png|copy.png|whole.png ; row copy.png=100x80 blue ; "
             "statusbar=(background) ; tBLastResult=saved 1"},
            {"EditImageDialog.&Delete image [Del] -> OK",
             "EditImageDialog=Edit image: b.png [60x50] [N - 4] ; EditImageDialog.imgWidget=red ; "
             "asked=Delete file? ; disk a.png=(nothing) ; labelCurrentSelectionTags=Current selection [0] "
             "tags: ; listView=b.png|copy.png|whole.png ; row a.png=(nothing) ; selected=(nothing) ; "
             "statusbar=Removed 1 missing items."},
            {"editImage", ""},
        };
        live(desk, steps);
        desk.driver.window().onEditImgNewlySavedFile(desk.folder.filePath("b.png"));
        QCOMPARE(desk.driver.statusText(),
                 "Saved image as file: " + desk.folder.filePath("b.png") + ", file overwritten.");
        steppingFollowsTheRows(desk);
    }

    void models() {
        const QByteArray header = R"({"__metadata__":{"b":" last ","a":"first"},)"
                                  R"("w":{"dtype":"F16","shape":[2,3],"data_offsets":[0,12]}})";
        Desk desk([&](const MediaFolder& folder) {
            folder.addFile("a.safetensors", modelFile(header, 12));
            folder.addFile("b.safetensors", modelFile(header, 11));
            folder.addFile("c.safetensors", modelFile("{}", 0));
            folder.addImage("a.png", {40, 30}, Qt::red);
        });
        const QList<Step> steps{
            {"action_InspectSafetensor -> FOLDER/a.safetensors",
             "SafetensorsDialog=File: a.safetensors ; asked=Open safetensors file ; statusbar=Inspecting "
             "FOLDER/a.safetensors safetensors"},
            {"SafetensorsDialog.cBTensor",
             "SafetensorsDialog.cBTensor=tensor on ; "
             "SafetensorsDialog.pTEOutput=a\t:\tfirst\\nb\t:\tlast\\nw\t:\tF16 [2, 3]\\n"},
            {"SafetensorsDialog.cBMetainfo",
             "SafetensorsDialog.cBMetainfo=metainfo ; SafetensorsDialog.pTEOutput=w\t:\tF16 [2, 3]\\n"},
            {"SafetensorsDialog.tBSafetensorNext",
             "SafetensorsDialog=File: b.safetensors ; SafetensorsDialog.pTEOutput=Failed to load: "
             "FOLDER/b.safetensors invalid data offsets error: Tensor `w`.data_offset.END 12 exceeds "
             "databuffer size 11.\\nThe last tensor's data_offset.END(12) must be equal to databufer size "
             "11.\\n\\n ; complaints=Error, file don't exists: \"FOLDER/b\""},
            {"SafetensorsDialog.tBSafetensorPrev",
             "SafetensorsDialog=File: a.safetensors ; SafetensorsDialog.pTEOutput=w\t:\tF16 [2, 3]\\n"},
            {"SafetensorsDialog.tBSafetensorPrev",
             "SafetensorsDialog=File: c.safetensors ; SafetensorsDialog.pTEOutput=Failed to load: "
             "FOLDER/c.safetensors error: Size is too short.\\n\\n ; complaints=Failed to load:  "
             "\"FOLDER/c.safetensors\"|Error, file don't exists: \"FOLDER/c\""},
            {"SafetensorsDialog.tBOpenSafetensorFile -> FOLDER/b.safetensors",
             "SafetensorsDialog=File: b.safetensors ; SafetensorsDialog.pTEOutput=Failed to load: "
             "FOLDER/b.safetensors invalid data offsets error: Tensor `w`.data_offset.END 12 exceeds "
             "databuffer size 11.\\nThe last tensor's data_offset.END(12) must be equal to databufer size "
             "11.\\n\\n ; asked=Open safetensors file ; complaints=Error, file don't exists: \"FOLDER/b\""},
            {"SafetensorsDialog.tBShowInFileBrowser", "opened=FOLDER"},
        };
        live(desk, steps);
        // A directory that holds no model file for a while stays the one of the window.
        const QWidget* dialog = desk.driver.toolWindow("SafetensorsDialog");
        auto* next = dialog->findChild<QToolButton*>("tBSafetensorNext");
        for (const char* name : {"a.safetensors", "b.safetensors", "c.safetensors"})
            QVERIFY(QFile::remove(desk.folder.filePath(name)));
        next->click();
        desk.folder.addFile("d.safetensors", modelFile(header, 12));
        next->click();
        QCOMPARE(dialog->windowTitle(), "File: d.safetensors");
    }

    void video() {
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {40, 30}, Qt::red);
            QFile::copy(clipPath("h264.mp4"), folder.filePath("clip.mp4"));
            QFile::copy(clipPath("fps60.mp4"), folder.filePath("next.mp4"));
        });
        const QList<Step> steps{
            {"select clip.mp4",
             "dockWidget_ImgPreview=Video preview ; imgWidget=(nothing) ; stackedWidgetMediaPreview=page 1 ; "
             "tWComments=clip.mp4|Comment: a remark|Duration: 10000|Resolution: 160x64"},
            {"listView > Edit v&ideo",
             "VideoWidget=Video editor - clip.mp4 ; VideoWidget.frame=0 ; VideoWidget.length=10000"},
            {"VideoWidget.tBFrameNext", ""},
            {"VideoWidget.&Frame next", "VideoWidget.frame=1"},
            {"VideoWidget.tBFramePrev", "VideoWidget.frame=0"},
            {"VideoWidget.&Frame prev", ""},
            {"press 5 in VideoWidget", "VideoWidget.frame=125"},
            {"VideoWidget.tBGrabFrame",
             "VideoWidget.statusbar=Saved frame to: FOLDER/clip_TIME.png ; disk clip_TIME.png=frame 125 ; "
             "labelTagsFromFile=File tag, txt, missing for: FOLDER/clip_TIME.txt ; "
             "listView=a.png|clip.mp4|clip_TIME.png|next.mp4 ; row clip_TIME.png=160x64 none ; "
             "statusbar=(background) ; tBLastResult=grabbed 1"},
            {"VideoWidget.tBFileNext", "VideoWidget=Video editor - next.mp4 ; VideoWidget.frame=0 ; "
                                       "VideoWidget.statusbar=(nothing) ; VideoWidget.length=2000"},
            {"VideoWidget.tBFilePrev", "VideoWidget=Video editor - clip.mp4 ; VideoWidget.length=10000"},
            {"VideoWidget.tBGrabSeries", "VideoWidgetFrameGrabber=Frame grabber: FOLDER/clip.mp4"},
            {"VideoWidgetFrameGrabber.sBFrameNum = 3", "VideoWidgetFrameGrabber.sBFrameNum=3"},
            {"VideoWidgetFrameGrabber.pBGrabFrames", "VideoWidgetFrameGrabber.listWidget=1|6666|9999"},
            {"select 0 in VideoWidgetFrameGrabber.listWidget", ""},
            {"VideoWidgetFrameGrabber.pBAddSelected",
             "VideoWidget.statusbar=Saved frame to: FOLDER/clip_TIME.png ; disk clip_TIME.png=frame 0|frame "
             "125 ; listView=a.png|clip.mp4|clip_TIME.png|clip_TIME.png|next.mp4"},
            {"VideoWidgetFrameGrabber.listWidget > &Remove selected",
             "VideoWidgetFrameGrabber.listWidget=6666|9999"},
            {"VideoWidgetFrameGrabber.pBAddAll",
             "disk clip_TIME.png=frame 0|frame 125|frame 166|frame 249 ; "
             "listView=a.png|clip.mp4|clip_TIME.png|clip_TIME.png|clip_TIME.png|clip_TIME.png|next.mp4 ; "
             "tBLastResult=grabbed 2"},
            {"VideoWidgetFrameGrabber.listWidget > &Clear", "VideoWidgetFrameGrabber.listWidget=(nothing)"},
            {"VideoWidgetFrameGrabber.pBSelecFiles -> FOLDER/next.mp4",
             "VideoWidgetFrameGrabber.listWidget=1000|1332|1998 ; asked=Select video files"},
            {"VideoWidgetFrameGrabber.pBClose", "VideoWidgetFrameGrabber=(nothing)"},
            {"VideoWidget.tBGrabFilesFrame -> FOLDER/next.mp4",
             "VideoWidgetFrameGrabber=Frame grabber ; asked=Select video files"},
            {"VideoWidgetFrameGrabber.pBClose", "VideoWidgetFrameGrabber=(nothing)"},
            {"VideoWidget.action_OpenVideo -> FOLDER/next.mp4",
             "VideoWidget=Video editor - next.mp4 ; VideoWidget.statusbar=(nothing) ; asked=Open video file "
             "; VideoWidget.length=2000"},
            {"VideoWidget.action_Open_URL -> FOLDER/clip.mp4",
             "VideoWidget=Video editor - clip.mp4 ; asked=Video URL: ; VideoWidget.length=10000"},
            {"VideoWidget.&Grab frame", "VideoWidget.statusbar=Saved frame to: FOLDER/clip_TIME.png ; disk "
                                        "clip_TIME.png=frame 0|frame 0|frame 125|frame 166|frame 249 ; "
                                        "listView=a.png|clip.mp4|clip_TIME.png|clip_TIME.png|clip_TIME.png|"
                                        "clip_TIME.png|clip_TIME.png|next.mp4 ; tBLastResult=grabbed 1"},
            {"VideoWidget.tBPlayPause", "VideoWidget.frame=* ; VideoWidget.tBPlayPause=||"},
            {"VideoWidget.tBPlayPause", "VideoWidget.frame=* ; VideoWidget.tBPlayPause=>"},
            {"editVideo", "VideoWidget=Video editor ; VideoWidget.frame=-1 ; VideoWidget.statusbar=(nothing) "
                          "; VideoWidget.length=0"},
        };
        live(desk, steps);
    }

    void ollama() {
        OllamaPeer peer;
        peer.setAnswers("/api/version", {{R"({"version":"0.5"})"}});
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"first"},{"model":"second"}]})"}});
        peer.setAnswers("/api/generate",
                        {{R"({"response":"one, two"})"}, {R"({"response":"three"})"}, {"no JSON"}});
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {64, 32}, Qt::green);
            folder.addImage("b.png", {40, 30}, Qt::red);
            folder.addFile("broken.png", "no picture");
            folder.addTags("a.png", "old");
        });
        desk.words["PEER"] = peer.url();
        const QList<Step> steps{
            {"lEOllamaIp = PEER", "lEOllamaIp=PEER"},
            {"tBOllamaReconect", "cBOllamaModels=first of first|second ; pBOllamaGo=Send prompt ; "
                                 "statusbar=Ollama status is online: true"},
            {"cBOllamaModels = second", "cBOllamaModels=second of first|second"},
            {"sBOllamaScaleResW = 16", "sBOllamaScaleResW=16"},
            {"cBOllamaScaleKeepAspectRatio", "cBOllamaScaleKeepAspectRatio=keep aspect ratio"},
            {"select a.png", "lwImageTags=old"},
            {"pBOllamaGo",
             "lwAllImagesTags= two|old|one ; lwImageTags=old|one| two ; pTEResponse=TIME\\none, two ; "
             "statusbar=Ollama processing done for 1 ; tBUnsavedCount=1 unsaved"},
            {"cBOllamaAddTags", "cBOllamaAddTags=add tags"},
            {"tBSendOllamaPrompt", "pTEResponse=TIME\\none, two\\nTIME\\nthree"},
            {"cBOllamaAddTags", "cBOllamaAddTags=add tags on"},
            {"select b.png|broken.png", "lwImageTags=(nothing)"},
            {"pBOllamaGo",
             "complaints=Error, image is null for: \"FOLDER/broken.png\" ; pTEResponse=TIME\\none, "
             "two\\nTIME\\nthree\\nTIME\\nError processing: FOLDER/b.png\\nillegal value - no "
             "JSON\\nTIME\\nError processing: FOLDER/broken.png\\nError, image is null. ; statusbar=Ollama "
             "processing done for 2"},
            {"tBSaveTags", "disk a.txt=\"old,one,two\" v2 ; disk b.txt=\"\" ; disk broken.txt=\"\" ; "
                           "statusbar=(background) ; tBLastResult=saved 3 ; tBUnsavedCount=0 unsaved"},
        };
        live(desk, steps);
        // An answer for a file that is no longer selected does not change the tags that are shown.
        peer.setAnswers("/api/generate", {{R"({"response":"late"})", OllamaPeer::Held}});
        bool isAsked = false;
        connect(&peer, &OllamaPeer::requested, &desk, [&] {
            if (!std::exchange(isAsked, true)) {
                desk.driver.select({"b.png"});
                peer.release();
            }
        });
        desk.driver.select({"a.png"});
        desk.driver.click("pBOllamaGo");
        QVERIFY(isAsked);
        QCOMPARE(desk.driver.tagTexts("lwImageTags"), QStringList());
        QVERIFY(desk.driver.tagTexts("lwAllImagesTags").contains("late"));
    }

    void acrossTheParts() {
        OllamaPeer peer;
        peer.setAnswers("/api/version", {{R"({"version":"0.5"})"}});
        peer.setAnswers("/api/tags", {{R"({"models":[{"model":"first"}]})"}});
        peer.setAnswers("/api/generate", {{R"({"response":"dune,fog"})"}});
        Desk desk([](const MediaFolder& folder) {
            folder.addImage("a.png", {40, 30}, Qt::red);
            folder.addImage("b.png", {80, 60}, Qt::blue);
            folder.addImage("away/c.png", {44, 33}, Qt::cyan);
            folder.addFile("away/readme.txt", "hands, off");
            folder.addTags("b.png", "fog");
            folder.addTags("c.png", "dune");
            QFile::copy(clipPath("h264.mp4"), folder.filePath("clip.mp4"));
        });
        desk.words["PEER"] = peer.url();
        const QList<Step> steps{
            {"lEOllamaIp = PEER", "lEOllamaIp=PEER"},
            {"tBOllamaReconect", "cBOllamaModels=first of first ; pBOllamaGo=Send prompt ; statusbar=Ollama "
                                 "status is online: true"},
            {"leFilterImages = a.png", "leFilterImages=a.png ; listView=a.png ; row b.png=(nothing) ; row "
                                       "clip.mp4=(nothing) ; tBShownCount=1 of 3 shown"},
            {"select a.png", ""},
            {"addTag", "AddTagsDialog=Add tags, one per line or/and \",\" separated.."},
            {"AddTagsDialog.plainTextEdit = red", "AddTagsDialog.plainTextEdit=red"},
            {"AddTagsDialog.pBAdd", "AddTagsDialog=(nothing) ; lwAllImagesTags=fog|red ; lwImageTags=red ; "
                                    "tBUnsavedCount=1 unsaved"},
            {"pBOllamaGo", "lwAllImagesTags=dune|fog|red ; lwImageTags=red|dune|fog ; "
                           "pTEResponse=TIME\\ndune,fog ; statusbar=Ollama processing done for 1"},
            {"leFilterImages = fog",
             "leFilterImages=fog ; listView=a.png|b.png ; row b.png=80x60 blue ; tBShownCount=2 of 3 shown"},
            {"tBSaveTags", "disk a.txt=\"red,dune,fog\" ; disk clip.txt=\"\" ; statusbar=(background) ; "
                           "tBLastResult=saved 3 ; tBUnsavedCount=0 unsaved"},
            {"leFilterImages = :missingTxt",
             "labelCurrentSelectionTags=Current selection [0] tags: ; leFilterImages=:missingTxt ; "
             "listView=clip.mp4 ; lwImageTags=(nothing) ; row a.png=(nothing) ; row b.png=(nothing) ; row "
             "clip.mp4=160x64 none ; selected=(nothing) ; tBShownCount=1 of 3 shown"},
            {"leFilterImages = ", "leFilterImages=(nothing) ; listView=a.png|b.png|clip.mp4 ; row "
                                  "a.png=40x30 red ; row b.png=80x60 blue ; tBShownCount=(nothing)"},
            {"select clip.mp4",
             "dockWidget_ImgPreview=Video preview ; imgWidget=(nothing) ; stackedWidgetMediaPreview=page 1 ; "
             "tWComments=clip.mp4|Comment: a remark|Duration: 10000|Resolution: 160x64"},
            {"listView > Edit v&ideo",
             "VideoWidget=Video editor - clip.mp4 ; VideoWidget.frame=0 ; VideoWidget.length=10000"},
            {"press 5 in VideoWidget", "VideoWidget.frame=125"},
            {"VideoWidget.tBGrabFrame",
             "VideoWidget.statusbar=Saved frame to: FOLDER/clip_TIME.png ; disk clip_TIME.png=frame 125 ; "
             "labelTagsFromFile=File tag, txt, missing for: FOLDER/clip_TIME.txt ; "
             "listView=a.png|b.png|clip.mp4|clip_TIME.png ; row clip_TIME.png=160x64 none ; "
             "statusbar=(background) ; tBLastResult=grabbed 1"},
            {"select b.png", "lwImageTags=fog"},
            {"editImage", "EditImageDialog=Edit image: b.png [80x60] [N - 4]"},
            {"EditImageDialog.&Cut image [W]",
             "EditImageDialog.dSBCutHeight=60 ; EditImageDialog.dSBCutWidth=80 ; "
             "EditImageDialog.sBCutOutlineWidth=8 ; EditImageDialog.stackedWidget=page 0"},
            {"EditImageDialog.dSBCutWidth = 30", "EditImageDialog.dSBCutWidth=30"},
            {"press Return in EditImageDialog.imgWidget",
             "EditImageDialog=Edit image: b.png [30x60] [N - 4]"},
            {"EditImageDialog.&Save image [Save, Ctrl+S]",
             "disk b.png=30x60 blue v2 ; statusbar=(background) ; tBLastResult=saved 1"},
            {"EditImageDialog.&Pan image [Q]", "EditImageDialog.stackedWidget=hidden, page 0"},
            {"sBSpecificW = 15", "sBSpecificW=15"},
            {"sBSpecificH = -1", "sBSpecificH=-1"},
            {"pBProcessResize",
             "disk scaled/b.png=15x30 blue ; statusbar=(background) ; tBLastResult=resized 1"},
            {"action_Import_files -> FOLDER/away/c.png|FOLDER/away/readme.txt",
             "asked=Select files to import ; complaints=* ; disk c.png=44x33 cyan ; disk readme.txt=\"hands, "
             "off\" ; labelTagsFromFile=File: FOLDER/c.txt ; "
             "listView=a.png|b.png|c.png|clip.mp4|clip_TIME.png ; pTETagsFromFile=dune ; row c.png=44x33 "
             "cyan ; statusbar=(background) ; tBLastResult=imported 2"},
            {"select b.png|c.png", "lwImageTags=fog|dune"},
            {"listView > &Delete file -> OK",
             "asked=Delete files. ; disk b.png=(nothing) ; disk c.png=(nothing) ; dockWidget_ImgPreview=* ; "
             "imgWidget=* ; labelCurrentSelectionTags=Current selection [1] tags: ; labelTagsFromFile=* ; "
             "listView=a.png|clip.mp4|clip_TIME.png ; lwImageTags=* ; pTETagsFromFile=* ; row "
             "b.png=(nothing) ; row c.png=(nothing) ; selected=* ; statusbar=(background) ; "
             "tBLastResult=deleted 2 ; tWComments=*"},
            {"tBRefreshOpenFilePath -> Yes",
             "asked=Refresh FOLDER working directory? ; labelCurrentSelectionTags=Current selection [0] "
             "tags: ; "
             "labelTagsFromFile=* ; lwImageTags=(nothing) ; pTETagsFromFile=* ; selected=(nothing) ; "
             "statusbar=(background) ; tBUnsavedCount=(nothing)"},
            {"write b.png lime 12x12",
             "disk b.png=12x12 lime v3 ; labelTagsFromFile=File: FOLDER/b.txt ; "
             "listView=a.png|b.png|clip.mp4|clip_TIME.png ; pTETagsFromFile=fog ; row b.png=12x12 lime"},
            {"tBSaveTags", "disk clip_TIME.txt=\"\" ; statusbar=(background) ; tBLastResult=saved 4"},
        };
        live(desk, steps);
    }

    void nothingWasLeftOut() { QCOMPARE(Desk::neverUsed().join('\n'), QString()); }
};

QTEST_MAIN(JourneysTest)
#include "tst_journeys.moc"
