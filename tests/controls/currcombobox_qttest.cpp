// The union-currency combo box: its three list formats in table order, the text and rate of
// no selection, choosing an item from the keyboard, and selection by code or country text.
#include "QORKITCurrComboBox.h"
#include "QORKITCurrency.h"
#include "QorkitTestSupport.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace qorkit {
namespace {

QString Q(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

struct FormatRow {
    const char* Name;
    TQOREMUFormatType Format;
    // The item of currency number `n` (1-based) of `currency`.
    QString (*Item)(const TQOREMUCurrency& currency, int n);
};

const FormatRow Formats[] = {
    {"Numbers", efNumber, [](const TQOREMUCurrency&, int n) { return QString::number(n); }},
    {"Codes", efCode, [](const TQOREMUCurrency& c, int) { return Q(c.Code); }},
    {"Countries", efCountry, [](const TQOREMUCurrency& c, int) { return Q(c.Country); }},
};

class EMUComboFormat : public test::GlobalStateTest,
                       public ::testing::WithParamInterface<FormatRow> {
protected:
    void SetUp() override
    {
        GlobalStateTest::SetUp();
        combo_ = std::make_unique<TQOREMUComboBox>();
        combo_->SetEMUFormat(GetParam().Format);
        combo_->show();
    }
    std::unique_ptr<TQOREMUComboBox> combo_;
};

TEST_P(EMUComboFormat, ListsTheTwelveCurrenciesInTableOrder)
{
    const auto table = EMUCurrencies();
    ASSERT_EQ(table.size(), 12u);
    ASSERT_EQ(combo_->count(), 12);
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(combo_->itemText(i), GetParam().Item(table[static_cast<std::size_t>(i)], i + 1))
            << "item " << i;
}

TEST_P(EMUComboFormat, NoCurrencyShowsNothingAndRateZero)
{
    combo_->SetEMU(5);
    combo_->SetEMU(0);
    EXPECT_EQ(combo_->currentText(), QString());
    EXPECT_EQ(combo_->GetDisplayText(), QString());
    EXPECT_EQ(combo_->GetEMURate(), 0);
    EXPECT_EQ(combo_->GetEMUShort(), QString());
    // Also typed into an editable list.
    combo_->SetStyle(csDropDown);
    combo_->SetEMU(3);
    combo_->SetEMU(0);
    EXPECT_EQ(combo_->currentText(), QString());
}

TEST_P(EMUComboFormat, ChoosingAnItemSelectsItsCurrency)
{
    const auto table = EMUCurrencies();
    combo_->SetEMU(10);
    QSignalSpy emu(combo_.get(), &TQOREMUComboBox::emuChanged);
    QSignalSpy rate(combo_.get(), &TQOREMUComboBox::emuRateChanged);
    QSignalSpy changes(combo_.get(), &TQORBaseComboBox::change);
    combo_->setFocus();
    QTest::keyClick(combo_.get(), Qt::Key_Down);
    EXPECT_EQ(combo_->GetEMU(), 11);
    EXPECT_EQ(combo_->GetEMUShort(), QStringLiteral("ESP"));
    EXPECT_EQ(combo_->GetEMULong(), QStringLiteral("Spain, Peseta"));
    EXPECT_EQ(combo_->GetEMURate(), table[10].Rate);
    EXPECT_EQ(combo_->currentText(), GetParam().Item(table[10], 11));
    EXPECT_EQ(emu.count(), 1);
    EXPECT_EQ(rate.count(), 1);
    EXPECT_EQ(changes.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(Formats, EMUComboFormat, ::testing::ValuesIn(Formats),
                         test::RowName<FormatRow>);

class EMUComboBoxTest : public test::GlobalStateTest { };

TEST_F(EMUComboBoxTest, CodeAndCountrySelectAndUnknownTextSelectsNone)
{
    TQOREMUComboBox combo;
    combo.SetEMUShort(QStringLiteral("dem"));
    EXPECT_EQ(combo.GetEMU(), 5);
    EXPECT_EQ(combo.GetEMUShort(), QStringLiteral("DEM"));
    combo.SetEMULong(QStringLiteral("Netherlands, Guilder"));
    EXPECT_EQ(combo.GetEMU(), 9);
    EXPECT_EQ(combo.GetEMURate(), 2.20371L);
    combo.SetEMUShort(QStringLiteral("EUR"));
    EXPECT_EQ(combo.GetEMU(), 0);
    combo.SetEMU(4);
    combo.SetEMULong(QStringLiteral("Atlantis"));
    EXPECT_EQ(combo.GetEMU(), 0);
    combo.SetEMU(13); // beyond the table
    EXPECT_EQ(combo.GetEMU(), 0);
}

TEST_F(EMUComboBoxTest, FormatChangeReloadsAndKeepsTheSelection)
{
    TQOREMUComboBox combo;
    combo.SetEMU(2);
    QSignalSpy format(&combo, &TQOREMUComboBox::emuFormatChanged);
    combo.SetEMUFormat(efCountry);
    combo.SetEMUFormat(efCountry);
    EXPECT_EQ(format.count(), 1);
    EXPECT_EQ(combo.currentText(), QStringLiteral("Belgium, Franc"));
    combo.SetEMUFormat(efCode);
    EXPECT_EQ(combo.currentText(), QStringLiteral("BEF"));
    EXPECT_EQ(combo.GetEMU(), 2);
}

} // namespace
} // namespace qorkit
