#include "QORKITFloatCalcForm.h"

#include "QORKITSettings.h"
#include "QORKITTapeModel.h"
#include "QORKIT_RS_Dialogs.h"

#include <QLineEdit>
#include <QPalette>

namespace qorkit {

void EnterDigit(TQORCalcEngine& engine, int digit)
{
    engine.InputDigit(static_cast<std::int8_t>(digit));
}

namespace {

using TFloatKey = TQORKeyDef<TQORFloatCalcForm, TQORCalcEngine>;

const TFloatKey FloatKeys[] = {
    {&TQORFloatCalcForm::PointBtn,
     {"PointBtn", ".", nullptr, -1, nullptr},
     [](TQORCalcEngine& e) { e.InputDecimalSeparator(); }},
    {&TQORFloatCalcForm::ChangeSignBtn,
     {"ChangeSignBtn", nullptr, nullptr, glChangeSign, rsChangeSignHint},
     [](TQORCalcEngine& e) { e.DoChangeSign(); }},
    {&TQORFloatCalcForm::ClearBtn,
     {"ClearBtn", nullptr, rsCKey, -1, rsCHint},
     [](TQORCalcEngine& e) { e.ClearDisplay(); }},
    {&TQORFloatCalcForm::PowerBtn,
     {"PowerBtn", nullptr, nullptr, glPower, rsPowerHint},
     [](TQORCalcEngine& e) { e.DoPower(); }},
    {&TQORFloatCalcForm::PiBtn,
     {"PiBtn", nullptr, nullptr, glPi, rsPiHint},
     [](TQORCalcEngine& e) { e.InputPi(); }},
    {&TQORFloatCalcForm::EBtn,
     {"EBtn", "e", nullptr, -1, rsEHint},
     [](TQORCalcEngine& e) { e.InputNaturalConstant(); }},
    {&TQORFloatCalcForm::SquareBtn,
     {"SquareBtn", nullptr, nullptr, glSquare, rsSquareHint},
     [](TQORCalcEngine& e) { e.DoSquare(); }},
    {&TQORFloatCalcForm::SqRootBtn,
     {"SqRootBtn", nullptr, nullptr, glSqRoot, rsSqRootHint},
     [](TQORCalcEngine& e) { e.DoSqRoot(); }},
    {&TQORFloatCalcForm::InvertBtn,
     {"InvertBtn", nullptr, nullptr, glInvert, rsInvertHint},
     [](TQORCalcEngine& e) { e.DoInvert(); }},
    {&TQORFloatCalcForm::LogBtn,
     {"LogBtn", nullptr, rsLogKey, -1, rsLogHint},
     [](TQORCalcEngine& e) { e.DoLog(); }},
    {&TQORFloatCalcForm::LNBtn,
     {"LNBtn", nullptr, rsLnKey, -1, rsLnHint},
     [](TQORCalcEngine& e) { e.DoLN(); }},
    {&TQORFloatCalcForm::SinBtn,
     {"SinBtn", nullptr, rsSinKey, -1, rsSinHint},
     [](TQORCalcEngine& e) { e.DoSin(); }},
    {&TQORFloatCalcForm::CosBtn,
     {"CosBtn", nullptr, rsCosKey, -1, rsCosHint},
     [](TQORCalcEngine& e) { e.DoCos(); }},
    {&TQORFloatCalcForm::TanBtn,
     {"TanBtn", nullptr, rsTanKey, -1, rsTanHint},
     [](TQORCalcEngine& e) { e.DoTan(); }},
    {&TQORFloatCalcForm::InvBtn,
     {"InvBtn", nullptr, rsInvAbbrev, -1, rsInvHint},
     [](TQORCalcEngine& e) { e.DoInv(); }},
    {&TQORFloatCalcForm::PercentBtn,
     {"PercentBtn", "%", nullptr, -1, rsPercentHint},
     [](TQORCalcEngine& e) { e.DoPercent(); }},
    {&TQORFloatCalcForm::RadBtn,
     {"RadBtn", nullptr, rsRadAbbrev, -1, rsRadHint},
     [](TQORCalcEngine& e) { e.ToggleAngleMode(); }},
};

using Float = TQORFloatCalcForm;

// Letters and signs both floating-point calculators take.
const TQORCharKey<Float> FloatCharKeys[] = {
    {'A', &Float::AllClearBtn},   {'C', &Float::ClearBtn},    {'I', &Float::InvertBtn},
    {'P', &Float::PiBtn},         {'R', &Float::SqRootBtn},   {'^', &Float::PowerBtn},
    {'_', &Float::ChangeSignBtn}, {'X', &Float::MultiplyBtn},
};

const struct {
    TQORKeyMember<Float> Key;
    TQORToggleLabel Label;
} ToggleLabels[] = {
    {&Float::SinBtn, {rsSinKey, nullptr, true, -1, -1}},
    {&Float::CosBtn, {rsCosKey, nullptr, true, -1, -1}},
    {&Float::TanBtn, {rsTanKey, nullptr, true, -1, -1}},
    {&Float::LogBtn, {rsLogKey, rs10toXPaper, false, -1, -1}},
    {&Float::LNBtn, {rsLnKey, rsEtoXPaper, false, -1, -1}},
    {&Float::SquareBtn, {nullptr, nullptr, false, glSquare, glSqRoot}},
    {&Float::SqRootBtn, {nullptr, nullptr, false, glSqRoot, glSquare}},
};

} // namespace

TQORFloatCalcForm::TQORFloatCalcForm(QWidget* parent, TQORFormGeometry geometry)
    : TQORCalcFormBase(parent, geometry,
                       [] {
                           QFont font(QStringLiteral("Arial"));
                           font.setPixelSize(11);
                           font.setBold(true);
                           return font;
                       }()),
      engineObject_(new TQORCalcEngineObject(this)), engine_(engineObject_->GetEngine())
{
    engineObject_->setObjectName(QStringLiteral("EngineObject"));
    AddCommonKeys(engine_);
    AddKeys(*this, FloatKeys, engine_);
    AddCharKeys(*this, FloatCharKeys);
    InvBtn->setCheckable(true);
    // The key shows the engine's toggle, not its own checked state.
    connect(InvBtn, &QToolButton::clicked, this, [this] { ShowToggles(); });

    DPSpin = new QSpinBox(KeyPanel);
    DPSpin->setObjectName(QStringLiteral("DPSpin"));
    DPSpin->setRange(0, 18);
    DPSpin->setToolTip(QString::fromStdString(rsDecimalsHint()));
    connect(DPSpin, &QSpinBox::valueChanged, this, [this](int value) {
        engine_.SetDecimalPlaces(static_cast<std::uint8_t>(value));
        RefreshDisplays();
    });

    ApplyDispFont(QString::fromStdString(QORCalcDispFont));
    const TQORCalcEngineObject* front = engineObject_;
    connect(front, &TQORCalcEngineObject::displayChange, this,
            [this] { SetPanelText(ValueDisplay, engineObject_->GetDisplayText()); });
    connect(front, &TQORCalcEngineObject::memoryChange, this,
            [this] { SetPanelText(MemoryDisplay, engineObject_->GetMemoryText()); });
    connect(front, &TQORCalcEngineObject::decimalPlacesChange, this, [this] {
        const QSignalBlocker quiet(DPSpin);
        DPSpin->setValue(engine_.GetDecimalPlaces());
    });
    connect(front, &TQORCalcEngineObject::angleModeChange, this,
            [this] { SetKeyText(RadBtn, QString::fromStdString(engine_.GetAngleModeStr())); });
    connect(front, &TQORCalcEngineObject::togglesChange, this, &TQORFloatCalcForm::ShowToggles);
    SetTapeModel(new TQORTapeModel(engine_, this));
}

bool TQORFloatCalcForm::OtherChar(char ch)
{
    if (ch != FormatSettings.DecimalSeparator)
        return false;
    PointBtn->click();
    return true;
}

void TQORFloatCalcForm::RefreshDisplays()
{
    ValueDisplay->setText(QString::fromStdString(engine_.GetDisplayStr()));
    MemoryDisplay->setText(QString::fromStdString(engine_.GetMemoryContents()));
    SetKeyText(RadBtn, QString::fromStdString(engine_.GetAngleModeStr()));
    if (DPSpin->value() == engine_.GetDecimalPlaces())
        return; // setting an equal value would still rewrite the spin edit's text
    const QSignalBlocker quiet(DPSpin);
    DPSpin->setValue(engine_.GetDecimalPlaces());
}

void TQORFloatCalcForm::SetReadOnlyDecimalPlaces(bool value) { DPSpin->setReadOnly(value); }

void TQORFloatCalcForm::SetSpinColors(const TQOREditColorSet* own, const TQORUICtrl* uiCtrl)
{
    const TQOREditColorSet* set = uiCtrl != nullptr ? uiCtrl->GetColorSet() : own;
    if (set == nullptr)
        return;
    QPalette palette = DPSpin->palette();
    if (set->NormalBack().isValid())
        palette.setColor(QPalette::Base, set->NormalBack());
    if (set->NormalText().isValid())
        palette.setColor(QPalette::Text, set->NormalText());
    DPSpin->setPalette(palette);
}

void TQORFloatCalcForm::SetFlatSpin(bool value) { DPSpin->setFrame(!value); }

void TQORFloatCalcForm::UpdateLanguage()
{
    TQORCalcFormBase::UpdateLanguage();
    DPSpin->setToolTip(QString::fromStdString(rsDecimalsHint()));
    SetKeyText(RadBtn, QString::fromStdString(engine_.GetAngleModeStr()));
    DPSpin->setAccessibleName(QString::fromStdString(rsDecimalsAccName()));
    DPSpin->setAccessibleDescription(QString::fromStdString(rsDecimalsAccDescription()));
    ShowToggles();
}

void TQORFloatCalcForm::ShowToggles()
{
    InvBtn->setChecked(engine_.GetIsInv());
    for (const auto& [key, label] : ToggleLabels)
        ShowToggle(this->*key, label);
}

void TQORFloatCalcForm::ShowToggle(QToolButton* key, const TQORToggleLabel& label)
{
    const bool inv = engine_.GetIsInv();
    if (label.Glyph >= 0) {
        // Glyph icons are shared: the same glyph is the same icon, and an unchanged key is
        // neither repainted nor measured again.
        const QIcon icon = QORGlyphIcon(static_cast<TQORGlyph>(inv ? label.InvGlyph : label.Glyph));
        if (key->icon().cacheKey() != icon.cacheKey())
            key->setIcon(icon);
        return;
    }
    std::string text = label.Caption();
    if (label.Trig) {
        // Hyperbolic keys exist only on the scientific form; without one Hyp stays off.
        text = (inv ? "a" : "") + text + (engine_.GetIsHyp() ? "h" : "");
    } else if (inv) {
        text = label.InvCaption();
    }
    SetKeyText(key, QString::fromStdString(text));
}

} // namespace qorkit
