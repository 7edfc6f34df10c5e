#pragma once

#include <QWidget>

#include <memory>

class Profile;

namespace Ui {
class ProfilesEditWidget;
}

// The small window that renames a profile. Profiles owns the profile and keeps its address true.
class ProfilesEditWidget : public QWidget {
    Q_OBJECT

public:
    explicit ProfilesEditWidget(QWidget* parent = nullptr);
    ~ProfilesEditWidget() override;

    // Begins an edit.
    void setProfile(Profile* profile);
    // The profile under edit has another address, or none any more; the fields stay.
    void rebindProfile(Profile* profile) { _profile = profile; }

public slots:
    void onApply();

signals:
    void profilesUpdated();
    // The last moment to rebind the profile.
    void aboutToApply();

private:
    std::unique_ptr<Ui::ProfilesEditWidget> _ui;
    Profile* _profile = nullptr;
};
