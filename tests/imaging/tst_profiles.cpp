#include "imaging/EffectList.h"
#include "imaging/Profiles.h"
#include "imaging/ProfilesEditWidget.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

// The edit window of a profile while the list changes under it.
class TestProfiles : public QObject {
    Q_OBJECT

private slots:
    void theEditFollowsItsProfile() {
        registerEffectListType();
        QWidget window;
        Profiles* profiles = Profiles::instance(&window);
        profiles->setAllowedOptionsKeys({"effectList"});
        const auto names = [&] {
            QStringList list;
            for (const Profile& profile : profiles->profiles())
                list.append(profile.name());
            return list.join(' ');
        };
        const auto openEdit = [&](const QString& text) {
            profiles->editCurrentProfile(&window);
            auto* const edit = window.findChild<ProfilesEditWidget*>();
            edit->findChild<QLineEdit*>("lEProfileName")->setText(text);
            return edit;
        };
        for (const char* name : {"A", "B", "C"}) {
            Profile profile;
            profile.setName(name);
            profiles->addProfile(profile);
        }
        profiles->setCurrentProfile(1);
        ProfilesEditWidget* edit = openEdit("Bee");
        profiles->currentProfileMoved(true);
        profiles->removeProfile(2);
        QCOMPARE(names(), "B A");
        edit->findChild<QPushButton*>("pBApply")->click();
        QCOMPARE(names(), "Bee A");
        // The removal of a profile closes its window, which then renames no other profile.
        const QByteArray data = profiles->save();
        for (const bool isRestored : {false, true}) {
            edit = openEdit("lost");
            if (isRestored)
                profiles->restore(data);
            else
                profiles->removeProfile(0);
            QVERIFY(!edit->isVisible());
            edit->onApply();
            QCOMPARE(names(), isRestored ? "Bee A" : "A");
        }
        Profiles::destroyInstance();
    }
};

QTEST_MAIN(TestProfiles)
#include "tst_profiles.moc"
