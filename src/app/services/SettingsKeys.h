#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QSize>
#include <QString>

#include <optional>

// One value of the settings table: its key, its type and its value at a first start. Without a fallback that
// is an empty one.
template <typename T>
struct Setting {
    QLatin1StringView key;
    std::optional<T> fallback = std::nullopt;
};

// All values that the program keeps between runs. A value is kept under its key from one release to the next:
// never rename one.
namespace keys {

// Kept by widgets of the main window.
inline const Setting<QByteArray> appGeometry{QLatin1StringView("appGeometry")};
inline const Setting<QByteArray> appState{QLatin1StringView("appState")};
inline constexpr Setting<int> ollamaScaleResW{QLatin1StringView("sBOllamaScaleResW"), -1};
inline constexpr Setting<int> ollamaScaleResH{QLatin1StringView("sBOllamaScaleResH"), -1};
inline constexpr Setting<bool> ollamaScaleKeepAspectRatio{QLatin1StringView("cBOllamaScaleKeepAspectRatio"),
                                                          true};
inline const Setting<QString> workingPath{QLatin1StringView("workingPath"), QString()};
inline constexpr Setting<bool> workingDirScanRecursive{QLatin1StringView("workingDirScanRecursive"), false};
inline constexpr Setting<int> currentToolsTabIndex{QLatin1StringView("currentToolsTabIndex"), 0};
inline constexpr Setting<int> resizeSrcAspectRatio{QLatin1StringView("resizeSrcAspectRatio"), 1};
inline constexpr Setting<int> resizeImgWriteQuality{QLatin1StringView("resizeImgWriteQuality"), 100};
inline constexpr Setting<int> resizeSrcTransformationType{QLatin1StringView("resizeSrcTransformationType"),
                                                          1};
inline const Setting<QString> promptSystem{QLatin1StringView("promptSystem")};
inline const Setting<QString> promptUser{QLatin1StringView("promptUser")};
inline const Setting<QByteArray> splitterTagsUpperState{QLatin1StringView("splitterTagsUpperState")};
inline const Setting<QByteArray> splitterTagsLowerState{QLatin1StringView("splitterTagsLowerState")};
inline const Setting<QByteArray> splitterOllamaUpper{QLatin1StringView("splitterOllamaUpper")};
inline const Setting<QByteArray> splitterOllamaLower{QLatin1StringView("splitterOllamaLower")};
inline const Setting<QString> ollamaIp{QLatin1StringView("lEOllamaIp"),
                                       QStringLiteral("http://127.0.0.1:11434/")};
inline const Setting<QString> lastOpenPathSafetensors{QLatin1StringView("lastOpenPathSafetensors")};
inline constexpr Setting<bool> ollamaAddTags{QLatin1StringView("cBOllamaAddTags"), true};
inline const Setting<QString> ollamaTagsSplitTag{QLatin1StringView("ollamaTagsSplitTag"),
                                                 QStringLiteral(",")};
inline constexpr Setting<int> toolCutOutlineWidth{QLatin1StringView("toolCutOutlineWidth"), 8};
inline const Setting<QString> scaleDirOutput{QLatin1StringView("scaleDirOutput"), QStringLiteral("./scaled")};
inline const Setting<QByteArray> filterProfiles{QLatin1StringView("filterProfiles")};
inline constexpr Setting<int> viewIdx{QLatin1StringView("viewIdx"), 0};
inline const Setting<QByteArray> treeViewHeaderState{QLatin1StringView("treeViewHeaderState")};
inline const Setting<QByteArray> tableViewHorizontalHeaderState{
    QLatin1StringView("tableViewHorizontalHeaderState")};
inline constexpr Setting<int> listViewViewMode{QLatin1StringView("listViewViewMode"), 1};

// Kept by dialogs and tool windows.
inline constexpr Setting<QSize> gridSizeListView{QLatin1StringView("gridSizeListView"), QSize(240, 240)};
inline constexpr Setting<QSize> gridSizeTreeView{QLatin1StringView("gridSizeTreeView"), QSize(32, 32)};
inline constexpr Setting<QSize> gridSizeTableView{QLatin1StringView("gridSizeTableView"), QSize(32, 32)};
inline constexpr Setting<int> imagePreviewThreadCount{QLatin1StringView("imagePreviewThreadCount"), 4};
// In mebibytes; without a positive value a share of the machine's memory. No window shows it.
inline constexpr Setting<int> thumbnailMemory{QLatin1StringView("thumbnailMemory"), 0};
inline constexpr Setting<bool> includeTensorInfo{QLatin1StringView("includeTensorInfo"), false};
inline constexpr Setting<bool> includeMetaInfo{QLatin1StringView("includeMetaInfo"), true};
inline constexpr Setting<bool> importFilesDeleteSrc{QLatin1StringView("importFilesDeleteSrc"), false};
inline constexpr Setting<bool> importFilesAutoRename{QLatin1StringView("importFilesAutoRename"), false};
inline const Setting<QByteArray> optionDialogGeometry{QLatin1StringView("optionDialogGeometry")};
inline constexpr Setting<int> appTheme{QLatin1StringView("appTheme"), 0};
inline const Setting<QByteArray> addTagsDialogGeometry{QLatin1StringView("addTagsDialogGeometry")};
inline const Setting<QByteArray> editImageWidgetGeometry{QLatin1StringView("editImageWidgetGeometry")};
inline const Setting<QByteArray> editImageWidgetState{QLatin1StringView("editImageWidgetState")};
inline const Setting<QByteArray> videoWidgetGeometry{QLatin1StringView("videoWidgetGeometry")};
inline const Setting<QByteArray> videoWidgetState{QLatin1StringView("videoWidgetState")};
inline const Setting<QString> videoLastOpenPath{QLatin1StringView("videoLastOpenPath"), QString()};
inline const Setting<QByteArray> safetensorDialogGeometry{QLatin1StringView("safetensorDialogGeometry")};
inline const Setting<QByteArray> safetensorDialogSplitterState{
    QLatin1StringView("safetensorDialogSplitterState")};

} // namespace keys
