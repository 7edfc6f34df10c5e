#include "imaging/EffectList.h"
#include "imaging/Profiles.h"
#include "imaging/ProfilesEditWidget.h"
#include "imaging/ProfilesWidget.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QtTest>

#include <memory>

class TestProfiles : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void optionsWarnAndStore();
    void removing_data();
    void removing();
    void selecting();
    void moving_data();
    void moving();
    void currentOfNoneIsAThrowAway();
    void uniqueNames();
    void restoring();
    void restoringOddBytes();
    void chooserShowsTheList();
    void chooserReports();
    void chooserHasOnePage_data();
    void chooserHasOnePage();
    void editRenames();
    void editFollowsItsProfile();
    void editOfALostProfileCloses();

private:
    QStringList names() const {
        QStringList list;
        for (const Profile& profile : _profiles->profiles())
            list.append(profile.name());
        return list;
    }
    QString currentName() const { return _profiles->currentProfile().name(); }
    void add(const QStringList& list, int current = 0);
    void countSignals();
    ProfilesEditWidget* openEdit(const QString& text);

    std::unique_ptr<QWidget> _window;
    Profiles* _profiles = nullptr;
    // The signals of the change protocol, each with the current profile at its time.
    QStringList _changes;
};

void TestProfiles::init() {
    registerEffectListType();
    _window = std::make_unique<QWidget>();
    _profiles = Profiles::instance(_window.get());
    _profiles->setAllowedOptionsKeys({"effectList"});
}

void TestProfiles::cleanup() {
    Profiles::destroyInstance();
    _window.reset();
    _changes.clear();
}

void TestProfiles::add(const QStringList& list, int current) {
    for (const QString& name : list) {
        Profile profile;
        profile.setName(name);
        _profiles->addProfile(profile);
    }
    _profiles->setCurrentProfile(current);
    countSignals();
}

void TestProfiles::countSignals() {
    const auto note = [this](const QString& what) {
        _changes.append(_profiles->isEmpty() ? what : what + ' ' + currentName());
    };
    connect(_profiles, &Profiles::profilesCurrentAboutToChange, this, [note] { note("leaving"); });
    connect(_profiles, &Profiles::profilesHasChanged, this, [note] { note("at"); });
}

ProfilesEditWidget* TestProfiles::openEdit(const QString& text) {
    _profiles->editCurrentProfile(_window.get());
    auto* const edit = _window->findChild<ProfilesEditWidget*>();
    edit->findChild<QLineEdit*>("lEProfileName")->setText(text);
    return edit;
}

void TestProfiles::optionsWarnAndStore() {
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

void TestProfiles::removing_data() {
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QString>("currentAfter");
    QTest::newRow("after the current one moves it all the same") << 1 << 2 << QStringList{"A", "B"} << "A";
    QTest::newRow("the current one") << 1 << 1 << QStringList{"A", "C"} << "A";
    QTest::newRow("before the current one") << 2 << 0 << QStringList{"B", "C"} << "C";
    QTest::newRow("the first, current one") << 0 << 0 << QStringList{"B", "C"} << "B";
    QTest::newRow("below the list") << 1 << -1 << QStringList{"A", "B", "C"} << "B";
    QTest::newRow("behind the list") << 1 << 3 << QStringList{"A", "B", "C"} << "B";
}

void TestProfiles::removing() {
    QFETCH(int, current);
    QFETCH(int, index);
    QFETCH(QString, currentAfter);
    add({"A", "B", "C"}, current);
    const QString before = currentName();
    if (index < 0 || index > 2)
        QTest::ignoreMessage(QtDebugMsg, "Info, unable to remove profile, invalid index.");
    _profiles->removeProfile(index);
    QTEST(names(), "left");
    QCOMPARE(_changes, QStringList({"leaving " + before, "at " + currentAfter}));
}

void TestProfiles::selecting() {
    add({"A", "B", "B"});
    _profiles->setCurrentProfile(2);
    QCOMPARE(_changes, QStringList({"leaving A", "at B"}));
    for (const int index : {-1, 3}) {
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Error, unable to set current profile"));
        _profiles->setCurrentProfile(index);
    }
    QCOMPARE(_profiles->currentIndex(), 2);
    QCOMPARE(_changes.size(), 2);
    const Profile second = _profiles->currentProfile();
    _profiles->setCurrentProfile(second);
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

void TestProfiles::moving_data() {
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("up");
    QTest::addColumn<QStringList>("order");
    QTest::newRow("up") << 2 << true << QStringList{"A", "C", "B"};
    QTest::newRow("down") << 0 << false << QStringList{"B", "A", "C"};
    QTest::newRow("the first up") << 0 << true << QStringList{"A", "B", "C"};
    QTest::newRow("the last down") << 2 << false << QStringList{"A", "B", "C"};
}

void TestProfiles::moving() {
    QFETCH(int, current);
    QFETCH(bool, up);
    QFETCH(QStringList, order);
    add({"A", "B", "C"}, current);
    const QString name = currentName();
    if (names() == order)
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Error, unable to move current profile up: "));
    _profiles->currentProfileMoved(up);
    QCOMPARE(names(), order);
    QCOMPARE(currentName(), name);
    QCOMPARE(_changes, QStringList());
}

void TestProfiles::currentOfNoneIsAThrowAway() {
    QTest::ignoreMessage(QtDebugMsg, "Error, profiles are empty.");
    _profiles->currentProfile().setName("lost");
    QCOMPARE(currentName(), QString());
    QVERIFY(_profiles->isEmpty());
    _profiles->currentProfileMoved(true);
    _profiles->editCurrentProfile(_window.get());
    QVERIFY(!_window->findChild<ProfilesEditWidget*>());
}

void TestProfiles::uniqueNames() {
    add({"Default"});
    QCOMPARE(_profiles->uniqueProfile("Other").name(), QString("Other"));
    const QString name = _profiles->uniqueProfile("default").name();
    QVERIFY2(QRegularExpression("^Empty_\\d\\d\\.\\d\\d\\.\\d{4}T\\d\\d:\\d\\d:\\d\\d\\.\\d{3}$")
                 .match(name)
                 .hasMatch(),
             qPrintable(name));
}

void TestProfiles::restoring() {
    add({"A", "B"}, 1);
    const EffectList chain{{"Blur", {{"value", 3}}}};
    _profiles->currentProfile().setOption("effectList", effectListToVariant(chain));
    const QByteArray data = _profiles->save();
    _profiles->removeProfile(0);
    _changes.clear();
    QTest::ignoreMessage(QtDebugMsg, "Not restoring profiles, data is emtpy.");
    _profiles->restore({});
    QCOMPARE(names(), QStringList({"B"}));
    QCOMPARE(_changes, QStringList());
    _profiles->restore(data);
    QCOMPARE(names(), QStringList({"A", "B"}));
    QCOMPARE(_changes, QStringList({"at B"}));
    QCOMPARE(effectListFromVariant(_profiles->currentProfile().option("effectList")), chain);
    QCOMPARE(_profiles->currentProfile().allowedOptionsKeys(), QStringList({"effectList"}));
    QCOMPARE(_profiles->save(), data);
}

void TestProfiles::restoringOddBytes() {
    add({"A", "B"}, 1);
    const QByteArray data = _profiles->save();
    _profiles->restore(data.chopped(1) + '\x02');
    QCOMPARE(names(), QStringList({"A", "B"}));
    QCOMPARE(currentName(), QString("A"));
    QTest::ignoreMessage(QtDebugMsg, "Error, restore profile data stream status: 1");
    _profiles->restore(data.first(9));
    QVERIFY(_profiles->isEmpty());
    QCOMPARE(_changes, QStringList({"at A", "at"}));
}

// --- chooser -------------------------------------------------------------------------------------

void TestProfiles::chooserShowsTheList() {
    add({"A", "B"}, 1);
    QVERIFY(_profiles->toolButtons().isEmpty());
    ProfilesWidget* const chooser = _profiles->widget(_window.get(), true);
    QCOMPARE(_profiles->widget(_window.get(), false), chooser);
    QCOMPARE(_profiles->toolButtons(), chooser->toolButtons());
    auto* const comboBox = chooser->findChild<QComboBox*>("cBProfilesName_HL");
    QCOMPARE(comboBox->count(), 2);
    QCOMPARE(comboBox->currentText(), QString("B"));
    QCOMPARE(comboBox->toolTip(), QString("Profile: B"));
    QCOMPARE(comboBox->itemData(0, Qt::ToolTipRole).toString(), QString("A"));
    QSignalSpy changed(chooser, &ProfilesWidget::profileChanged);
    add({"C"}, 1);
    _profiles->removeProfile(0);
    _profiles->currentProfileMoved(false);
    QCOMPARE(comboBox->currentText(), QString("B"));
    QCOMPARE(comboBox->itemText(0), QString("C"));
    QCOMPARE(changed.count(), 0);
    _changes.clear();
    comboBox->setCurrentIndex(0);
    QCOMPARE(changed, QList<QList<QVariant>>({{0}}));
    QCOMPARE(currentName(), QString("C"));
}

void TestProfiles::chooserReports() {
    ProfilesWidget* const chooser = _profiles->widget(_window.get(), true);
    const auto click = [chooser](const char* name) { chooser->findChild<QToolButton*>(name)->click(); };
    QSignalSpy wanted(_profiles, &Profiles::profilesNewRequested);
    QSignalSpy edit(_profiles, &Profiles::profilesEditRequested);
    QSignalSpy removal(_profiles, &Profiles::profilesRemoveRequested);
    QSignalSpy move(chooser, &ProfilesWidget::moveCurrentProfile);
    for (const char* button : {"tbProfileMoveUp_HL", "tbProfileMoveDown_HL", "tbProfileRemove_HL"}) {
        QTest::ignoreMessage(QtDebugMsg, "Profiles are empty.");
        click(button);
    }
    QTest::ignoreMessage(QtDebugMsg, "Error, nullptr sender.");
    chooser->onProfileMove();
    QCOMPARE(move.count() + removal.count(), 0);
    add({"A", "B"}, 1);
    click("tbProfileNew_HL");
    click("tbProfileEdit_HL");
    click("tbProfileRemove_HL");
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(edit, QList<QList<QVariant>>({{0}}));
    QCOMPARE(removal, QList<QList<QVariant>>({{0}}));
    _profiles->setCurrentProfile(0);
    click("tbProfileMoveDown_HL");
    QCOMPARE(names(), QStringList({"B", "A"}));
    click("tbProfileMoveUp_HL");
    QCOMPARE(names(), QStringList({"A", "B"}));
    QCOMPARE(move, QList<QList<QVariant>>({{false}, {true}}));
}

void TestProfiles::chooserHasOnePage_data() {
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<QString>("comboBox");
    QTest::addColumn<QString>("firstButton");
    QTest::newRow("one row") << true << "cBProfilesName_HL" << "tbProfileMoveUp_HL";
    QTest::newRow("stacked") << false << "cBProfilesName" << "tbProfileMoveUp";
}

void TestProfiles::chooserHasOnePage() {
    QFETCH(bool, horizontal);
    add({"A", "B"}, 1);
    ProfilesWidget* const chooser = _profiles->widget(_window.get(), horizontal);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(chooser->findChildren<QGroupBox*>().size(), horizontal ? 0 : 1);
    const auto comboBoxes = chooser->findChildren<QComboBox*>();
    QCOMPARE(comboBoxes.size(), 1);
    QTEST(comboBoxes[0]->objectName(), "comboBox");
    QCOMPARE(comboBoxes[0]->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(chooser->findChildren<QToolButton*>().size(), 5);
    QCOMPARE(chooser->toolButtons().size(), 5);
    QTEST(chooser->toolButtons().first()->objectName(), "firstButton");
    chooser->toolButtons().first()->click();
    QCOMPARE(names(), QStringList({"B", "A"}));
}

// --- edit window ---------------------------------------------------------------------------------

void TestProfiles::editRenames() {
    add({"A", "B"}, 1);
    _profiles->currentProfile().setOption("effectList", 1);
    _profiles->editCurrentProfile(_window.get());
    auto* const edit = _window->findChild<ProfilesEditWidget*>();
    QVERIFY(edit->isVisible() && edit->isWindow());
    QCOMPARE(edit->findChild<QLineEdit*>("lEProfileName")->text(), QString("B"));
    QCOMPARE(edit->findChild<QLabel*>("label_DataSize")->text(), QString("Data size: 1"));
    edit->findChild<QPushButton*>("pBClose")->click();
    QVERIFY(!edit->isVisible());
    QCOMPARE(_changes, QStringList());
    QCOMPARE(openEdit("Bee"), edit);
    edit->findChild<QPushButton*>("pBApply")->click();
    QVERIFY(!edit->isVisible());
    QCOMPARE(names(), QStringList({"A", "Bee"}));
    QCOMPARE(_changes, QStringList({"at Bee"}));
}

void TestProfiles::editFollowsItsProfile() {
    add({"A", "B", "C"}, 1);
    ProfilesEditWidget* const edit = openEdit("Bee");
    const QList<Profile> copyHeldElsewhere = _profiles->profiles();
    for (int i = 0; i < 100; ++i)
        _profiles->addProfile(Profile());
    _profiles->currentProfileMoved(true);
    _profiles->setCurrentProfile(2);
    _profiles->removeProfile(2);
    _profiles->currentProfileMoved(true);
    QCOMPARE(names().first(2), QStringList({"A", "B"}));
    edit->findChild<QPushButton*>("pBApply")->click();
    QCOMPARE(names().first(2), QStringList({"A", "Bee"}));
    QCOMPARE(copyHeldElsewhere[1].name(), QString("B"));
}

void TestProfiles::editOfALostProfileCloses() {
    add({"A", "B"}, 1);
    const QByteArray data = _profiles->save();
    ProfilesEditWidget* const edit = openEdit("Bee");
    _profiles->removeProfile(1);
    QVERIFY(!edit->isVisible());
    edit->onApply();
    QCOMPARE(names(), QStringList({"A"}));
    openEdit("Ah");
    _profiles->restore(data);
    QVERIFY(!edit->isVisible());
    edit->onApply();
    QCOMPARE(names(), QStringList({"A", "B"}));
}

QTEST_MAIN(TestProfiles)
#include "tst_profiles.moc"
