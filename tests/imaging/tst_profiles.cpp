#include "imaging/EffectList.h"
#include "imaging/Profiles.h"
#include "imaging/ProfilesEditWidget.h"
#include "imaging/ProfilesWidget.h"
#include "support/Rows.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <memory>

// The list of profiles, its chooser and its edit window.
class TestProfiles : public QObject {
    Q_OBJECT

private slots:
    void init() {
        registerEffectListType();
        _window = std::make_unique<QWidget>();
        _profiles = Profiles::instance(_window.get());
        _profiles->setAllowedOptionsKeys({"effectList"});
    }
    void cleanup() {
        Profiles::destroyInstance();
        _window.reset();
        _changes.clear();
    }

    void chooserReports_data() { addRows<bool, QString>({{"one row", true, "_HL"}, {"stacked", false, ""}}); }
    void chooserReports() {
        const auto& [horizontal, suffix] = row<bool, QString>();
        ProfilesWidget* const chooser = _profiles->widget(_window.get(), horizontal);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(chooser->findChildren<QGroupBox*>().size(), horizontal ? 0 : 1);
        QCOMPARE(chooser->findChildren<QComboBox*>().size(), 1);
        QCOMPARE(chooser->findChildren<QToolButton*>().size(), 5);
        QCOMPARE(chooser->toolButtons().size(), 5);
        const auto click = [&, &end = suffix](const QString& name) {
            chooser->findChild<QToolButton*>("tbProfile" + name + end)->click();
        };
        QStringList told;
        const auto tell = [&told](const QString& what) {
            return [&told, what](int index) { told << what + QString::number(index); };
        };
        connect(_profiles, &Profiles::profilesNewRequested, this, [&] { told << "new"; });
        connect(_profiles, &Profiles::profilesEditRequested, this, tell("edit "));
        connect(_profiles, &Profiles::profilesRemoveRequested, this, tell("remove "));
        connect(chooser, &ProfilesWidget::moveCurrentProfile, this, tell("move up "));
        click("Remove");
        QCOMPARE(told, QStringList());
        add({"A", "B"});
        for (const char* button : {"New", "Edit", "Remove", "MoveDown"})
            click(button);
        QCOMPARE(names(), "B A");
        click("MoveUp");
        QCOMPARE(names(), "A B");
        QCOMPARE(told, QStringList({"new", "edit 0", "remove 0", "move up 0", "move up 1"}));
    }

    void editRenames() {
        add({"A", "B"}, 1);
        _profiles->currentProfile().setOption("effectList", 1);
        ProfilesEditWidget* const edit = openEdit({});
        QVERIFY(edit->isVisible() && edit->isWindow());
        QCOMPARE(edit->findChild<QLabel*>("label_DataSize")->text(), QString("Data size: 1"));
        edit->findChild<QPushButton*>("pBClose")->click();
        QVERIFY(!edit->isVisible());
        QCOMPARE(_changes, QStringList());
        _profiles->editCurrentProfile(_window.get());
        QCOMPARE(edit->findChild<QLineEdit*>("lEProfileName")->text(), QString("B"));
        QCOMPARE(openEdit("Bee"), edit);
        edit->findChild<QPushButton*>("pBApply")->click();
        QVERIFY(!edit->isVisible());
        QCOMPARE(names(), "A Bee");
        QCOMPARE(_changes, QStringList({"at Bee"}));
    }

    void editFollowsItsProfile() {
        add({"A", "B", "C"}, 1);
        ProfilesEditWidget* const edit = openEdit("Bee");
        const QList<Profile> copyHeldElsewhere = _profiles->profiles();
        _profiles->currentProfileMoved(true);
        for (int i = 0; i < 100; ++i)
            _profiles->addProfile(Profile());
        _profiles->removeProfile(2);
        QCOMPARE(names().first(3), "B A");
        edit->findChild<QPushButton*>("pBApply")->click();
        QCOMPARE(names().first(5), "Bee A");
        QCOMPARE(copyHeldElsewhere[1].name(), QString("B"));
    }

    void editOfALostProfileCloses() {
        add({"A", "B"}, 1);
        const QByteArray data = _profiles->save();
        ProfilesEditWidget* const edit = openEdit("Bee");
        _profiles->removeProfile(1);
        QVERIFY(!edit->isVisible());
        edit->onApply();
        QCOMPARE(names(), "A");
        openEdit("Ah");
        _profiles->restore(data);
        QVERIFY(!edit->isVisible());
        edit->onApply();
        QCOMPARE(names(), "A B");
    }

private:
    QString names() const {
        QStringList list;
        for (const Profile& profile : _profiles->profiles())
            list.append(profile.name());
        return list.join(' ');
    }
    QString currentName() const { return _profiles->currentProfile().name(); }

    void add(const QStringList& list, int current = 0) {
        for (const QString& name : list) {
            Profile profile;
            profile.setName(name);
            _profiles->addProfile(profile);
        }
        _profiles->setCurrentProfile(current);
        const auto note = [this](const QString& what) {
            _changes.append(_profiles->isEmpty() ? what : what + ' ' + currentName());
        };
        connect(_profiles, &Profiles::profilesCurrentAboutToChange, this, [note] { note("leaving"); });
        connect(_profiles, &Profiles::profilesHasChanged, this, [note] { note("at"); });
    }

    ProfilesEditWidget* openEdit(const QString& text) {
        _profiles->editCurrentProfile(_window.get());
        auto* const edit = _window->findChild<ProfilesEditWidget*>();
        edit->findChild<QLineEdit*>("lEProfileName")->setText(text);
        return edit;
    }

    std::unique_ptr<QWidget> _window;
    Profiles* _profiles = nullptr;
    // The signals of the change protocol, each with the current profile at its time.
    QStringList _changes;
};

QTEST_MAIN(TestProfiles)
#include "tst_profiles.moc"
