#pragma once

#include "imaging/Profile.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class ProfilesEditWidget;
class ProfilesWidget;
class QAbstractButton;
class QWidget;

// The process's ordered list of profiles with a current one. Listeners store their state into the current
// profile on profilesCurrentAboutToChange and load it on profilesHasChanged.
class Profiles : public QObject {
    Q_OBJECT

public:
    static Profiles* instance(QObject* parent = nullptr);
    static void destroyInstance();

    // Set in every profile that is added to the list.
    void setAllowedOptionsKeys(const QStringList& keys);
    [[nodiscard]] bool isEmpty() const { return _profiles.isEmpty(); }
    [[nodiscard]] const QList<Profile>& profiles() const { return _profiles; }
    [[nodiscard]] int currentIndex() const { return _current; }
    // Check isEmpty() before: without profiles this is a temporary one, whose changes are lost.
    Profile& currentProfile();
    void addProfile(const Profile& profile);
    void removeProfile(int index);
    // Selects the first profile of that name and those options.
    void setCurrentProfile(const Profile& profile);
    // A new profile that is not added to the list and has a name that is not in it, compared in any case.
    [[nodiscard]] Profile uniqueProfile(const QString& name) const;

    // The chooser, made on the first call as a child of that parent.
    ProfilesWidget* widget(QWidget* parent, bool horizontal);
    void editCurrentProfile(QWidget* parent);
    [[nodiscard]] QList<QAbstractButton*> toolButtons() const;

    void restore(const QByteArray& data);
    [[nodiscard]] QByteArray save() const;
    void dump() const;

public slots:
    void setCurrentProfile(int idx);
    void currentProfileMoved(bool movedUp);

signals:
    void profilesNewRequested();
    void profilesEditRequested(int index);
    void profilesRemoveRequested(int index);
    void profilesCurrentAboutToChange();
    void profilesHasChanged();
    void profilesMoved();

private:
    explicit Profiles(QObject* parent);

    void selectProfile(int index);
    void refreshWidget();
    void onProfileEdited();
    void rebindEdit();
    void closeLostEdit();
    [[nodiscard]] bool isValidIndex(int index) const { return index >= 0 && index < _profiles.size(); }

    static Profiles* _instance;

    QPointer<ProfilesWidget> _widget;
    QPointer<ProfilesEditWidget> _editWidget;
    QList<Profile> _profiles;
    int _current = 0;
    // The index of the profile under edit; -1 after its removal.
    int _edited = -1;
    QStringList _allowedOptionsKeys;
    Profile _noProfile;
};
