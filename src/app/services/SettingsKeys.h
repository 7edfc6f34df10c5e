#pragma once

#include <QLatin1StringView>

// The keys of the settings table. A value is kept under its key from one release to the next: never rename
// one.
namespace keys {

inline constexpr QLatin1StringView appGeometry{"appGeometry"};
inline constexpr QLatin1StringView appState{"appState"};
inline constexpr QLatin1StringView ollamaScaleResW{"sBOllamaScaleResW"};
inline constexpr QLatin1StringView ollamaScaleResH{"sBOllamaScaleResH"};
inline constexpr QLatin1StringView ollamaScaleKeepAspectRatio{"cBOllamaScaleKeepAspectRatio"};
inline constexpr QLatin1StringView workingPath{"workingPath"};
inline constexpr QLatin1StringView workingDirScanRecursive{"workingDirScanRecursive"};
inline constexpr QLatin1StringView currentToolsTabIndex{"currentToolsTabIndex"};
inline constexpr QLatin1StringView resizeSrcAspectRatio{"resizeSrcAspectRatio"};
inline constexpr QLatin1StringView resizeImgWriteQuality{"resizeImgWriteQuality"};
inline constexpr QLatin1StringView resizeSrcTransformationType{"resizeSrcTransformationType"};
inline constexpr QLatin1StringView promptSystem{"promptSystem"};
inline constexpr QLatin1StringView promptUser{"promptUser"};
inline constexpr QLatin1StringView splitterTagsUpperState{"splitterTagsUpperState"};
inline constexpr QLatin1StringView splitterTagsLowerState{"splitterTagsLowerState"};
inline constexpr QLatin1StringView splitterOllamaUpper{"splitterOllamaUpper"};
inline constexpr QLatin1StringView splitterOllamaLower{"splitterOllamaLower"};
inline constexpr QLatin1StringView ollamaIp{"lEOllamaIp"};
inline constexpr QLatin1StringView lastOpenPathSafetensors{"lastOpenPathSafetensors"};
inline constexpr QLatin1StringView ollamaAddTags{"cBOllamaAddTags"};
inline constexpr QLatin1StringView ollamaTagsSplitTag{"ollamaTagsSplitTag"};
inline constexpr QLatin1StringView toolCutOutlineWidth{"toolCutOutlineWidth"};
inline constexpr QLatin1StringView scaleDirOutput{"scaleDirOutput"};
inline constexpr QLatin1StringView filterProfiles{"filterProfiles"};
inline constexpr QLatin1StringView viewIdx{"viewIdx"};
inline constexpr QLatin1StringView treeViewHeaderState{"treeViewHeaderState"};
inline constexpr QLatin1StringView tableViewHorizontalHeaderState{"tableViewHorizontalHeaderState"};
inline constexpr QLatin1StringView listViewViewMode{"listViewViewMode"};

inline constexpr QLatin1StringView gridSizeListView{"gridSizeListView"};
inline constexpr QLatin1StringView gridSizeTreeView{"gridSizeTreeView"};
inline constexpr QLatin1StringView gridSizeTableView{"gridSizeTableView"};
inline constexpr QLatin1StringView imagePreviewThreadCount{"imagePreviewThreadCount"};
inline constexpr QLatin1StringView includeTensorInfo{"includeTensorInfo"};
inline constexpr QLatin1StringView includeMetaInfo{"includeMetaInfo"};
inline constexpr QLatin1StringView importFilesDeleteSrc{"importFilesDeleteSrc"};
inline constexpr QLatin1StringView importFilesAutoRename{"importFilesAutoRename"};
inline constexpr QLatin1StringView optionDialogGeometry{"optionDialogGeometry"};
inline constexpr QLatin1StringView appTheme{"appTheme"};
inline constexpr QLatin1StringView addTagsDialogGeometry{"addTagsDialogGeometry"};
inline constexpr QLatin1StringView editImageWidgetGeometry{"editImageWidgetGeometry"};
inline constexpr QLatin1StringView editImageWidgetState{"editImageWidgetState"};
inline constexpr QLatin1StringView videoWidgetGeometry{"videoWidgetGeometry"};
inline constexpr QLatin1StringView videoWidgetState{"videoWidgetState"};
inline constexpr QLatin1StringView videoLastOpenPath{"videoLastOpenPath"};
inline constexpr QLatin1StringView safetensorDialogGeometry{"safetensorDialogGeometry"};
inline constexpr QLatin1StringView safetensorDialogSplitterState{"safetensorDialogSplitterState"};

} // namespace keys
