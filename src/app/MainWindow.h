#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QList>
#include <QMainWindow>
#include <QModelIndexList>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>
#include <utility>

class BatchWriter;
class EditImageDialog;
class ImageFilterWidgetBase;
class ImageFilters;
class ImageLoaderThreaded;
class MediaItem;
class MediaItemModel;
class OllamaApi;
class QAbstractItemView;
class QFile;
class QFileSystemWatcher;
class QGroupBox;
class QHeaderView;
class QListWidget;
class QListWidgetItem;
class QMenu;
class SelectionWatcher;
class SortFilterProxyModel;
class StatusPanel;
class TagRecord;
class TagRecovery;
class VideoWidget;
enum class MediaFact;
enum class ResizeMode;
enum class TagChange;
enum class TagMove;
struct MediaFacts;
struct ResizeOptions;

namespace Ui {
class MainWindow;
}

// The hub: owns the catalogue, the tag record and all tool windows, and turns the signals of workers and
// windows into changes of the catalogue. Each heading's members live in the folder of that subsystem. GUI
// thread only.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // --- Start and wiring (app) ------------------------------------------------------------------
public slots:
    // Status bar text without time-out, and the same text to the log.
    void onShowMessage(const QString& msg);
    void updateThemeIcons(bool isDarkTheme);

private:
    void initUi();
    void initActions();
    void initConnections();
    void initThemes();
    void closeToolWindows();

    std::unique_ptr<Ui::MainWindow> ui;

    // --- State between runs (app) ----------------------------------------------------------------
private:
    void readSettings();
    void makeRoomForTools(bool mayResize);
    void writeSettings();

    // --- Status panel, undo and recovery (app) ---------------------------------------------------
public slots:
    void onUndoTags();
    void onRedoTags();
    void onShowAllFiles();
    void onShowUnsavedFiles();
    void onRestoreTags();

private:
    void initStatusPanel();
    void initStatusPanelConnections();
    void updateShownCount();
    void updateUnsavedCount();
    // Shows in the panel what an operation has done, until the next one ends. Each failure is a line of file
    // and reason.
    void showResult(const QString& verb, qsizetype done, qsizetype total, const QStringList& failures);
    // Show a message or a count from inside a loop that blocks the window.
    void showBlockingMessage(const QString& msg);
    void showBlockingProgress(const QString& text);

    StatusPanel* _statusPanel = nullptr;
    TagRecovery* _recovery = nullptr;

    // --- Options (app) ---------------------------------------------------------------------------
public slots:
    void onOptions();
    void onOptionsClosed();

private:
    void initOptionsConnections();
    void closeOptions();

    // --- Scan and media model (catalogue) --------------------------------------------------------
public:
    void openWorkingDirectory(const QString& path);
    [[nodiscard]] QStringList allFilePaths() const;
    // Column 0 indexes of the view that is shown, in that view's model.
    [[nodiscard]] QModelIndexList selectedIndexes() const;
    [[nodiscard]] QStringList selectedFilePaths() const;

private:
    [[nodiscard]] QStringList scanDirectory(const QString& path, const QStringList& nameFilters,
                                            bool recursive) const;
    void clearItemModel();
    void addFileItem(const QString& filePath);
    void addFileItems(const QStringList& filePaths);
    // Removes the rows of the files with their tags.
    void removeFileItems(const QStringList& filePaths);
    void populateUiImage(const QStringList& files);

    MediaItemModel* _itemModel = nullptr;
    // Where the next file dialog starts: the directory last opened, or the one last chosen.
    QString _workingPath;
    struct Scan {
        QString path;
        int generation = 0;
    };
    Scan _lastScan;
    QStringList _supportedFormats;

    // --- Previews (catalogue) --------------------------------------------------------------------
public slots:
    void onItemImageLoaded(const QString& fileName, const QImage& img);
    void onItemVideoImageMetaLoaded(const QString& fileName, const QHash<QString, QVariant>& videoMeta);

private:
    void queuePreview(const QString& filePath, const QSize& size);
    // The same for all files of a scan, without a signal for each: the scan announces all rows at its end.
    void queuePreviews(const QStringList& filePaths);
    MediaItem* enqueuePreview(const QString& filePath, const QSize& size);
    void setItemImage(const QString& filePath, const QSize& size, const QImage& image);
    [[nodiscard]] QSize previewSize() const;

    ImageLoaderThreaded* _imageLoader = nullptr;

    // --- Views, sorting and filtering (catalogue) ------------------------------------------------
public slots:
    void onImagesSortByCol(int col);
    void onImagesSortByFileName();
    void onImagesSortByFilePath();
    void onImagesSortByResolution();
    void onHeaderContextMenu(const QPoint& pos);
    void onDockWidgetImagePreviewCustomMenu();
    void onFilterImages(const QString& txt);
    void onItemSelectedChanged();

private:
    void initViews();
    void initListView();
    void initTreeView();
    void initTableView();
    void initModels();
    void initViewConnections();
    void initViewKeys();
    // Opens the first selected file in the window for its kind.
    void openSelectedFile();
    // Selects the row `step` rows below the current one in the view that is shown; without a current row the
    // first or, upwards, the last one.
    void stepRow(int step);
    // Selects one row of the view that is shown, at most the last; none for -1.
    void selectRow(int row);
    [[nodiscard]] QList<QAbstractItemView*> mediaViews() const;
    // Hides the files for which the predicate of row and file key holds, and shows all others. The reason is
    // shown with their number, "%1".
    void hideFiles(const QString& reason,
                   const std::function<bool(int row, const QString& filePath)>& isHidden);
    [[nodiscard]] MediaFacts mediaFacts(int row, const QString& filePath, QFlags<MediaFact> asked) const;
    void showMediaPreview(const QString& filePath);

    SortFilterProxyModel* _proxyModel = nullptr;
    SelectionWatcher* _selection = nullptr;

    // --- Context menu of the views (catalogue) ---------------------------------------------------
public slots:
    void onImagesCustomContextMenu(const QPoint& pos = {});

private:
    void initContextMenuConnections();
    void addViewMenu(QMenu& menu);
    void addSortMenu(QMenu& menu);

    // --- Directory watcher and refresh (catalogue) -----------------------------------------------
public slots:
    void onWorkingDirectoryChanged(const QString& path);
    void onRefreshOpenFilePath();
    void onSrcSelectPath();
    void onWorkingPathEdited();

private:
    void initWatcherConnections();
    void watchWorkingDirectory();
    void watcherAddNewFiles(const QStringList& fileList);
    void watcherRemoveMissingFiles();

    QFileSystemWatcher* _fileSystemWatcher = nullptr;

    // --- File operations (catalogue) -------------------------------------------------------------
public slots:
    void copyFiles();
    void moveFiles();
    void deleteFile();
    void deleteStrayTxtFiles();
    void importFiles();
    void openInNativeApp();
    void showPathInFileBrowser();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void initFileOperationConnections();
    // Asks for a directory, starting at the last one; empty when the user cancels.
    [[nodiscard]] QString selectDirectory();
    // Copies or moves the selected files to a directory that the user chooses. A file that fails costs only
    // itself.
    void transferFiles(const QString& verb,
                       const std::function<bool(QFile& source, const QString& target)>& transfer);
    // The working directory, or empty after a message about it.
    [[nodiscard]] QString importDirectory();
    void importPaths(const QStringList& sources, const QString& directory);
    // Opens a single directory after the user has agreed; imports anything else.
    void openDropped(const QStringList& paths);
    // Returns the reason of a failure; null where the file was imported. Appends the new path of a media
    // file.
    QString importFile(const QString& source, const QString& directory, bool autoRename, bool deleteSource,
                       QStringList& mediaFiles);
    [[nodiscard]] bool wantsToOpenMany(qsizetype count);

    // --- Embedded comments (catalogue) -----------------------------------------------------------
public slots:
    void onCopyComment();
    void onExtractWorkflow();

private:
    void initComments();
    void updateComments();
    // Reads the texts of the files below into the tree.
    void showComments();
    [[nodiscard]] QString firstSelectedComment() const;

    // The selected files whose texts the tree of the metadata tab does not have yet.
    QStringList _unreadCommentFiles;

    // --- Sidecars (tags) -------------------------------------------------------------------------
public:
    [[nodiscard]] QStringList imageTags(const QString& filePath) const;
    void setImageTags(const QString& filePath, const QStringList& tags);
    void removeImageTags(const QString& filePath);

public slots:
    void onSaveTags();
    void onSaveTagTxtFile();
    void onTxtTagsAccepted(const QString& imgFile, const QString& text, const QString& tags);

private:
    void initSidecarConnections();
    // Reads the sidecar of a media file, shows it in the raw text editor and binds the editor to it.
    QStringList readTagFile(const QString& filePath);
    // Reads the sidecars into the tag record.
    void readTagFiles(const QStringList& filePaths);
    // The same as a step of undo.
    void importTagFiles(const QStringList& filePaths);
    // Shows the last sidecar in the editor unless that holds text that the user has typed.
    void showLastTagFile(const QStringList& filePaths);
    void unbindTagFile();
    // Shows the sidecar of the first selected file. Typed text stays while that file stays the same.
    void followTagFile(const QString& filePath);
    [[nodiscard]] bool isTagFileEdited() const;
    // False where the file was not written, which is shown.
    bool saveTagTxtFile(const QString& imgFileName, const QString& txtFileName, const QString& text);
    // Whether the key is that of a media file; logged if not.
    bool checkMediaKey(const QString& filePath) const;

    TagRecord* _imageTags = nullptr;

    // --- Tag panels (tags) -----------------------------------------------------------------------
public slots:
    void onAllImagesTagSelectedChanged();
    void onFilterTag(const QString& txt);
    void onFilterAllTags(const QString& txt);
    void onImageTagCustomContextMenu(const QPoint& pos = {});
    void onImagesTagsCustomContextMenu(const QPoint& pos = {});
    void onTagCopyToClipboard();
    void onAllTagCopy();
    // Adds the tags of the clipboard to the selected files.
    void onTagsPaste();
    void onTagDelete();
    void onTagsDelete();
    void onAllTagDelete();

private:
    void initTagViews();
    void initTagPanelConnections();
    void initTagPanelKeys();
    // Moves the current tag of the one selected file.
    void moveImageTag(TagMove move);
    // Updates the panels after a change of the tag record.
    void onTagsChanged(TagChange change);
    Q_INVOKABLE void refreshAllTags();
    void refreshSelectionTags(const QStringList& filePaths);
    // Shows the tags of this file alone, even if several files are selected.
    void refreshImageTags(const QString& filePath);
    void deleteTagsEverywhere(const QStringList& tags);
    void addTagListActions(QMenu& menu, QListWidget* list, Qt::SortOrder& order);

    Qt::SortOrder _imageTagsSortOrder = Qt::DescendingOrder;
    Qt::SortOrder _allTagsSortOrder = Qt::DescendingOrder;

    // --- Tag entry, text operations and export (tags) --------------------------------------------
public slots:
    void addTagToSelected();
    void onAddTagsAccepted(const QString& text);
    void editTagFor(const QString& filePath);
    void replaceTagText(const QString& src, const QString& dst);
    void splitTagText(const QString& src);
    void onTagsExport();

private:
    void initTagEntryConnections();
    // Adds what is typed into the filter line of all tags, or the completion chosen there.
    void addTypedTags(const QString& chosen);
    void addTagsToSelected(const QStringList& tags);
    void openTextDialog(int operationType);

    // --- Ollama batches (ollama) -----------------------------------------------------------------
public slots:
    void checkOllamaServer();
    void onOllamaIpChanged(const QString& txt);
    void ollamaConnectionStatus(bool connected);
    // Starts a batch over the selection, or aborts the one that runs.
    void onOllamaSendPrompt();
    void onOllamaResponse(const QString& text);
    void onOllamaResponseImg(const QString& text, const QString& imgFilePath);
    void onOllamaError(const QString& text, const QString& imgFilePath);

private:
    void initOllama();
    void initOllamaConnections();
    void ollamaSendPrompts();
    // False where the file was not sent. The request runs a nested event loop, in which the window may be
    // destroyed.
    bool ollamaSendPrompt(const QString& imgFilePath);
    void dropOllamaQueue();
    void showOllamaProgress(int processed);
    void logOllamaAnswer(const QStringList& lines);
    [[nodiscard]] QImage scaleOllamaImage(const QImage& image) const;

    OllamaApi* _ollamaApi = nullptr;
    // The files of the running batch whose requests have not begun.
    QStringList ollamaQueue;
    int _ollamaTotal = 0;
    // The number of the running batch; 0 without one.
    int _ollamaBatch = 0;

    // --- Effects (imaging) -----------------------------------------------------------------------
public slots:
    void onAddDspEffect();
    void onAddDspEffectItem(const QString& filterName);
    void onFilterItemDelete();
    void onFilterItemMoveUp();
    void onFilterItemMoveDown();
    void onFilterItemMove(bool up, QListWidgetItem* item);
    void onFilterApply();
    void onDspReset();
    void onDspEffectsCustomContextMenu();

private:
    void initEffectViews();
    void initEffectConnections();
    [[nodiscard]] static QString effectName(const QListWidgetItem* item);
    [[nodiscard]] ImageFilterWidgetBase* effectRow(QListWidgetItem* item) const;
    ImageFilterWidgetBase* attachEffectRow(QListWidgetItem* item);
    void connectEffectRow(const ImageFilterWidgetBase* row);
    void moveSendingRow(bool up);
    void forEachEffectRow(const std::function<void(ImageFilterWidgetBase*)>& visit) const;
    // The absolute directory, made if it is missing; a failure is shown.
    QString prepareOutputDirectory(const QString& outputText);
    void readFilterImage(const QString& path);
    void loadFilterImage(const QString& path, bool isBatch);
    [[nodiscard]] QImage appliedEffects(const QImage& image, bool& applied) const;
    bool writeBatchImage(BatchWriter& writer, const QImage& image, const QString& sourcePath,
                         const QString& directory);

    ImageFilters* _imageFilters = nullptr;
    // The image last decoded for the filters; in a preview reduced to the size of the view.
    QImage _filterImage;
    QString _filterImagePath;
    // Of that file when it was decoded: modification time and size.
    std::pair<QDateTime, qint64> _filterImageState;

    // --- Profiles (imaging) ----------------------------------------------------------------------
public slots:
    void onFilterProfilesNewRequested();
    void onFilterProfilesEditRequested(int index);
    void onFilterProfilesRemoveRequested(int index);
    void onFilterProfilesCurrentAboutToChange();
    void onFilterProfilesHasChanged();
    void onFilterProfilesMoved();

private:
    void initProfileConnections();
    void addDefaultProfile();

    // --- Batch resize (imaging) ------------------------------------------------------------------
public slots:
    void onProcessResize();

private:
    void initResizeConnections();
    [[nodiscard]] QList<QGroupBox*> resizeGroupBoxes() const;
    [[nodiscard]] QGroupBox* resizeGroupBox(ResizeMode mode) const;
    [[nodiscard]] ResizeMode resizeModeOf(const QGroupBox* box) const;
    void onResizeGroupToggled(const QGroupBox* box, bool on);
    [[nodiscard]] ResizeOptions resizeOptions() const;

    // --- Editor windows (editor) -----------------------------------------------------------------
public slots:
    void editImage();
    void onEditImgRequestImgNext(const QString& currFilePath);
    void onEditImgRequestImgPrev(const QString& currFilePath);
    void onImageSaveFailed(const QString& filePath, const QString& reason);
    void onEditImgSavedFile(const QString& fileName);
    void onEditImgNewlySavedFile(const QString& fileName);
    void onRequestDeleteImage(const QString& filePath);

private:
    void initEditorConnections();
    void showImageSaved();
    [[nodiscard]] QString fileIndexText(const QString& filePath) const;
    [[nodiscard]] QString steppedFilePath(const QString& filePath, int step) const;
    void stepEditor(EditImageDialog* dialog, const QString& currFilePath, int step);
    void showInEditor(EditImageDialog* dialog, const QString& filePath);
    // Refreshes thumbnail and tags of one file.
    void reloadFile(const QString& filePath);

    // --- Video windows (video) -------------------------------------------------------------------
public slots:
    VideoWidget* showEditVideoWidget();
    void onVideoPicCaptured(const QImage& img, const QString& fileName);

private:
    void editVideo(const QString& filePath);

    // --- Model files (safetensors) ---------------------------------------------------------------
public slots:
    void onInspectSafetensor();

private:
    void initSafetensorsConnections();
    void openSafetensorsDialog(const QString& filePath, bool includeTensorInfo, bool includeMetaInfo);

    QString _lastOpenPathSafetensors;
};
