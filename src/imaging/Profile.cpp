#include "imaging/Profile.h"

#include <QDataStream>
#include <QDebug>

#include <algorithm>

using namespace Qt::StringLiterals;

QVariant Profile::option(const QString& key) const {
    const auto found = _options.constFind(key);
    if (found == _options.constEnd()) {
        qDebug("Info, profile dont have value under the key: %s", qPrintable(key));
        return {};
    }
    return found.value();
}

void Profile::setOption(const QString& key, const QVariant& value) {
    // Only logged: any option is accepted.
    if (_allowedOptionsKeys.isEmpty())
        qDebug("Info, _allowedOptionsKeys is empty");
    if (!_allowedOptionsKeys.contains(key))
        qDebug("Error, setting profile option not in allowed key list for key: %s", qPrintable(key));
    if (_options.contains(key))
        qDebug("Info, profile option already has value under the key: %s", qPrintable(key));
    _options.insert(key, value);
}

void Profile::dump() const {
    QDebug log = qDebug();
    log << "Profile:" << _name << "options:" << _options.size()
        << "allowedOptionsKeys:" << _allowedOptionsKeys.size();
    for (auto option = _options.cbegin(); option != _options.cend(); ++option)
        log << " \t Option:" << option.key() << option.value();
    for (const QString& key : _allowedOptionsKeys)
        log << " \t AllowedOptionsKey:" << key;
}

bool Profile::hasSameContent(const Profile& other) const {
    return _name == other._name && _options == other._options;
}

QDataStream& operator<<(QDataStream& stream, const Profile& profile) {
    return stream << profile._name << profile._options;
}

QDataStream& operator>>(QDataStream& stream, Profile& profile) {
    return stream >> profile._name >> profile._options;
}

QString unusedProfileName(const QString& name, const QList<Profile>& profiles) {
    QString unused = name;
    while (std::ranges::find(profiles, unused, &Profile::name) != profiles.end())
        unused += "_1"_L1;
    return unused;
}
