// The tape model over both engines, and the tape view of the scientific and programmer's
// dialogs.
#include "CalcDialogTest.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"
#include "QORKITTapeModel.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QListView>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <type_traits>

namespace qorkit {
namespace {

class TapeModelTest : public test::CalcDialogTest { };

QVariant Role(const TQORTapeModel& model, int row, int role)
{
    return model.data(model.index(row), role);
}

TEST_F(TapeModelTest, FollowsTheEngineRowByRow)
{
    TQORCalcEngine engine;
    engine.SetTrimTrailingZeroes(true);
    bool displayHandlerRan = false;
    engine.SetOnDisplayChange([&](TQORCalcEngine*) { displayHandlerRan = true; });
    TQORTapeModel model(engine);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy count(&model, &TQORTapeModel::countChanged);

    engine.InputValue(2);
    engine.DoAdd();
    engine.InputValue(3);
    engine.DoEquals();
    EXPECT_TRUE(displayHandlerRan); // the owner's handler still runs
    ASSERT_EQ(model.rowCount(), 5);
    EXPECT_EQ(inserted.count(), 5); // one line at a time, as the engine writes them
    EXPECT_EQ(count.count(), 5);
    EXPECT_EQ(Role(model, 1, TQORTapeModel::OperatorRole).toString(), QStringLiteral("+"));
    EXPECT_FALSE(Role(model, 1, TQORTapeModel::NumberRole).isValid());
    EXPECT_EQ(Role(model, 4, TQORTapeModel::KindRole).toString(), QStringLiteral("result"));
    EXPECT_EQ(Role(model, 4, TQORTapeModel::NumberRole).toDouble(), 5.0);
    EXPECT_EQ(Role(model, 4, Qt::DisplayRole).toString(), QStringLiteral("5"));
}

TEST_F(TapeModelTest, AllClearEmptiesTheModelOnceTheKeyIsDone)
{
    TQORCalcEngine engine;
    TQORTapeModel model(engine);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    engine.InputValue(7);
    engine.DoMultiply();
    ASSERT_EQ(model.rowCount(), 2);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    engine.AllClear();
    ASSERT_TRUE(reset.wait(1000));
    EXPECT_EQ(model.rowCount(), 0);
    engine.InputValue(1);
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(TapeModelTest, RolesAreNamedForQml)
{
    TQORCalcEngine engine;
    const TQORTapeModel model(engine);
    const auto names = model.roleNames();
    EXPECT_EQ(names.value(Qt::DisplayRole), QByteArray("display"));
    EXPECT_EQ(names.value(TQORTapeModel::NumberRole), QByteArray("number"));
    EXPECT_EQ(names.value(TQORTapeModel::OperatorRole), QByteArray("operator"));
    EXPECT_EQ(names.value(TQORTapeModel::KindRole), QByteArray("kind"));
}

TEST_F(TapeModelTest, ProgrammersTapeGivesIntegers)
{
    TQORProgCalcEngine engine;
    engine.SetBaseDisplay(bdHexadecimal);
    TQORTapeModel model(engine);
    engine.InputValue(0x5AC3);
    engine.DoXor();
    engine.InputValue(0xFF);
    engine.DoEquals();
    const int last = model.rowCount() - 1;
    ASSERT_GT(last, 0);
    const QVariant number = Role(model, last, TQORTapeModel::NumberRole);
    EXPECT_EQ(number.typeId(), QMetaType::LongLong);
    EXPECT_EQ(number.toLongLong(), 0x5AC3 ^ 0xFF);
    EXPECT_EQ(Role(model, last, TQORTapeModel::KindRole).toString(), QStringLiteral("result"));
}

TEST_F(TapeModelTest, ClipboardAndFileCarryTextAndCsv)
{
    TQORCalcEngine engine;
    TQORTapeModel model(engine);
    engine.InputValue(12.5L);
    engine.DoAdd();
    engine.InputValue(1);
    engine.DoEquals();
    model.CopyToClipboard();
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(mime, nullptr);
    EXPECT_EQ(mime->text(), model.ToText());
    EXPECT_EQ(QString::fromUtf8(mime->data(QStringLiteral("text/csv"))), model.ToCsv());
    EXPECT_TRUE(model.ToCsv().startsWith(QStringLiteral("kind,operator,number,text\r\n")));

    QTemporaryDir dir;
    const QString csvPath = dir.filePath(QStringLiteral("tape.csv"));
    ASSERT_TRUE(model.SaveToFile(csvPath));
    QFile csv(csvPath);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(csv.readAll()), model.ToCsv());
    EXPECT_FALSE(model.SaveToFile(dir.filePath(QStringLiteral("missing/tape.txt"))));
}

template<class Form> class TapeViewTest : public test::CalcDialogTest { };
using Forms = ::testing::Types<TQORSciCalcForm, TQORProgCalcForm>;
TYPED_TEST_SUITE(TapeViewTest, Forms);

TYPED_TEST(TapeViewTest, OffByDefaultAndWidensTheFormWhenShown)
{
    TypeParam form;
    const QSize designed = form.size();
    ASSERT_NE(form.TapeView, nullptr);
    EXPECT_FALSE(form.GetShowTape());
    EXPECT_TRUE(form.TapeView->isHidden());
    form.SetShowTape(true);
    EXPECT_EQ(form.size(),
              QSize(designed.width() + TQORCalcFormBase::TapeWidth + 5, designed.height()));
    EXPECT_FALSE(form.TapeView->isHidden());
    EXPECT_GE(form.TapeView->geometry().left(), designed.width() - 5);
    EXPECT_EQ(form.TapeView->model(), form.GetTapeModel());
    EXPECT_FALSE(form.TapeView->actions().isEmpty()); // copy from the context menu
    form.SetShowTape(false);
    EXPECT_EQ(form.size(), designed);
}

TYPED_TEST(TapeViewTest, TypedKeysAppearOnTheTape)
{
    TypeParam form;
    form.SetShowTape(true);
    QTest::keyClicks(form.KeyPanel, QStringLiteral("12+3="));
    auto* model = form.GetTapeModel();
    ASSERT_GE(model->rowCount(), 4);
    const QModelIndex last = model->index(model->rowCount() - 1);
    EXPECT_EQ(model->data(last, TQORTapeModel::KindRole).toString(), QStringLiteral("result"));
    constexpr qlonglong expected = std::is_same_v<TypeParam, TQORProgCalcForm> ? 0x15 : 15;
    EXPECT_EQ(model->data(last, TQORTapeModel::NumberRole).toLongLong(), expected);
}

} // namespace
} // namespace qorkit

namespace qorkit {
namespace {

TEST_F(TapeModelTest, ComponentOpensTheDialogWithItsTape)
{
    TQORSciCalculator calculator;
    QSignalSpy changed(&calculator, &TQORSciCalculator::showTapeChanged);
    calculator.SetShowTape(true);
    calculator.SetShowTape(true);
    EXPECT_EQ(changed.count(), 1);
    bool shown = false;
    test::WhenModal<TQORSciCalcForm>([&shown](TQORSciCalcForm& form) {
        shown = form.GetShowTape() && form.TapeView->isVisible();
        form.ExitClick();
    });
    calculator.Execute();
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace qorkit
