#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class QDataStream;

// A named set of options. An option with a key that is not allowed is logged and set all the same. The
// allowed keys are not streamed.
class Profile {
public:
    Profile() = default;

    [[nodiscard]] QString name() const { return _name; }
    void setName(const QString& name) { _name = name; }
    void setAllowedOptionsKeys(const QStringList& keys) { _allowedOptionsKeys = keys; }
    [[nodiscard]] QStringList allowedOptionsKeys() const { return _allowedOptionsKeys; }

    [[nodiscard]] qsizetype optionsCount() const { return _options.size(); }
    [[nodiscard]] const QHash<QString, QVariant>& options() const { return _options; }
    // Invalid, with a log line, if the key is absent.
    [[nodiscard]] QVariant option(const QString& key) const;
    void setOption(const QString& key, const QVariant& value);

    void dump() const;

    // Same name and options, whatever the allowed keys.
    [[nodiscard]] bool hasSameContent(const Profile& other) const;

    friend QDataStream& operator<<(QDataStream& stream, const Profile& profile);
    friend QDataStream& operator>>(QDataStream& stream, Profile& profile);

private:
    QString _name;
    QHash<QString, QVariant> _options;
    QStringList _allowedOptionsKeys;
};

QDataStream& operator<<(QDataStream& stream, const Profile& profile);
QDataStream& operator>>(QDataStream& stream, Profile& profile);

// The name itself, or with "_1" appended until no profile has exactly that name.
[[nodiscard]] QString unusedProfileName(const QString& name, const QList<Profile>& profiles);
