// A unit converter built on the convertor components: pick a quantity, two units and a value;
// the result follows as you type. Units can be hidden from either list's context menu; the
// hidden flags are kept in an INI file through a TQORStoreCtrl and come back at the next start.
#include "GalleryPages.h"
#include "QORKITConvertors.h"
#include "QORKITExceptions.h"
#include "QORKITStrings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <cmath>
#include <vector>

namespace {

using namespace qorkit;

QString SettingsFile()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    QDir().mkpath(dir);
    return QDir(dir).filePath(QStringLiteral("units.ini"));
}

// Plain notation for everyday sizes, scientific notation for the very large and very small.
QString FormatResult(Extended value)
{
    const Extended size = std::fabs(value);
    if (size != 0 && (size >= 1e15L || size < 1e-6L))
        return QString::fromStdString(SciFloat2EStr(value, 12));
    return QString::fromStdString(Float2CEStr2(value, 12));
}

class UnitsPage : public QWidget {
public:
    explicit UnitsPage(QWidget* parent) : QWidget(parent)
    {
        store_ = new TQORStoreCtrl(this);
        store_->SetRegIniType(ritIniFile);
        store_->SetIniFileName(SettingsFile());
        store_->SetSection(QStringLiteral("Units"));

        quantities_ = new QListWidget(this);
        quantities_->setObjectName(QStringLiteral("Quantities"));
        for (int q = 0; q < static_cast<int>(QORConvTypeStr.size()); ++q) {
            const auto quantity = static_cast<TQORConvType>(q);
            TQORBaseConvertor* convertor = CreateConvertor(quantity, this);
            if (convertor == nullptr)
                continue; // a quantity without units
            convertor->SetStoreCtrl(store_);
            convertor->LoadFromStore();
            convertor->SetUnitsOut(1);
            convertors_.push_back(convertor);
            quantities_->addItem(QString::fromStdString(QORConvTypeStr[quantity]));
        }
        quantities_->setMinimumWidth(quantities_->sizeHintForColumn(0) + 24);
        // Tall enough for every quantity, so the list needs no scrolling.
        quantities_->setMinimumHeight(quantities_->sizeHintForRow(0) * quantities_->count()
                                      + 2 * quantities_->frameWidth());

        from_ = MakeUnitBox(QStringLiteral("FromUnits"));
        to_ = MakeUnitBox(QStringLiteral("ToUnits"));
        value_ = new QLineEdit(QStringLiteral("100"), this);
        value_->setObjectName(QStringLiteral("Value"));
        result_ = new QLabel(this);
        result_->setObjectName(QStringLiteral("Result"));
        result_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        result_->setWordWrap(true);
        QFont big = result_->font();
        big.setPointSizeF(big.pointSizeF() * 1.4);
        big.setBold(true);
        result_->setFont(big);
        showHidden_ = new QCheckBox(QStringLiteral("Show hidden units"), this);
        showHidden_->setObjectName(QStringLiteral("ShowHidden"));

        auto* form = new QFormLayout;
        form->addRow(QStringLiteral("From:"), from_);
        form->addRow(QStringLiteral("To:"), to_);
        form->addRow(QStringLiteral("Value:"), value_);
        form->addRow(QStringLiteral("Result:"), result_);
        form->addRow(QString(), showHidden_);
        auto* hint = new QLabel(
            QStringLiteral("Right-click a unit list to hide units you never use, or to show them "
                           "again. Hidden units are kept in %1")
                .arg(QDir::toNativeSeparators(store_->GetIniFileName())),
            this);
        hint->setWordWrap(true);
        auto* right = new QVBoxLayout;
        right->addLayout(form);
        right->addWidget(hint);
        right->addStretch();
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(quantities_);
        layout->addLayout(right, 1);

        QObject::connect(quantities_, &QListWidget::currentRowChanged, this,
                         [this] { FillUnits(); });
        QObject::connect(from_, &QComboBox::currentIndexChanged, this, [this] { Convert(); });
        QObject::connect(to_, &QComboBox::currentIndexChanged, this, [this] { Convert(); });
        QObject::connect(value_, &QLineEdit::textChanged, this, [this] { Convert(); });
        QObject::connect(showHidden_, &QCheckBox::toggled, this, [this] { FillUnits(); });

        // Start on temperature, Celsius to Fahrenheit.
        const int temperature = IndexOf(ectTemperature);
        convertors_[static_cast<std::size_t>(temperature)]->SetUnitsIn(ettCelsius);
        convertors_[static_cast<std::size_t>(temperature)]->SetUnitsOut(ettFahrenheit);
        quantities_->setCurrentRow(temperature);
    }

private:
    QComboBox* MakeUnitBox(const QString& name)
    {
        auto* box = new QComboBox(this);
        box->setObjectName(name);
        box->setMinimumContentsLength(28);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setContextMenuPolicy(Qt::CustomContextMenu);
        QObject::connect(box, &QComboBox::customContextMenuRequested, this,
                         [this, box](const QPoint& at) { ShowUnitMenu(box, at); });
        return box;
    }

    int IndexOf(TQORConvType quantity) const
    {
        for (std::size_t i = 0; i < convertors_.size(); ++i) {
            if (convertors_[i]->GetQuantity() == quantity)
                return static_cast<int>(i);
        }
        return 0;
    }

    TQORBaseConvertor* Current() const
    {
        const int row = quantities_->currentRow();
        return row >= 0 && row < static_cast<int>(convertors_.size())
            ? convertors_[static_cast<std::size_t>(row)]
            : nullptr;
    }

    // Refills both lists from the convertor, keeping its units where they are still listed.
    void FillUnits()
    {
        TQORBaseConvertor* convertor = Current();
        if (convertor == nullptr)
            return;
        const TQORUnitList units = convertor->UnitList(showHidden_->isChecked());
        units.FillComboBox(from_, convertor->GetUnitsIn());
        units.FillComboBox(to_, convertor->GetUnitsOut());
        for (QComboBox* box : {from_, to_}) {
            for (int i = 0; i < box->count(); ++i) {
                if (convertor->IsHidden(box->itemData(i).toInt()))
                    box->setItemData(i, QColor(Qt::gray), Qt::ForegroundRole);
            }
        }
        Convert();
    }

    void Convert()
    {
        TQORBaseConvertor* convertor = Current();
        if (convertor == nullptr || from_->count() == 0) {
            result_->setText(QStringLiteral("Every unit is hidden: right-click to show them."));
            return;
        }
        Extended value = 0;
        if (!TryStr2Float(value_->text().toStdString(), value)) {
            result_->setText(QStringLiteral("Type a number"));
            return;
        }
        // Each setter converts and may raise (below absolute zero, a zero fuel figure); the
        // final conversion decides what is shown.
        const auto quietly = [](auto set) {
            try {
                set();
            } catch (const Exception&) { }
        };
        quietly([&] { convertor->SetUnitsIn(from_->currentData().toInt()); });
        quietly([&] { convertor->SetUnitsOut(to_->currentData().toInt()); });
        quietly([&] { convertor->SetValueIn(value); });
        try {
            convertor->DoConversion();
            result_->setText(QStringLiteral("%1 %2").arg(FormatResult(convertor->GetValueOut()),
                                                         to_->currentText()));
        } catch (const Exception& error) {
            result_->setText(QString::fromStdString(error.what()));
        }
    }

    void ShowUnitMenu(QComboBox* box, const QPoint& at)
    {
        TQORBaseConvertor* convertor = Current();
        if (convertor == nullptr)
            return;
        QMenu menu(this);
        const int unit = box->currentData().toInt();
        if (box->count() > 0 && !convertor->IsHidden(unit)) {
            QAction* hide = menu.addAction(QStringLiteral("Hide \"%1\"").arg(box->currentText()));
            hide->setEnabled(convertor->UnitList(false).Count() > 1);
            QObject::connect(hide, &QAction::triggered, this,
                             [this, convertor, unit] { Change([=] { convertor->Hide(unit); }); });
        }
        QMenu* shows = menu.addMenu(QStringLiteral("Show Again"));
        const TQORUnitList all = convertor->UnitList(true);
        for (const TQORUnitItem& item : all) {
            if (!convertor->IsHidden(item.Ordinal))
                continue;
            const int ordinal = item.Ordinal;
            QObject::connect(
                shows->addAction(item.Name), &QAction::triggered, this,
                [this, convertor, ordinal] { Change([=] { convertor->UnHide(ordinal); }); });
        }
        shows->setEnabled(!shows->isEmpty());
        QAction* all_ = menu.addAction(QStringLiteral("Show All Units"));
        all_->setEnabled(convertor->GetNoHiddenUnits() > 0);
        QObject::connect(all_, &QAction::triggered, this,
                         [this, convertor] { Change([=] { convertor->UnHideAll(); }); });
        menu.exec(box->mapToGlobal(at));
    }

    // Applies a change of the hidden flags, saves them and refreshes the lists.
    template<typename F> void Change(F change)
    {
        change();
        if (TQORBaseConvertor* convertor = Current())
            convertor->SaveToStore();
        FillUnits();
    }

    TQORStoreCtrl* store_ = nullptr;
    std::vector<TQORBaseConvertor*> convertors_;
    QListWidget* quantities_ = nullptr;
    QComboBox* from_ = nullptr;
    QComboBox* to_ = nullptr;
    QLineEdit* value_ = nullptr;
    QLabel* result_ = nullptr;
    QCheckBox* showHidden_ = nullptr;
};

QWidget* MakeUnitsPage(QWidget* parent) { return new UnitsPage(parent); }

const bool registered = gallery::RegisterPage({QStringLiteral("Units"), 40, MakeUnitsPage, {}});

} // namespace
