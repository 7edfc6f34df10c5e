#include "app/MainWindow.h"

#include "imaging/EffectList.h"
#include "imaging/ImageFilterWidgetBase.h"
#include "imaging/Profiles.h"
#include "ui_MainWindow.h"

#include <QDebug>
#include <QSignalBlocker>

void MainWindow::initProfileConnections() {
    const Profiles* profiles = Profiles::instance();
    connect(profiles, &Profiles::profilesNewRequested, this, &MainWindow::onFilterProfilesNewRequested);
    connect(profiles, &Profiles::profilesEditRequested, this, &MainWindow::onFilterProfilesEditRequested);
    connect(profiles, &Profiles::profilesRemoveRequested, this, &MainWindow::onFilterProfilesRemoveRequested);
    connect(profiles, &Profiles::profilesCurrentAboutToChange, this,
            &MainWindow::onFilterProfilesCurrentAboutToChange);
    connect(profiles, &Profiles::profilesHasChanged, this, &MainWindow::onFilterProfilesHasChanged);
    connect(profiles, &Profiles::profilesMoved, this, &MainWindow::onFilterProfilesMoved);
}

void MainWindow::onFilterProfilesCurrentAboutToChange() {
    if (Profiles::instance()->isEmpty()) {
        qDebug() << "Info, no profiles for about to change.";
        return;
    }
    EffectList effects;
    forEachEffectRow(
        [&](ImageFilterWidgetBase* row) { effects.emplaceBack(effectName(row->item()), row->options()); });
    // The profile that the user leaves is still the current one here.
    Profiles::instance()->currentProfile().setOption(effectListOption, effectListToVariant(effects));
}

void MainWindow::onFilterProfilesHasChanged() {
    {
        // The list is silent while it is filled. A row that is restored as bypassed still runs the preview.
        const QSignalBlocker blocker(ui->lWDspEffects);
        ui->lWDspEffects->clear();
        if (Profiles::instance()->isEmpty()) {
            qDebug() << "Profiles are empty, nothing to do on profiles has changed";
        } else {
            const Profile& profile = Profiles::instance()->currentProfile();
            profile.dump();
            const EffectList effects = effectListFromVariant(profile.option(effectListOption));
            for (const auto& [name, options] : effects) {
                onAddDspEffectItem(name);
                QListWidgetItem* item = ui->lWDspEffects->item(ui->lWDspEffects->count() - 1);
                effectRow(item)->setOptions(options);
            }
        }
    }
    onFilterApply();
}

// Adds and selects a profile of the default name, with "_1" appended until the name is new.
void MainWindow::addDefaultProfile() {
    Profile profile;
    profile.setName(unusedProfileName(tr("Default"), Profiles::instance()->profiles()));
    Profiles::instance()->addProfile(profile);
    Profiles::instance()->setCurrentProfile(profile);
}

void MainWindow::onFilterProfilesNewRequested() {
    addDefaultProfile();
    // Every new profile has the same default name, so the user is asked for another one.
    Profiles::instance()->editCurrentProfile(this);
}

void MainWindow::onFilterProfilesEditRequested(int /*index*/) {
    Profiles::instance()->editCurrentProfile(this);
}

void MainWindow::onFilterProfilesRemoveRequested(int index) {
    Profiles::instance()->removeProfile(index);
    // The rows always belong to a profile.
    if (Profiles::instance()->isEmpty())
        addDefaultProfile();
}

// The order of profiles does not show in the rows.
void MainWindow::onFilterProfilesMoved() {}
