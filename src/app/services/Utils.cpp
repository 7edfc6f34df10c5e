#include "app/services/Utils.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QUrl>
#include <QWidget>

#include <array>

using namespace Qt::StringLiterals;

namespace {

void warn(QWidget* parent, const QString& title, const QString& text) {
    QMessageBox box(QMessageBox::Warning, title, {}, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.exec();
}

void openFolderOf(const QString& path, QWidget* parent) {
    const QFileInfo info(path);
    const QString folder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        warn(parent, Utils::tr("No file manager"),
             Utils::tr("Could not find a file manager to show %1.").arg(folder));
}

QDBusMessage fileManagerCall(const QString& path) {
    const QFileInfo info(path);
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, info.isDir() ? u"ShowFolders"_s : u"ShowItems"_s);
    const QUrl url = QUrl::fromLocalFile(info.absoluteFilePath());
    // The second argument is a start-up notification, which the program does not have.
    call << QStringList{url.toString(QUrl::FullyEncoded)} << QString();
    return call;
}

} // namespace

Utils* Utils::instance(QObject* parent) {
    static auto* const utils = new Utils(parent);
    return utils;
}

Utils::Utils(QObject* parent) : QObject(parent) {}

QString Utils::formatBitRate(quint64 bitsPerSecond) const {
    constexpr std::array units{"b/s", "Kb/s", "Mb/s", "Gb/s"};
    quint64 value = bitsPerSecond;
    std::size_t step = 0;
    while (step < units.size() && value >= 1000) {
        value /= 1000;
        ++step;
    }
    // A rate beyond the last unit is shown without one.
    const QString unit = step < units.size() ? QString::fromLatin1(units.at(step)) : QString();
    return u"%1 %2"_s.arg(QString::number(static_cast<double>(value), 'f', step == 0 ? 0 : 1), unit);
}

QString Utils::formatDuration(quint64 milliseconds, bool showMilliseconds, int hourPadding,
                              bool hideEmptyHours) const {
    const quint64 hours = milliseconds / 3'600'000;
    const quint64 minutes = milliseconds % 3'600'000 / 60'000;
    const quint64 seconds = milliseconds / 1000 % 60;
    QString text = u"%1:%2"_s.arg(minutes, 2, 10, u'0').arg(seconds, 2, 10, u'0');
    if (hours > 0 || !hideEmptyHours)
        text.prepend(u"%1:"_s.arg(hours, hourPadding + 1, 10, u'0'));
    if (showMilliseconds)
        text += u".%1"_s.arg(milliseconds % 1000);
    return text;
}

QString Utils::findInPath(const QString& fileName) const {
    const QString searchPath = QProcessEnvironment::systemEnvironment().value(u"PATH"_s);
    // The separator of Windows: the only caller looks for explorer.exe.
    const QStringList directories = searchPath.split(u';', Qt::SkipEmptyParts);
    for (QString directory : directories) {
        directory.replace(u'\\', u'/');
        const QString path = QDir(directory).filePath(fileName);
        if (QFileInfo::exists(path))
            return path;
    }
    return {};
}

QString nearestExistingPath(const QString& path) {
    QDir dir(QFileInfo(path).path());
    while (!dir.exists()) {
        const QString parent = QFileInfo(QDir::cleanPath(dir.path())).path();
        if (parent.isEmpty() || parent == dir.path())
            return path;
        dir.setPath(parent);
    }
    const QString found = dir.filePath(QFileInfo(path).fileName());
    return QFileInfo::exists(found) ? found : dir.path();
}

void Utils::revealInFileBrowser(const QString& path, bool resolveExisting, QWidget* parent) {
    QString shown = path;
    if (resolveExisting) {
        shown = nearestExistingPath(path);
        if (!QFileInfo::exists(path) && QFileInfo(shown).isDir())
            qDebug() << "dir exists at:" << shown;
    }
#ifdef Q_OS_WIN
    showInExplorer(shown, parent);
#else
    showOnDesktop(shown, parent);
#endif
}

void Utils::showInExplorer(const QString& path, QWidget* parent) {
    const QString explorer = findInPath(u"explorer.exe"_s);
    if (explorer.isEmpty()) {
        warn(parent, tr("Launching Windows Explorer Failed"),
             tr("Could not find explorer.exe in path to launch Windows Explorer."));
        return;
    }
    QStringList arguments;
    if (!QFileInfo(path).isDir())
        arguments << u"/select,"_s;
    arguments << QDir::toNativeSeparators(path);
    QProcess::startDetached(explorer, arguments);
}

// The reply may take as long as the start of a file manager, so the call is asynchronous.
void Utils::showOnDesktop(const QString& path, QWidget* parent) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(path, parent);
        return;
    }
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(fileManagerCall(path)), this);
    const auto onAnswer = [path, answer, guard = QPointer<QWidget>(parent)] {
        answer->deleteLater();
        // No file manager offers the interface, or it failed. The parent may be closed by now.
        if (QDBusPendingReply<>(*answer).isError())
            openFolderOf(path, guard);
    };
    connect(answer, &QDBusPendingCallWatcher::finished, this, onAnswer);
}

bool Utils::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyRelease) {
        const auto* keyEvent = static_cast<QKeyEvent*>(event);
        if (keyEvent->modifiers().testFlag(Qt::ControlModifier))
            zoomFonts(keyEvent->key());
    }
    return QObject::eventFilter(watched, event);
}

void Utils::storeFontSizes() {
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets)
        _storedFontSizes.insert(widget, widget->font().pointSizeF());
}

void Utils::zoomFonts(int key) {
    if (key != Qt::Key_Plus && key != Qt::Key_Minus && key != Qt::Key_0)
        return;
    if (_storedFontSizes.isEmpty())
        storeFontSizes();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        QFont font = widget->font();
        double size = font.pointSizeF() + (key == Qt::Key_Plus ? 1.0 : -1.0);
        if (key == Qt::Key_0)
            size = _storedFontSizes.value(widget);
        // A font that is sized in pixels, or for zero a widget made after the first zoom, has no point size
        // to set.
        if (size <= 0.0)
            continue;
        font.setPointSizeF(size);
        widget->setFont(font);
    }
}
