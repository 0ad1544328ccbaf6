// TQORExprEvaluator: a non-visual component that holds an expression with ten numeric
// variables and evaluates it on request through a calculator engine of its own.
//
// Evaluate() writes the variables into the expression ("var1" ... "var9", "var0", any letter
// case) and evaluates it with the full expression language in the component's AngleMode. Each
// evaluation starts with an empty memory register, so "madd" in one expression never reaches
// the next. A bad expression never raises: the result is 0, GetLastError() holds the message
// and OnError (and the error() signal) is raised.
#pragma once

#include "QORKITCalcEngine.h"
#include "QORKITComponent.h"
#include "QORKITQtEnums.h"
#include "QORKITTypes.h"
#include "qorkit_widgets_export.h"

#include <QObject>
#include <QString>

#include <array>

namespace qorkit {

class QORKIT_WIDGETS_EXPORT TQORExprEvaluator : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool StoreValue READ GetStoreValue WRITE SetStoreValue NOTIFY storeValueChanged)
    Q_PROPERTY(double Var1 READ GetVar1Double WRITE SetVar1Double NOTIFY var1Changed)
    Q_PROPERTY(double Var2 READ GetVar2Double WRITE SetVar2Double NOTIFY var2Changed)
    Q_PROPERTY(double Var3 READ GetVar3Double WRITE SetVar3Double NOTIFY var3Changed)
    Q_PROPERTY(double Var4 READ GetVar4Double WRITE SetVar4Double NOTIFY var4Changed)
    Q_PROPERTY(double Var5 READ GetVar5Double WRITE SetVar5Double NOTIFY var5Changed)
    Q_PROPERTY(double Var6 READ GetVar6Double WRITE SetVar6Double NOTIFY var6Changed)
    Q_PROPERTY(double Var7 READ GetVar7Double WRITE SetVar7Double NOTIFY var7Changed)
    Q_PROPERTY(double Var8 READ GetVar8Double WRITE SetVar8Double NOTIFY var8Changed)
    Q_PROPERTY(double Var9 READ GetVar9Double WRITE SetVar9Double NOTIFY var9Changed)
    Q_PROPERTY(double Var0 READ GetVar0Double WRITE SetVar0Double NOTIFY var0Changed)
    Q_PROPERTY(QString Expression READ GetExpression WRITE SetExpression NOTIFY expressionChanged)
    Q_PROPERTY(qorkit::TQORAngleMode AngleMode READ GetAngleMode WRITE SetAngleMode NOTIFY
                   angleModeChanged)
    Q_PROPERTY(bool PrefixFunctions READ GetPrefixFunctions WRITE SetPrefixFunctions NOTIFY
                   prefixFunctionsChanged)
    Q_PROPERTY(
        bool BinaryPercent READ GetBinaryPercent WRITE SetBinaryPercent NOTIFY binaryPercentChanged)

public:
    static constexpr int VarCount = 10;

    explicit TQORExprEvaluator(QObject* owner = nullptr);

    // Whether a host saving the form saves the variables and the expression (Qt has no
    // per-object STORED condition: hosts that save properties read this flag).
    bool GetStoreValue() const { return storeValue_; }
    void SetStoreValue(bool value);

    // Variable `index` (0 for Var0, 1 for Var1 ... 9 for Var9); other indexes read 0 and
    // ignore writes, as do NaN and infinities.
    Extended GetVar(int index) const;
    void SetVar(int index, Extended value);
    Extended GetVar0() const { return GetVar(0); }
    Extended GetVar1() const { return GetVar(1); }
    Extended GetVar2() const { return GetVar(2); }
    Extended GetVar3() const { return GetVar(3); }
    Extended GetVar4() const { return GetVar(4); }
    Extended GetVar5() const { return GetVar(5); }
    Extended GetVar6() const { return GetVar(6); }
    Extended GetVar7() const { return GetVar(7); }
    Extended GetVar8() const { return GetVar(8); }
    Extended GetVar9() const { return GetVar(9); }
    void SetVar0(Extended value) { SetVar(0, value); }
    void SetVar1(Extended value) { SetVar(1, value); }
    void SetVar2(Extended value) { SetVar(2, value); }
    void SetVar3(Extended value) { SetVar(3, value); }
    void SetVar4(Extended value) { SetVar(4, value); }
    void SetVar5(Extended value) { SetVar(5, value); }
    void SetVar6(Extended value) { SetVar(6, value); }
    void SetVar7(Extended value) { SetVar(7, value); }
    void SetVar8(Extended value) { SetVar(8, value); }
    void SetVar9(Extended value) { SetVar(9, value); }

    QString GetExpression() const { return expression_; }
    void SetExpression(const QString& value);
    TQORAngleMode GetAngleMode() const { return angleMode_; }
    void SetAngleMode(TQORAngleMode value);
    bool GetPrefixFunctions() const { return prefixFunctions_; }
    void SetPrefixFunctions(bool value);
    bool GetBinaryPercent() const { return binaryPercent_; }
    void SetBinaryPercent(bool value);

    // Evaluates the expression with the variables written in; 0 after an error.
    Extended Evaluate();
    // The message of the last evaluation's error; empty when it went well.
    QString GetLastError() const { return lastError_; }
    // The expression text in lower case with every variable name replaced by a value.
    QString ReplaceVars(const QString& S) const;

    void SetOnError(TQORNotifyEvent e) { onError_ = std::move(e); }
    const TQORNotifyEvent& GetOnError() const { return onError_; }

Q_SIGNALS:
    void storeValueChanged();
    void var0Changed();
    void var1Changed();
    void var2Changed();
    void var3Changed();
    void var4Changed();
    void var5Changed();
    void var6Changed();
    void var7Changed();
    void var8Changed();
    void var9Changed();
    void expressionChanged();
    void angleModeChanged();
    void prefixFunctionsChanged();
    void binaryPercentChanged();
    // An evaluation produced an error text (OnError).
    void error();

private:
    double GetVar0Double() const { return static_cast<double>(GetVar(0)); }
    double GetVar1Double() const { return static_cast<double>(GetVar(1)); }
    double GetVar2Double() const { return static_cast<double>(GetVar(2)); }
    double GetVar3Double() const { return static_cast<double>(GetVar(3)); }
    double GetVar4Double() const { return static_cast<double>(GetVar(4)); }
    double GetVar5Double() const { return static_cast<double>(GetVar(5)); }
    double GetVar6Double() const { return static_cast<double>(GetVar(6)); }
    double GetVar7Double() const { return static_cast<double>(GetVar(7)); }
    double GetVar8Double() const { return static_cast<double>(GetVar(8)); }
    double GetVar9Double() const { return static_cast<double>(GetVar(9)); }
    void SetVar0Double(double value) { SetVar(0, value); }
    void SetVar1Double(double value) { SetVar(1, value); }
    void SetVar2Double(double value) { SetVar(2, value); }
    void SetVar3Double(double value) { SetVar(3, value); }
    void SetVar4Double(double value) { SetVar(4, value); }
    void SetVar5Double(double value) { SetVar(5, value); }
    void SetVar6Double(double value) { SetVar(6, value); }
    void SetVar7Double(double value) { SetVar(7, value); }
    void SetVar8Double(double value) { SetVar(8, value); }
    void SetVar9Double(double value) { SetVar(9, value); }
    void DoError();

    bool storeValue_ = true;
    std::array<Extended, VarCount> vars_ {};
    QString expression_;
    TQORAngleMode angleMode_ = amRadians;
    bool prefixFunctions_ = true;
    bool binaryPercent_ = false;
    TQORCalcEngine engine_;
    QString lastError_;
    TQORNotifyEvent onError_;
};

} // namespace qorkit
