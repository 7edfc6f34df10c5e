#include "app/services/Settings.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QMetaType>
#include <QSettings>
#include <QStandardPaths>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto settingsDataKey = "settingsData"_L1;

} // namespace

Settings* Settings::_instance = nullptr;

Settings::SettingsLocation Settings::usualLocation() {
    const bool isWritable = QFileInfo(QCoreApplication::applicationDirPath()).isWritable();
    return isWritable ? AppDirLocation : UserConfigLocation;
}

Settings* Settings::instance(QObject* parent, SettingsLocation location, const QString& fileName,
                             bool debugging) {
    if (!_instance) {
        qDebug() << "new Settings instance"
                 << "parent:" << parent << "settignsLocation:" << location << "fileName:" << fileName
                 << "debugging:" << debugging;
        _instance = new Settings(parent, location, fileName, debugging);
    }
    return _instance;
}

void Settings::destroyInstance() {
    delete std::exchange(_instance, nullptr);
}

Settings::Settings(QObject* parent, SettingsLocation location, const QString& fileName, bool debugging)
    : QObject(parent), _debugging(debugging), _settingsLocation(location), _fileName(fileName) {
    if (_fileName.isEmpty())
        _fileName = u"settings.data"_s;
    read();
}

Settings::~Settings() {
    _settings->setValue(settingsDataKey, QVariant(_data));
    _settings->sync();
    // No window is left that could show it.
    if (_settings->status() != QSettings::NoError)
        qDebug() << "Settings write error.";
    qDebug() << "Settings written:" << _settings->fileName();
}

QString Settings::directory() const {
    switch (_settingsLocation) {
    case UserConfigLocation: {
        const QString path = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
                                 .filePath(QCoreApplication::applicationName());
        if (!QFileInfo::exists(path)) {
            if (_debugging)
                qInfo() << "info: creating location:" << path;
            if (!QDir().mkpath(path) && _debugging)
                qDebug() << "Error: unable to create application directory." << path;
        }
        return path;
    }
    case AppDirLocation:
        return QCoreApplication::applicationDirPath();
    }
    qDebug() << "Error, invalid settings location";
    return {};
}

QHash<QString, QVariant> Settings::storedTable(const QSettings& file) {
    // The table is stored in a QDataStream, which reads only types that are registered.
    qRegisterMetaType<QHash<QString, QDateTime>>();
    qRegisterMetaType<QList<std::pair<QString, bool>>>();
    return file.value(settingsDataKey).toHash();
}

void Settings::read() {
    _filePath = QDir(directory()).filePath(_fileName);
    if (_debugging)
        qDebug() << "Settings path:" << _filePath;
    if (!_settings) {
        _settings = std::make_unique<QSettings>(_filePath, QSettings::IniFormat);
        qDebug() << "Settings read:" << _settings->fileName();
    }
    _data = storedTable(*_settings);
}

QVariant Settings::data(const QString& key, const QVariant& defaultValue) const {
    if (_debugging)
        qDebug() << "Settings data:" << key << "default value:" << defaultValue;
    // A value of this run hides the stored one, which stays in the file.
    if (const auto found = _nonPersistentData.constFind(key); found != _nonPersistentData.cend())
        return *found;
    if (const auto found = _data.constFind(key); found != _data.cend())
        return *found;
    qDebug() << "Settings don't have value under key:" << key << "default returned:" << defaultValue;
    return defaultValue;
}

bool Settings::setData(const QString& key, const QVariant& value, bool persistent) {
    if (_debugging)
        qDebug() << "Settings setData:" << key << "isValid:" << value.isValid()
                 << "persistent:" << persistent;
    if (persistent) {
        if (_debugging && _data.contains(key))
            qDebug() << "Settings already has data under key:" << key;
        _data.insert(key, value);
    } else {
        if (_debugging && _nonPersistentData.contains(key))
            qDebug() << "Settings non persistent already has data under key:" << key;
        _nonPersistentData.insert(key, value);
    }
    return true;
}
