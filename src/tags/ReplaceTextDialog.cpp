#include "tags/ReplaceTextDialog.h"

#include "ui_ReplaceTextDialog.h"

#include <QDebug>

ReplaceTextDialog::ReplaceTextDialog(QWidget* parent)
    : QDialog(parent), _ui(std::make_unique<Ui::ReplaceTextDialog>()) {
    _ui->setupUi(this);
    connect(_ui->pBOk, &QPushButton::clicked, this, &ReplaceTextDialog::onClose);
    connect(_ui->pBCancel, &QPushButton::clicked, this, &ReplaceTextDialog::onClose);
}

ReplaceTextDialog::~ReplaceTextDialog() = default;

void ReplaceTextDialog::setOperationType(int type) {
    _operationType = type;
    if (type == Split) {
        setWindowTitle(tr("Split tags by"));
        _ui->labelSrcText->setText(tr("Split by:"));
    } else if (type == Replace) {
        setWindowTitle(tr("Replace tags text"));
        _ui->labelSrcText->setText(tr("Replace text:"));
    }
    _ui->widgetDst->setVisible(type != Split);
}

void ReplaceTextDialog::setSourceText(const QString& text) {
    _ui->lESrcText->setText(text);
    _ui->lESrcText->selectAll();
}

void ReplaceTextDialog::onClose() {
    if (sender() == _ui->pBCancel) {
        close();
        return;
    }
    switch (_operationType) {
    case Replace:
        // Empty texts are reported by the receiver, which then changes nothing.
        emit replaceText(_ui->lESrcText->text(), _ui->lEDstText->text());
        break;
    case Split:
        emit splitText(_ui->lESrcText->text());
        break;
    default:
        qDebug() << "Error, invalid operation type:" << _operationType;
    }
    close();
}
