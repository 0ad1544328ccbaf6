// A dialog with a calculator edit for an amount, a label that follows the edit's signals, and
// the calculator's settings kept in an INI file.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QORKITCalcEdit.h>
#include <QORKITCalculator.h>
#include <QORKITStoreCtrl.h>
#include <QVBoxLayout>

class AmountForm : public QDialog {
public:
    // iniFile: where the calculator keeps its settings, e.g.
    // QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/amounts.ini".
    explicit AmountForm(const QString& iniFile, QWidget* parent = nullptr) : QDialog(parent)
    {
        amount_ = new qorkit::TQORCalcEdit(this);
        // Enumeration-valued properties take their names, as in Qt Designer.
        amount_->setProperty("ThousandSeparators", QStringLiteral("tsSpace"));
        amount_->SetDecimalPlaces(2);
        amount_->GetFloatEdit()->SetBoundLower(0);
        amount_->GetFloatEdit()->SetBoundUpper(1000000);
        auto* status = new QLabel(this);
        status->setObjectName(QStringLiteral("status"));
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(amount_);
        layout->addWidget(status);

        // The edit's events are Qt signals: change after the value changed, validationError
        // when typed text was refused (the old value stays), calcClickEnd after the calculator
        // closed (the value it hands back can still be changed through the pointer).
        connect(amount_, &qorkit::TQORCalcEdit::change, this, [this, status] {
            status->setText(tr("Amount: %1").arg(static_cast<double>(amount_->GetValue())));
        });
        connect(amount_, &qorkit::TQORCalcEdit::validationError, status, &QLabel::setText);
        connect(amount_, &qorkit::TQORCalcEdit::calcClickEnd, this,
                [status](qorkit::Extended*, bool accepted) {
                    if (!accepted)
                        status->setText(tr("Calculator cancelled"));
                });

        // The calculator the edit opens reads its settings (precedence, display font, memory
        // ...) from an INI file through a settings store, and writes them back at the end.
        store_ = new qorkit::TQORStoreCtrl(this);
        store_->SetRegIniType(qorkit::ritIniFile);
        store_->SetIniFileName(iniFile);
        calculator_ = new qorkit::TQORCalculator(this);
        calculator_->SetStoreCtrl(store_);
        calculator_->SetStoreSection(QStringLiteral("Calculator"));
        calculator_->LoadFromStore();
        amount_->SetCalculatorControl(calculator_);
    }
    ~AmountForm() override { calculator_->SaveToStore(); }

    qorkit::TQORCalculator* Calculator() const { return calculator_; }

private:
    qorkit::TQORCalcEdit* amount_;
    qorkit::TQORStoreCtrl* store_;
    qorkit::TQORCalculator* calculator_;
};
