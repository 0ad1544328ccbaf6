// Number edits: expression edits in both languages, the expression evaluator with its ten
// variables, complex edits in both display forms and angle edits in each unit form. Every
// control reports what it holds in the label beside it.
#include "GalleryPages.h"
#include "QORKITComplex.h"
#include "QORKITComplexEdit.h"
#include "QORKITDMSEdit.h"
#include "QORKITExprEdit.h"
#include "QORKITExprEvaluator.h"
#include "QORKITFloatEdit.h"
#include "QORKITStrings.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

using namespace qorkit;

QString Number(Extended value) { return QString::fromStdString(Float2EStr2(value, 10)); }

QLabel* ValueLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setMinimumWidth(170);
    return label;
}

void ShowRefusals(TQORBaseEdit* edit, QLabel* label)
{
    edit->SetOnValidationError([label](QObject*, const QString& message) {
        label->setText(QStringLiteral("refused: %1").arg(message));
    });
}

QWidget* MakeExpressionEdits(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("TQORExpressEdit"), parent);
    auto* grid = new QGridLayout(group);
    struct Sample {
        const char* caption;
        TQORExpressionType type;
        const char* expression;
    };
    const Sample samples[] = {{"Simple: digits, operators, pi", etSimple, "2*pi*1.5"},
                              {"Full: functions in radians", etFull, "sqrt(2) * sin(pi/4)"}};
    int row = 0;
    for (const auto& sample : samples) {
        auto* edit = new TQORExpressEdit(group);
        edit->setObjectName(QStringLiteral("ExpressEdit%1").arg(row));
        edit->setMinimumWidth(160);
        edit->SetExpressionType(sample.type);
        edit->SetExpression(QString::fromUtf8(sample.expression));
        auto* value = ValueLabel(group);
        const auto show = [edit, value](QObject*) {
            value->setText(QStringLiteral("%1 = %2").arg(edit->GetExpression(),
                                                         Number(edit->GetFloatValue())));
        };
        show(nullptr);
        edit->SetOnChange(show);
        ShowRefusals(edit, value);
        grid->addWidget(new QLabel(QString::fromUtf8(sample.caption), group), row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(value, row, 2);
        ++row;
    }
    return group;
}

QWidget* MakeEvaluator(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("TQORExprEvaluator"), parent);
    auto* layout = new QVBoxLayout(group);
    auto* evaluator = new TQORExprEvaluator(group);
    evaluator->setObjectName(QStringLiteral("Evaluator"));

    auto* row = new QHBoxLayout;
    auto* expression = new QLineEdit(QStringLiteral("var2 * 10 + var9"), group);
    expression->setObjectName(QStringLiteral("Expression"));
    auto* result = new QLabel(group);
    result->setMinimumWidth(220);
    const auto evaluate = [evaluator, result] {
        const Extended value = evaluator->Evaluate();
        result->setText(evaluator->GetLastError().isEmpty()
                            ? QStringLiteral("= %1").arg(Number(value))
                            : QStringLiteral("error: %1").arg(evaluator->GetLastError()));
    };

    auto* vars = new QGridLayout;
    for (int i = 0; i < TQORExprEvaluator::VarCount; ++i) {
        const int index = (i + 1) % TQORExprEvaluator::VarCount; // Var1 ... Var9, Var0
        auto* edit = new TQORFloatEdit(group);
        edit->setObjectName(QStringLiteral("Var%1").arg(index));
        edit->SetTrimTrailingZeroes(true);
        edit->SetDecimalPlaces(4);
        edit->setMinimumWidth(70);
        edit->SetValue(index);
        evaluator->SetVar(index, index);
        edit->SetOnChange([evaluator, edit, index, evaluate](QObject*) {
            evaluator->SetVar(index, edit->GetValue());
            evaluate();
        });
        vars->addWidget(new QLabel(QStringLiteral("Var%1").arg(index), group), i / 5, 2 * (i % 5));
        vars->addWidget(edit, i / 5, 2 * (i % 5) + 1);
    }
    layout->addLayout(vars);

    row->addWidget(new QLabel(QStringLiteral("Expression"), group));
    row->addWidget(expression, 1);
    row->addWidget(result);
    layout->addLayout(row);
    layout->addWidget(new QLabel(
        QStringLiteral("Every variable name reads Var1; the other nine are kept only."), group));

    QObject::connect(expression, &QLineEdit::textChanged, evaluator,
                     &TQORExprEvaluator::SetExpression);
    QObject::connect(evaluator, &TQORExprEvaluator::expressionChanged, result, evaluate);
    evaluator->SetExpression(expression->text());
    return group;
}

QWidget* MakeComplexEdits(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("TQORComplexEdit"), parent);
    auto* grid = new QGridLayout(group);
    const std::pair<const char*, TQORComplexType> forms[]
        = {{"Real and imaginary", ctRealImaginary}, {"Modulus and amplitude", ctPolar}};
    int row = 0;
    for (const auto& [caption, form] : forms) {
        auto* edit = new TQORComplexEdit(group);
        edit->setObjectName(QStringLiteral("ComplexEdit%1").arg(row));
        edit->SetComplexDisplay(form);
        edit->SetComplex(MakeComplex(3, 4));
        auto* value = ValueLabel(group);
        const auto show = [edit, value] {
            value->setText(QStringLiteral("= %1").arg(
                QString::fromStdString(Complex2XYStr(edit->GetComplex(), 4))));
        };
        show();
        QObject::connect(edit, &TQORComplexEdit::change, value, show);
        QObject::connect(edit, &TQORComplexEdit::validationError, value,
                         [value](const QString& message) {
                             value->setText(QStringLiteral("refused: %1").arg(message));
                         });
        grid->addWidget(new QLabel(QString::fromUtf8(caption), group), row, 0);
        grid->addWidget(edit, row, 1, Qt::AlignLeft);
        grid->addWidget(value, row, 2);
        ++row;
    }
    return group;
}

QWidget* MakeDMSEdits(QWidget* parent)
{
    auto* group = new QGroupBox(QStringLiteral("TQORDMSEdit"), parent);
    auto* grid = new QGridLayout(group);
    const std::pair<const char*, TQORDMSType> types[]
        = {{"Degrees", dmsDegrees},
           {"Degrees and minutes", dmsDegreesMinutes},
           {"Degrees, minutes, seconds", dmsDegreesMinutesSeconds}};
    int row = 0;
    for (const auto& [caption, type] : types) {
        auto* edit = new TQORDMSEdit(group);
        edit->setObjectName(QStringLiteral("DMSEdit%1").arg(row));
        edit->setMinimumWidth(150);
        edit->SetDMSType(type);
        edit->SetLeadingZeroes(type == dmsDegreesMinutesSeconds);
        edit->SetDegrees(-12.5125L);
        auto* value = ValueLabel(group);
        const auto show = [edit, value](QObject*) {
            value->setText(QString::fromUtf8("= %1\u00B0 = %2'")
                               .arg(Number(edit->GetDegrees()), Number(edit->GetMins())));
        };
        show(nullptr);
        edit->SetOnChange(show);
        ShowRefusals(edit, value);
        grid->addWidget(new QLabel(QString::fromUtf8(caption), group), row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(value, row, 2);
        ++row;
    }
    return group;
}

QWidget* MakeNumberEditsPage(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* layout = new QVBoxLayout(page);
    auto* top = new QHBoxLayout;
    auto* left = new QVBoxLayout;
    left->addWidget(MakeExpressionEdits(page));
    left->addWidget(MakeComplexEdits(page));
    top->addLayout(left);
    auto* right = new QVBoxLayout;
    right->addWidget(MakeDMSEdits(page));
    right->addStretch();
    top->addLayout(right);
    layout->addLayout(top);
    layout->addWidget(MakeEvaluator(page));
    layout->addStretch();
    return page;
}

const bool registered
    = gallery::RegisterPage({QStringLiteral("Number edits"), 20, MakeNumberEditsPage, {}});

} // namespace
