#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class Profile;
class QAbstractButton;
class QComboBox;

namespace Ui {
class ProfilesWidget;
}

// The profile chooser: a combo box and five tool buttons, in one row or stacked in a group box.
class ProfilesWidget : public QWidget {
    Q_OBJECT

public:
    ProfilesWidget(QWidget* parent, bool horizontal);
    ~ProfilesWidget() override;

    // Shows the list; emits nothing.
    void setProfiles(const QList<Profile>& profiles, int current);
    // The five buttons of the form that is shown.
    [[nodiscard]] QList<QAbstractButton*> toolButtons() const;

signals:
    void profileChanged(int index);
    void profileNew();
    void profileEdit(int index);
    void profileRemove(int index);
    void moveCurrentProfile(bool moveUp);

public slots:
    void onProfileChanged(int index);
    void onProfileNew();
    void onProfileEdit();
    void onProfileRemove();
    void onProfileMove();

private:
    void connectPages();
    void dropUnusedPage();
    [[nodiscard]] QComboBox* activeComboBox() const;

    std::unique_ptr<Ui::ProfilesWidget> _ui;
    const bool _horizontal;
};
