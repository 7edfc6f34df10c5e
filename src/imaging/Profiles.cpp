#include "imaging/Profiles.h"

#include "imaging/ProfileStream.h"
#include "imaging/ProfilesEditWidget.h"
#include "imaging/ProfilesWidget.h"

#include <QDateTime>
#include <QDebug>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

Profiles* Profiles::_instance = nullptr;

Profiles* Profiles::instance(QObject* parent) {
    if (!_instance)
        _instance = new Profiles(parent);
    return _instance;
}

void Profiles::destroyInstance() {
    delete std::exchange(_instance, nullptr);
}

Profiles::Profiles(QObject* parent) : QObject(parent) {}

void Profiles::setAllowedOptionsKeys(const QStringList& keys) {
    _allowedOptionsKeys = keys;
}

Profile& Profiles::currentProfile() {
    if (_profiles.isEmpty()) {
        qDebug() << "Error, profiles are empty.";
        // Drops what a caller wrote into it earlier.
        _noProfile = {};
        return _noProfile;
    }
    return _profiles[_current];
}

void Profiles::addProfile(const Profile& profile) {
    _profiles.append(profile);
    _profiles.last().setAllowedOptionsKeys(_allowedOptionsKeys);
    refreshWidget();
}

void Profiles::removeProfile(int index) {
    // The rows on the screen are stored while their profile still has its index.
    emit profilesCurrentAboutToChange();
    if (isValidIndex(index)) {
        _profiles.removeAt(index);
        // Whichever profile was removed, the current index moves up by one.
        _current = std::max(_current - 1, 0);
        if (_edited == index)
            closeLostEdit();
        else if (_edited > index)
            --_edited;
    } else {
        qDebug() << "Info, unable to remove profile, invalid index.";
    }
    refreshWidget();
    emit profilesHasChanged();
}

void Profiles::setCurrentProfile(int idx) {
    if (!isValidIndex(idx)) {
        qDebug() << "Error, unable to set current profile, invalid index:" << idx;
        return;
    }
    // No refresh: the chooser is the sender and shows the profile already.
    selectProfile(idx);
}

void Profiles::setCurrentProfile(const Profile& profile) {
    const auto found = std::ranges::find_if(
        std::as_const(_profiles), [&profile](const Profile& p) { return p.hasSameContent(profile); });
    if (found == _profiles.cend()) {
        qDebug("Error, failed to set profile to: %s", qPrintable(profile.name()));
        return;
    }
    selectProfile(static_cast<int>(found - _profiles.cbegin()));
    refreshWidget();
}

void Profiles::selectProfile(int index) {
    emit profilesCurrentAboutToChange();
    _current = index;
    emit profilesHasChanged();
}

void Profiles::currentProfileMoved(bool movedUp) {
    if (_profiles.isEmpty())
        return;
    const int target = movedUp ? _current - 1 : _current + 1;
    if (isValidIndex(target)) {
        // The window that edits a profile follows it to its new index.
        _profiles.move(_current, target);
        if (_edited == _current)
            _edited = target;
        else if (_edited == target)
            _edited = _current;
        _current = target;
    } else {
        qDebug() << "Error, unable to move current profile up:" << movedUp;
    }
    refreshWidget();
}

Profile Profiles::uniqueProfile(const QString& name) const {
    const auto isTaken = [this](const QString& wanted) {
        return std::ranges::any_of(_profiles, [&wanted](const Profile& p) {
            return p.name().compare(wanted, Qt::CaseInsensitive) == 0;
        });
    };
    Profile profile;
    profile.setName(name);
    while (isTaken(profile.name()))
        profile.setName(
            u"Empty_%1"_s.arg(QDateTime::currentDateTime().toString(u"dd.MM.yyyy'T'hh:mm:ss.zzz"_s)));
    return profile;
}

ProfilesWidget* Profiles::widget(QWidget* parent, bool horizontal) {
    if (_widget)
        return _widget;
    _widget = new ProfilesWidget(parent, horizontal);
    connect(_widget, &ProfilesWidget::profileNew, this, &Profiles::profilesNewRequested);
    connect(_widget, &ProfilesWidget::profileEdit, this, &Profiles::profilesEditRequested);
    connect(_widget, &ProfilesWidget::profileRemove, this, &Profiles::profilesRemoveRequested);
    connect(_widget, &ProfilesWidget::profileChanged, this, qOverload<int>(&Profiles::setCurrentProfile));
    connect(_widget, &ProfilesWidget::moveCurrentProfile, this, &Profiles::currentProfileMoved);
    refreshWidget();
    return _widget;
}

void Profiles::editCurrentProfile(QWidget* parent) {
    if (_profiles.isEmpty()) {
        qDebug() << "Error, profiles are empty.";
        return;
    }
    if (!_editWidget) {
        _editWidget = new ProfilesEditWidget(parent);
        connect(_editWidget, &ProfilesEditWidget::aboutToApply, this, &Profiles::rebindEdit);
        connect(_editWidget, &ProfilesEditWidget::profilesUpdated, this, &Profiles::onProfileEdited);
    }
    _edited = _current;
    // As a plain child it would be laid over its parent.
    _editWidget->setWindowFlag(Qt::Dialog);
    _editWidget->setProfile(&currentProfile());
    _editWidget->show();
}

QList<QAbstractButton*> Profiles::toolButtons() const {
    return _widget ? _widget->toolButtons() : QList<QAbstractButton*>();
}

void Profiles::refreshWidget() {
    if (_widget)
        _widget->setProfiles(_profiles, _current);
}

void Profiles::onProfileEdited() {
    refreshWidget();
    emit profilesHasChanged();
}

// Changes of the list may have moved the profiles in memory since the window was opened.
void Profiles::rebindEdit() {
    emit profilesCurrentAboutToChange(); // the list is loaded again once the name has changed
    _editWidget->rebindProfile(isValidIndex(_edited) ? &_profiles[_edited] : nullptr);
}

void Profiles::closeLostEdit() {
    _edited = -1;
    if (!_editWidget)
        return;
    _editWidget->rebindProfile(nullptr);
    _editWidget->close();
}

void Profiles::restore(const QByteArray& data) {
    if (data.isEmpty()) {
        qDebug() << "Not restoring profiles, data is emtpy.";
        return;
    }
    ProfileStreamContents contents = readProfileStream(data);
    // The profile under edit belongs to the list that is replaced.
    closeLostEdit();
    _profiles = std::move(contents.profiles);
    _current = contents.current;
    if (!isValidIndex(_current)) {
        qDebug() << "Info, restored current profile index is not in the list:" << _current
                 << "profiles count:" << _profiles.size();
        _current = 0;
    }
    for (Profile& profile : _profiles)
        profile.setAllowedOptionsKeys(_allowedOptionsKeys);
    refreshWidget();
    dump();
    // The list may be empty then; the main window adds a default profile.
    if (contents.status != QDataStream::Ok)
        qDebug() << "Error, restore profile data stream status:" << static_cast<int>(contents.status);
    emit profilesHasChanged();
}

QByteArray Profiles::save() const {
    QDataStream::Status status = QDataStream::Ok;
    const QByteArray data = writeProfileStream(_profiles, _current, &status);
    if (status != QDataStream::Ok)
        qDebug() << "Error, save profile data stream status:" << static_cast<int>(status);
    dump();
    return data;
}

void Profiles::dump() const {
    QString text;
    for (const Profile& profile : _profiles) {
        text += u"Name:%1,"_s.arg(profile.name()) + "Options:"_L1;
        for (auto option = profile.options().cbegin(); option != profile.options().cend(); ++option)
            text += u"%1:%2,"_s.arg(option.key(), option.value().toString());
    }
    // The count is logged twice, which is part of the fixed text.
    qDebug() << "Profiles debug:" << "profiles count:" << _profiles.size() << "current profile:" << _current
             << "profiles count:" << _profiles.size() << "profiles:" << text;
}
