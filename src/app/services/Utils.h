#pragma once

#include <QHash>
#include <QObject>
#include <QString>

class QWidget;

// Helpers that several subsystems share: texts of bit rates and durations, and showing a file in the
// desktop's file manager. As an event filter of the application it would zoom all fonts by Ctrl and plus,
// minus or zero; the program does not install it.
class Utils : public QObject {
    Q_OBJECT

public:
    // The object outlives every caller; its pointer is never cleared.
    static Utils* instance(QObject* parent = nullptr);

    // Whole steps of 1000, truncated at each: 1536000 is "1.0 Mb/s".
    [[nodiscard]] QString formatBitRate(quint64 bitsPerSecond) const;
    // Hours are padded to hourPadding + 1 digits; milliseconds are not padded.
    [[nodiscard]] QString formatDuration(quint64 milliseconds, bool showMilliseconds, int hourPadding,
                                         bool hideEmptyHours) const;

    // The first existing file of that name in the directories of PATH, which are separated by semicolons;
    // empty if there is none.
    [[nodiscard]] QString findInPath(const QString& fileName) const;
    // Shows a file selected in its folder, or opens a folder. With resolveExisting a missing path is replaced
    // by the nearest existing folder. Shows a message if no file manager can be started.
    void revealInFileBrowser(const QString& path, bool resolveExisting, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit Utils(QObject* parent);

    void showInExplorer(const QString& path, QWidget* parent);
    void showOnDesktop(const QString& path, QWidget* parent);
    void storeFontSizes();
    void zoomFonts(int key);

    // Point sizes before the first zoom.
    QHash<const QWidget*, double> _storedFontSizes;
};

// The path, or if its folder no longer exists, the nearest existing folder above it.
[[nodiscard]] QString nearestExistingPath(const QString& path);
