#include "imaging/ProfilesEditWidget.h"

#include "imaging/Profile.h"
#include "ui_ProfilesEditWidget.h"

#include <QShortcut>

ProfilesEditWidget::ProfilesEditWidget(QWidget* parent)
    : QWidget(parent), _ui(std::make_unique<Ui::ProfilesEditWidget>()) {
    _ui->setupUi(this);
    connect(_ui->pBApply, &QPushButton::clicked, this, &ProfilesEditWidget::onApply);
    connect(_ui->pBClose, &QPushButton::clicked, this, &QWidget::close);
    connect(_ui->lEProfileName, &QLineEdit::returnPressed, this, &ProfilesEditWidget::onApply);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

ProfilesEditWidget::~ProfilesEditWidget() = default;

void ProfilesEditWidget::setProfile(Profile* profile) {
    _profile = profile;
    _ui->lEProfileName->setText(profile->name());
    _ui->lEProfileName->selectAll();
    _ui->lEProfileName->setFocus();
    _ui->label_DataSize->setText(tr("Data size: %1").arg(profile->optionsCount()));
}

void ProfilesEditWidget::onApply() {
    // Makes Profiles store the rows and renew the pointer to the profile.
    emit aboutToApply();
    // The profile was removed in the meantime.
    if (!_profile) {
        close();
        return;
    }
    _profile->setName(_ui->lEProfileName->text());
    close();
    emit profilesUpdated();
}
