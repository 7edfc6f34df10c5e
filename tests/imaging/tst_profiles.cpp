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
#include <QRegularExpression>
#include <QSignalSpy>
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

    void optionsWarnAndStore() {
        Profile profile;
        QTest::ignoreMessage(QtDebugMsg, "Info, profile dont have value under the key: a");
        QVERIFY(!profile.option("a").isValid());
        QTest::ignoreMessage(QtDebugMsg, "Info, _allowedOptionsKeys is empty");
        profile.setOption("a", 1);
        profile.setAllowedOptionsKeys({"A"});
        QTest::ignoreMessage(QtDebugMsg, "Error, setting profile option not in allowed key list for key: a");
        QTest::ignoreMessage(QtDebugMsg, "Info, profile option already has value under the key: a");
        profile.setOption("a", 2);
        QCOMPARE(profile.option("a"), QVariant(2));
        QCOMPARE(profile.optionsCount(), 1);
    }

    void removing_data() {
        addRows<int, int, QString, QString>({
            {"after the current one moves it all the same", 1, 2, "A B", "A"},
            {"the current one", 1, 1, "A C", "A"},
            {"before the current one", 2, 0, "B C", "C"},
            {"the first, current one", 0, 0, "B C", "B"},
            {"below the list", 1, -1, "A B C", "B"},
            {"behind the list", 1, 3, "A B C", "B"},
        });
    }
    void removing() {
        const auto& [current, index, left, currentAfter] = row<int, int, QString, QString>();
        add({"A", "B", "C"}, current);
        const QString before = currentName();
        if (index < 0 || index > 2)
            QTest::ignoreMessage(QtDebugMsg, "Info, unable to remove profile, invalid index.");
        _profiles->removeProfile(index);
        QCOMPARE(names(), left);
        QCOMPARE(_changes, QStringList({"leaving " + before, "at " + currentAfter}));
    }

    void selecting() {
        add({"A", "B", "B"});
        _profiles->setCurrentProfile(2);
        QCOMPARE(_changes, QStringList({"leaving A", "at B"}));
        for (const int index : {-1, 3}) {
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Error, unable to set current profile"));
            _profiles->setCurrentProfile(index);
        }
        QCOMPARE(_profiles->currentIndex(), 2);
        QCOMPARE(_changes.size(), 2);
        // By value the first equal one is meant.
        _profiles->setCurrentProfile(Profile(_profiles->currentProfile()));
        QCOMPARE(_profiles->currentIndex(), 1);
        _profiles->currentProfile().setOption("effectList", 5);
        const Profile changed = _profiles->currentProfile();
        _profiles->setCurrentProfile(0);
        _profiles->setCurrentProfile(changed);
        QCOMPARE(_profiles->currentIndex(), 1);
        Profile stranger;
        stranger.setName("Z");
        QTest::ignoreMessage(QtDebugMsg, "Error, failed to set profile to: Z");
        _profiles->setCurrentProfile(stranger);
        QCOMPARE(_profiles->currentIndex(), 1);
    }

    void moving_data() {
        addRows<int, bool, QString>({
            {"up", 2, true, "A C B"},
            {"down", 0, false, "B A C"},
            {"the first up", 0, true, "A B C"},
            {"the last down", 2, false, "A B C"},
        });
    }
    void moving() {
        const auto& [current, up, order] = row<int, bool, QString>();
        add({"A", "B", "C"}, current);
        const QString name = currentName();
        if (names() == order)
            QTest::ignoreMessage(QtDebugMsg,
                                 QRegularExpression("^Error, unable to move current profile up: "));
        _profiles->currentProfileMoved(up);
        QCOMPARE(names(), order);
        QCOMPARE(currentName(), name);
        QCOMPARE(_changes, QStringList());
    }

    void currentOfNoneIsAThrowAway() {
        QTest::ignoreMessage(QtDebugMsg, "Error, profiles are empty.");
        _profiles->currentProfile().setName("lost");
        QCOMPARE(currentName(), QString());
        _profiles->currentProfileMoved(true);
        _profiles->editCurrentProfile(_window.get());
        QVERIFY(!_window->findChild<ProfilesEditWidget*>());
    }

    void uniqueNames() {
        add({"Default"});
        QCOMPARE(_profiles->uniqueProfile("Other").name(), QString("Other"));
        const QString name = _profiles->uniqueProfile("default").name();
        const QRegularExpression pattern(R"(^Empty_\d\d\.\d\d\.\d{4}T\d\d:\d\d:\d\d\.\d{3}$)");
        QVERIFY2(pattern.match(name).hasMatch(), qPrintable(name));
    }

    void restoring() {
        add({"A", "B"}, 1);
        const EffectList chain{{"Blur", {{"value", 3}}}};
        _profiles->currentProfile().setOption("effectList", effectListToVariant(chain));
        const QByteArray data = _profiles->save();
        _profiles->removeProfile(0);
        _changes.clear();
        QTest::ignoreMessage(QtDebugMsg, "Not restoring profiles, data is emtpy.");
        _profiles->restore({});
        QCOMPARE(names(), "B");
        _profiles->restore(data);
        QCOMPARE(names(), "A B");
        QCOMPARE(_changes, QStringList({"at B"}));
        QCOMPARE(effectListFromVariant(_profiles->currentProfile().option("effectList")), chain);
        QCOMPARE(_profiles->currentProfile().allowedOptionsKeys(), QStringList({"effectList"}));
        QCOMPARE(_profiles->save(), data);
        // A current index behind the list, then a stream that is cut.
        _profiles->restore(data.chopped(1) + '\x02');
        QCOMPARE(names() + currentName(), "A BA");
        QTest::ignoreMessage(QtDebugMsg, "Error, restore profile data stream status: 1");
        _profiles->restore(data.first(9));
        QVERIFY(_profiles->isEmpty());
    }

    void chooserShowsTheList() {
        add({"A", "B"}, 1);
        QVERIFY(_profiles->toolButtons().isEmpty());
        ProfilesWidget* const chooser = _profiles->widget(_window.get(), true);
        QCOMPARE(_profiles->widget(_window.get(), false), chooser);
        QCOMPARE(_profiles->toolButtons(), chooser->toolButtons());
        auto* const comboBox = chooser->findChild<QComboBox*>("cBProfilesName_HL");
        QCOMPARE(comboBox->count(), 2);
        QCOMPARE(comboBox->toolTip(), QString("Profile: B"));
        QCOMPARE(comboBox->itemData(0, Qt::ToolTipRole).toString(), QString("A"));
        QSignalSpy changed(chooser, &ProfilesWidget::profileChanged);
        add({"C"}, 1);
        _profiles->removeProfile(0);
        _profiles->currentProfileMoved(false);
        QCOMPARE(comboBox->currentText(), QString("B"));
        QCOMPARE(comboBox->itemText(0), QString("C"));
        QCOMPARE(changed.count(), 0);
        comboBox->setCurrentIndex(0);
        QCOMPARE(changed, QList<QList<QVariant>>({{0}}));
        QCOMPARE(currentName(), QString("C"));
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
        for (const char* button : {"MoveUp", "MoveDown", "Remove"}) {
            QTest::ignoreMessage(QtDebugMsg, "Profiles are empty.");
            click(button);
        }
        QTest::ignoreMessage(QtDebugMsg, "Error, nullptr sender.");
        chooser->onProfileMove();
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
