// The base controls: float edits in their display styles, a spin edit, a combo box, panels and
// the calculator glyphs. Each edit reports its value live in the label beside it.
#include "GalleryPages.h"
#include "QORKITBaseControls.h"
#include "QORKITFloatEdit.h"
#include "QORKITGlyphs.h"
#include "QORKITStrings.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

namespace {

using namespace qorkit;

struct EditSample {
    const char* caption;
    Extended value;
    std::function<void(TQORFloatEdit&)> setup;
};

// Shows what the edit holds: its value at full precision, or "null".
void ShowValue(TQORFloatEdit* edit, QLabel* label)
{
    const QString text = edit->GetNull()
        ? QStringLiteral("null")
        : QString::fromStdString(Float2EStr2(edit->GetValue(), 10));
    label->setText(QStringLiteral("= %1").arg(text));
}

QWidget* MakeEditGroup(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("TQORFloatEdit"), parent);
    auto* grid = new QGridLayout(group);
    const EditSample samples[] = {
        {"Two decimals, grouped", 1234567.891L, [](TQORFloatEdit&) {}},
        {"Lakh grouping", 1234567.891L, [](TQORFloatEdit& e) { e.SetLakhFormatting(true); }},
        {"Custom separators", 1234567.891L,
         [](TQORFloatEdit& e) {
             e.SetCustomDecimal(',');
             e.SetCustomThousands(' ');
             e.SetCustomSeparators(true);
         }},
        {"Negative in brackets", -42.5L, [](TQORFloatEdit& e) { e.SetNegAsBrackets(true); }},
        {"Zero padding to 10", 12.5L,
         [](TQORFloatEdit& e) {
             e.SetMaxLength(10);
             e.SetZeroPad(true);
         }},
        {"Six decimals, trimmed", 3.25L,
         [](TQORFloatEdit& e) {
             e.SetDecimalPlaces(6);
             e.SetTrimTrailingZeroes(true);
         }},
        {"Null, typed null allowed", 0,
         [](TQORFloatEdit& e) {
             e.SetNullStr(QStringLiteral("(none)"));
             e.SetAllowKbdNull(true);
             e.SetNull(true);
         }},
        {"Bounds 0 to 100", 50,
         [](TQORFloatEdit& e) {
             e.SetBoundLower(0);
             e.SetBoundUpper(100);
         }},
        {"Read-only", 2.0L / 3.0L, [](TQORFloatEdit& e) { e.SetReadOnly(true); }},
    };
    int row = 0;
    for (const auto& sample : samples) {
        auto* edit = new TQORFloatEdit(group);
        edit->setObjectName(QStringLiteral("FloatEdit%1").arg(row));
        edit->setMinimumWidth(140);
        edit->SetValue(sample.value);
        sample.setup(*edit);
        auto* value = new QLabel(group);
        value->setMinimumWidth(150);
        ShowValue(edit, value);
        edit->SetOnChange([edit, value](QObject*) { ShowValue(edit, value); });
        edit->SetOnNull([edit, value](QObject*) { ShowValue(edit, value); });
        edit->SetOnValidationError([value](QObject*, const QString& message) {
            value->setText(QStringLiteral("refused: %1").arg(message));
        });
        grid->addWidget(new QLabel(QString::fromUtf8(sample.caption), group), row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(value, row, 2);
        ++row;
    }
    return group;
}

class CurrencyNames : public TQORBaseComboBox {
public:
    using TQORBaseComboBox::TQORBaseComboBox;

protected:
    QStringList ListItems() const override
    {
        return {QStringLiteral("Decimal places"), QStringLiteral("Significant digits"),
                QStringLiteral("Scientific")};
    }
};

QWidget* MakeOtherControls(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("Spin edit, combo box, panel"), parent);
    auto* form = new QFormLayout(group);

    auto* spin = new TQORFloatSpinEdit(group);
    spin->SetMin(0);
    spin->SetMax(10);
    spin->SetStep(3);
    spin->SetWrap(true);
    spin->SetValue(9);
    auto* spinValue = new QLabel(group);
    const auto showSpin = [spin, spinValue](QObject*) {
        spinValue->setText(QStringLiteral("= %1 (0..10, step 3, wraps)")
                               .arg(static_cast<double>(spin->GetValue())));
    };
    showSpin(nullptr);
    spin->SetOnAfterUpClick(showSpin);
    spin->SetOnAfterDownClick(showSpin);
    auto* spinRow = new QHBoxLayout;
    spinRow->addWidget(spin);
    spinRow->addWidget(spinValue);
    form->addRow(QStringLiteral("TQORFloatSpinEdit"), spinRow);

    auto* combo = new CurrencyNames(group);
    combo->LoadItems();
    combo->SetItemIndex(0);
    form->addRow(QStringLiteral("TQORBaseComboBox"), combo);

    auto* panel = new TQORBasePanel(group);
    panel->SetCaption(QString::fromStdString(qorkit::Float2CEStr(1234.56L, 2)));
    panel->SetAlignment(Qt::AlignRight | Qt::AlignVCenter);
    panel->SetColor(QColor(0xE8, 0xF0, 0xE8));
    panel->setMinimumHeight(24);
    form->addRow(QStringLiteral("TQORBasePanel"), panel);
    return group;
}

QWidget* MakeGlyphs(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("Glyphs"), parent);
    auto* grid = new QGridLayout(group);
    for (int i = 0; i < QORGlyphCount; ++i) {
        const auto glyph = static_cast<TQORGlyph>(i);
        auto* button = new QToolButton(group);
        button->setIcon(QORGlyphIcon(glyph));
        button->setIconSize(QSize(16, 16));
        button->setFixedSize(30, 22);
        button->setToolTip(QString::fromLatin1(QORGlyphName(glyph).data()));
        auto* big = new QLabel(group);
        big->setPixmap(QORGlyphPixmap(glyph, QSize(32, 32)));
        auto* name = new QLabel(QString::fromLatin1(QORGlyphName(glyph).data()), group);
        const int column = (i % 6) * 3;
        const int row = i / 6;
        grid->addWidget(button, row, column);
        grid->addWidget(big, row, column + 1);
        grid->addWidget(name, row, column + 2);
    }
    return group;
}

QWidget* MakeControlsPage(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* layout = new QVBoxLayout(page);
    auto* top = new QHBoxLayout;
    top->addWidget(MakeEditGroup(page));
    top->addWidget(MakeOtherControls(page), 0, Qt::AlignTop);
    layout->addLayout(top);
    layout->addWidget(MakeGlyphs(page));
    layout->addStretch();
    return page;
}

const bool registered
    = gallery::RegisterPage({QStringLiteral("Base controls"), 10, MakeControlsPage, {}});

} // namespace
