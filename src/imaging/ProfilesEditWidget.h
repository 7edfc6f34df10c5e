#pragma once

#include <QWidget>

#include <memory>

class Profile;

namespace Ui {
class ProfilesEditWidget;
}

// The small window that renames a profile. Profiles owns the profile and updates its address here.
class ProfilesEditWidget : public QWidget {
    Q_OBJECT

public:
    explicit ProfilesEditWidget(QWidget* parent = nullptr);
    ~ProfilesEditWidget() override;

    // Begins an edit.
    void setProfile(Profile* profile);
    // Sets a new address of the profile under edit, null after its removal. The fields stay.
    void rebindProfile(Profile* profile) { _profile = profile; }

public slots:
    void onApply();

signals:
    void profilesUpdated();
    // The receiver must rebind the profile now, as it is about to be changed.
    void aboutToApply();

private:
    std::unique_ptr<Ui::ProfilesEditWidget> _ui;
    Profile* _profile = nullptr;
};
