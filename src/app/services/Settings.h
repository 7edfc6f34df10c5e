#pragma once

#include "app/services/SettingsKeys.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>
#include <type_traits>

class QSettings;

// The table of all settings. It is kept in memory and written to the disk once, when the singleton is
// destroyed. GUI thread only.
class Settings : public QObject {
    Q_OBJECT

public:
    enum SettingsLocation { UserConfigLocation = 0, AppDirLocation = 1 };
    Q_ENUM(SettingsLocation)

    // Beside the executable, or in the user's configuration directory where the executable's is read-only.
    [[nodiscard]] static SettingsLocation usualLocation();
    // The first call makes the object and reads the file; later calls ignore the arguments.
    static Settings* instance(QObject* parent = nullptr, SettingsLocation location = UserConfigLocation,
                              const QString& fileName = {}, bool debugging = false);
    // Writes the file.
    static void destroyInstance();

    // The table that a settings file holds; empty for one that is missing or no settings file.
    [[nodiscard]] static QHash<QString, QVariant> storedTable(const QSettings& file);

    void read();
    // A key that is present with an invalid value yields that value, not the default.
    [[nodiscard]] QVariant data(const QString& key, const QVariant& defaultValue = {}) const;
    bool setData(const QString& key, const QVariant& value, bool persistent = true);

    // The same by type; a value of another type is converted as QVariant does it.
    template <typename T>
    [[nodiscard]] T get(const Setting<T>& setting) const {
        const QVariant fallback = setting.fallback ? QVariant::fromValue(*setting.fallback) : QVariant();
        return data(setting.key, fallback).template value<T>();
    }
    template <typename T>
    void set(const Setting<T>& setting, const std::type_identity_t<T>& value) {
        setData(setting.key, QVariant::fromValue(value));
    }
    [[nodiscard]] QString filePath() const { return _filePath; }

private:
    Settings(QObject* parent, SettingsLocation location, const QString& fileName, bool debugging);
    ~Settings() override;

    [[nodiscard]] QString directory() const;

    static Settings* _instance;

    QHash<QString, QVariant> _data;
    QHash<QString, QVariant> _nonPersistentData;
    std::unique_ptr<QSettings> _settings;
    bool _debugging = false;
    SettingsLocation _settingsLocation = UserConfigLocation;
    QString _fileName;
    QString _filePath;
};
