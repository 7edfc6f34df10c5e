#include "imaging/ProfilesWidget.h"

#include "app/services/PlainText.h"
#include "imaging/Profile.h"
#include "ui_ProfilesWidget.h"

#include <QDebug>
#include <QSignalBlocker>

ProfilesWidget::ProfilesWidget(QWidget* parent, bool horizontal)
    : QWidget(parent), _ui(std::make_unique<Ui::ProfilesWidget>()), _horizontal(horizontal) {
    _ui->setupUi(this);
    connectPages();
    dropUnusedPage();
    activeComboBox()->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

ProfilesWidget::~ProfilesWidget() = default;

void ProfilesWidget::connectPages() {
    for (const QComboBox* comboBox : {_ui->cBProfilesName, _ui->cBProfilesName_HL})
        connect(comboBox, &QComboBox::currentIndexChanged, this, &ProfilesWidget::onProfileChanged);
    for (const QToolButton* button : {_ui->tbProfileNew, _ui->tbProfileNew_HL})
        connect(button, &QToolButton::clicked, this, &ProfilesWidget::onProfileNew);
    for (const QToolButton* button : {_ui->tbProfileEdit, _ui->tbProfileEdit_HL})
        connect(button, &QToolButton::clicked, this, &ProfilesWidget::onProfileEdit);
    for (const QToolButton* button : {_ui->tbProfileRemove, _ui->tbProfileRemove_HL})
        connect(button, &QToolButton::clicked, this, &ProfilesWidget::onProfileRemove);
    for (const QToolButton* button :
         {_ui->tbProfileMoveUp, _ui->tbProfileMoveDown, _ui->tbProfileMoveUp_HL, _ui->tbProfileMoveDown_HL})
        connect(button, &QToolButton::clicked, this, &ProfilesWidget::onProfileMove);
}

// The pages are named after their inner layouts: the one-row form is page_VerticalLayout.
void ProfilesWidget::dropUnusedPage() {
    QWidget* const used = _horizontal ? _ui->page_VerticalLayout : _ui->page_HorizontalLayout;
    QWidget* const unused = _horizontal ? _ui->page_HorizontalLayout : _ui->page_VerticalLayout;
    _ui->stackedWidget->setCurrentWidget(used);
    _ui->stackedWidget->removeWidget(unused);
    unused->deleteLater();
}

QComboBox* ProfilesWidget::activeComboBox() const {
    return _horizontal ? _ui->cBProfilesName_HL : _ui->cBProfilesName;
}

QList<QAbstractButton*> ProfilesWidget::toolButtons() const {
    if (_horizontal)
        return {_ui->tbProfileMoveUp_HL, _ui->tbProfileMoveDown_HL, _ui->tbProfileNew_HL,
                _ui->tbProfileEdit_HL, _ui->tbProfileRemove_HL};
    return {_ui->tbProfileMoveUp, _ui->tbProfileMoveDown, _ui->tbProfileNew, _ui->tbProfileEdit,
            _ui->tbProfileRemove};
}

void ProfilesWidget::setProfiles(const QList<Profile>& profiles, int current) {
    QComboBox* const comboBox = activeComboBox();
    // Blocked, as filling the box would change the current profile.
    const QSignalBlocker blocker(comboBox);
    comboBox->clear();
    for (const Profile& profile : profiles) {
        comboBox->addItem(profile.name());
        // Long names are cut in the box.
        comboBox->setItemData(comboBox->count() - 1, plainToolTip(profile.name()), Qt::ToolTipRole);
    }
    comboBox->setCurrentIndex(current);
    comboBox->setToolTip(plainToolTip(tr("Profile: %1").arg(comboBox->currentText())));
}

void ProfilesWidget::onProfileChanged(int index) {
    emit profileChanged(index);
}

void ProfilesWidget::onProfileNew() {
    emit profileNew();
}

void ProfilesWidget::onProfileEdit() {
    emit profileEdit(activeComboBox()->currentIndex());
}

void ProfilesWidget::onProfileRemove() {
    if (activeComboBox()->count() == 0) {
        qDebug() << "Profiles are empty.";
        return;
    }
    emit profileRemove(activeComboBox()->currentIndex());
}

void ProfilesWidget::onProfileMove() {
    const QObject* const button = sender();
    if (!button) {
        qDebug() << "Error, nullptr sender.";
        return;
    }
    const bool up = button == _ui->tbProfileMoveUp || button == _ui->tbProfileMoveUp_HL;
    const bool down = button == _ui->tbProfileMoveDown || button == _ui->tbProfileMoveDown_HL;
    if (!up && !down) {
        qDebug() << "Error, invalid sender.";
        return;
    }
    const bool oneRow = button == _ui->tbProfileMoveUp_HL || button == _ui->tbProfileMoveDown_HL;
    if ((oneRow ? _ui->cBProfilesName_HL : _ui->cBProfilesName)->count() == 0) {
        qDebug() << "Profiles are empty.";
        return;
    }
    emit moveCurrentProfile(up);
}
