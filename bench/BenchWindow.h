#pragma once

#include "app/MainWindow.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>

class QListWidget;

// Files of a made-up catalogue: small pictures with a text chunk and 30 tags each.
namespace catalogue {

// The sidecar's text. Tags come from 20 000 ones; the last is the same in one file of ten.
[[nodiscard]] QString sidecarOf(int number);
[[nodiscard]] QString pictureName(int number);
// Makes the files from first to last - 1. Thumbnails of these pictures are narrow and take 2 kB each.
void makeFiles(const QString& directory, int first, int last);

} // namespace catalogue

// Of this process; no page that has been given back counts.
[[nodiscard]] long residentKilobytes();

// Measures at each size of directory, or at the one that the first argument names.
void atEachSize(int argc, char* argv[], const std::function<void(int files)>& measure);

// The real window on a catalogue of its own.
class BenchWindow {
public:
    explicit BenchWindow(int files);

    [[nodiscard]] MainWindow& window() { return *_window; }
    [[nodiscard]] QString path() const { return _directory.path(); }
    [[nodiscard]] QString emptyPath() const { return _empty.path(); }

    template <typename T>
    [[nodiscard]] T* find(const char* name) const {
        T* found = _window->findChild<T*>(QLatin1StringView(name));
        if (!found)
            qFatal("no widget %s", name);
        return found;
    }

    // Rows and tags; the previews follow while events are processed.
    void open();
    void openEmpty();
    // The rows of another directory; its tags come a turn of the event loop later.
    void openPath(const QString& path);
    // Waits for the end of the preview load.
    void waitForPreviews();
    void stopPreviews();

    // Shows a list of the size and the layout of that of all tags.
    void lookLikeTagList(QListWidget& bound) const;

private:
    QTemporaryDir _directory;
    QTemporaryDir _empty;
    std::unique_ptr<MainWindow> _window;
};
