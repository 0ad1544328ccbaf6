// The tape model over both engines, and the tape view of the scientific and programmer's
// dialogs.
#include "CalcDialogTest.h"
#include "QORKITEngineObjects.h"
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

#include <memory>
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
    EXPECT_FALSE(form.GetShowTape());
    EXPECT_EQ(form.TapeView, nullptr); // made when the tape is first shown
    form.SetShowTape(true);
    ASSERT_NE(form.TapeView, nullptr);
    EXPECT_EQ(form.size(),
              QSize(designed.width() + TQORCalcFormBase::TapeWidth + 5, designed.height()));
    EXPECT_FALSE(form.TapeView->isHidden());
    EXPECT_GE(form.TapeView->geometry().left(), designed.width() - 5);
    EXPECT_EQ(form.TapeView->model(), form.GetTapeModel());
    EXPECT_FALSE(form.TapeView->actions().isEmpty()); // copy from the context menu
    form.SetShowTape(false);
    EXPECT_EQ(form.size(), designed);
    EXPECT_TRUE(form.TapeView->isHidden());
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

// Following the engine through its front.
namespace qorkit {
namespace {

// The model's lines, as shown.
QStringList Lines(const TQORTapeModel& model)
{
    QStringList lines;
    for (int row = 0; row < model.rowCount(); ++row)
        lines << Role(model, row, Qt::DisplayRole).toString();
    return lines;
}

QStringList EngineLines(const TQORCalcEngine& engine)
{
    QStringList lines;
    for (const auto& line : engine.GetHistory())
        lines << QString::fromStdString(line);
    return lines;
}

TEST_F(TapeModelTest, KeysOnTheFrontInsertOneRowALine)
{
    TQORCalcEngineObject front;
    TQORTapeModel model(front);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    for (const char* key : {"2", "+", "3", "*", "4", "="})
        front.PressKey(QString::fromLatin1(key));
    QCoreApplication::processEvents();
    const QStringList tape = EngineLines(front.GetEngine());
    ASSERT_FALSE(tape.isEmpty());
    EXPECT_EQ(inserted.count(), tape.size());
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(Lines(model), tape);
    EXPECT_EQ(front.GetTape(), tape);
    const auto count = static_cast<int>(tape.size());
    EXPECT_EQ(front.GetTapeCount(), count);
    EXPECT_EQ(front.GetTapeLine(count - 1), tape.last());
    EXPECT_TRUE(front.GetTapeLine(-1).isEmpty());
    EXPECT_TRUE(front.GetTapeLine(count).isEmpty());

    // All clear: one reset, and the next line starts the tape again.
    front.PressKey(QStringLiteral("ac"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return reset.count() == 1; }, 1000));
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(front.GetTape().isEmpty());
    front.PressKey(QStringLiteral("7"));
    front.PressKey(QStringLiteral("+"));
    EXPECT_EQ(Lines(model), EngineLines(front.GetEngine()));
    EXPECT_EQ(front.GetTape(), EngineLines(front.GetEngine()));
}

TEST_F(TapeModelTest, AHostTakingTheTapeSlotLaterDoesNotCutTheModelOff)
{
    TQORCalcEngine engine;
    TQORTapeModel model(engine);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    int hostSaw = 0;
    engine.SetOnHistoryChange([&](TQORCalcEngine*) { ++hostSaw; });
    engine.InputValue(6);
    engine.DoDivide();
    engine.InputValue(4);
    engine.DoEquals();
    EXPECT_GT(hostSaw, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Lines(model) == EngineLines(engine); }, 1000));
    EXPECT_EQ(model.rowCount(), engine.GetHistoryLength());
}

TEST_F(TapeModelTest, TwoModelsShareTheEnginesFrontAndOutliveEachOther)
{
    TQORCalcEngine engine;
    bool hostDisplay = false;
    engine.SetOnDisplayChange([&](TQORCalcEngine*) { hostDisplay = true; });
    auto first = std::make_unique<TQORTapeModel>(engine);
    TQORTapeModel second(engine);
    QAbstractItemModelTester tester(&second, QAbstractItemModelTester::FailureReportingMode::Fatal);
    TQORCalcEngineObject* front = TQORCalcEngineObject::FrontOf(engine);
    ASSERT_NE(front, nullptr);
    engine.InputValue(1);
    engine.DoAdd();
    EXPECT_TRUE(hostDisplay);
    EXPECT_EQ(Lines(*first), EngineLines(engine));
    EXPECT_EQ(Lines(second), EngineLines(engine));

    // The first model made the front; the second goes on through a new one.
    first.reset();
    hostDisplay = false;
    engine.InputValue(2);
    engine.DoEquals();
    EXPECT_TRUE(hostDisplay);
    EXPECT_EQ(Lines(second), EngineLines(engine));
    EXPECT_NE(TQORCalcEngineObject::FrontOf(engine), nullptr);
}

// The fronts' Tape property tells of every change: a line, an all-clear (which the engines
// announce with no tape event), and on the programmer's front a rewrite in another base.
TEST_F(TapeModelTest, TapePropertyNotifiesLinesClearsAndRewrites)
{
    TQORCalcEngineObject calc;
    QSignalSpy calcTape(&calc, &TQORCalcEngineObject::tapeChanged);
    calc.GetEngine().InputValue(7);
    EXPECT_EQ(calcTape.count(), 1);
    calc.PressKey(QStringLiteral("ac"));
    ASSERT_TRUE(calcTape.wait(1000));
    EXPECT_EQ(calcTape.count(), 2);
    EXPECT_TRUE(calc.GetTape().isEmpty());
    calc.PressKey(QStringLiteral("c")); // nothing on the tape to lose: no signal
    QCoreApplication::processEvents();
    EXPECT_EQ(calcTape.count(), 2);

    TQORProgCalcEngineObject prog;
    QSignalSpy progTape(&prog, &TQORProgCalcEngineObject::tapeChanged);
    prog.GetEngine().InputValue(255);
    prog.SetBaseDisplay(bdBinary); // rewrites the line, then adds the base's line
    EXPECT_GE(progTape.count(), 3);
    const int before = static_cast<int>(progTape.count());
    prog.PressKey(QStringLiteral("AC"));
    ASSERT_TRUE(progTape.wait(1000));
    EXPECT_EQ(progTape.count(), before + 1);
    EXPECT_EQ(prog.GetTapeCount(), 0);
}

TEST_F(TapeModelTest, AFrontKeepsTheHostsHandlersAndGivesThemBack)
{
    TQORProgCalcEngine engine;
    int hostLines = 0;
    engine.SetOnHistoryChange([&](IQORProgCalcEngine*) { ++hostLines; });
    {
        TQORProgCalcEngineObject front(engine);
        EXPECT_EQ(TQORProgCalcEngineObject::FrontOf(engine), &front);
        QSignalSpy lines(&front, &TQORProgCalcEngineObject::historyChange);
        engine.InputValue(5);
        EXPECT_EQ(hostLines, 1);
        EXPECT_EQ(lines.count(), 1);
    }
    EXPECT_EQ(TQORProgCalcEngineObject::FrontOf(engine), nullptr);
    EXPECT_FALSE(engine.GetOnDisplayChange());
    engine.InputValue(6);
    EXPECT_EQ(hostLines, 2);
}

TEST_F(TapeModelTest, ProgrammersTapeRegroupedBySpacingResetsTheModel)
{
    TQORProgCalcEngineObject front;
    IQORProgCalcEngine& engine = front.GetEngine();
    engine.SetBaseDisplay(bdHexadecimal);
    TQORTapeModel model(front);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    engine.PaperLine();
    engine.InputValue(0x12345678);
    engine.DoAdd();
    const QStringList before = Lines(model);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    // Grouping by bytes rewrites the lines already on the tape: one reset, no new rows.
    engine.SetSpacing(psByte);
    ASSERT_TRUE(QTest::qWaitFor([&] { return reset.count() == 1; }, 1000));
    EXPECT_EQ(inserted.count(), 0);
    const QStringList after = Lines(model);
    ASSERT_EQ(after.size(), before.size());
    EXPECT_NE(after, before);
    for (int row = 0; row < after.size(); ++row)
        EXPECT_EQ(after.at(row).toStdString(),
                  engine.GetHistoryEntry(static_cast<std::uint16_t>(row)));
    EXPECT_EQ(front.GetTape(), after);
    EXPECT_EQ(Role(model, 1, TQORTapeModel::NumberRole).toLongLong(), 0x12345678);
}

// A long tape, then one key: one inserted row, no reset, whichever the engine.
template<class Engine> class LongTapeTest : public test::CalcDialogTest { };
using Engines = ::testing::Types<TQORCalcEngine, TQORProgCalcEngine>;
TYPED_TEST_SUITE(LongTapeTest, Engines);

TYPED_TEST(LongTapeTest, OneKeyInsertsOneRow)
{
    constexpr int lines = 100'000;
    TypeParam engine;
    for (int i = 1; i < lines; ++i)
        engine.PaperLine();
    engine.InputValue(7); // the last line: a number, unlike the rules before it
    engine.SetHistoryPosition(3);
    TQORTapeModel model(engine);
    ASSERT_EQ(model.rowCount(), lines);
    // Lines past the engine's 16-bit index are read too, and its read cursor is left alone.
    EXPECT_EQ(Role(model, lines - 1, TQORTapeModel::NumberRole).toLongLong(), 7);
    EXPECT_EQ(engine.GetHistoryPosition(), 3);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    engine.InputValue(9);
    QCoreApplication::processEvents();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    EXPECT_EQ(model.rowCount(), lines + 1);
    EXPECT_EQ(Role(model, lines, TQORTapeModel::NumberRole).toLongLong(), 9);
}

} // namespace
} // namespace qorkit
