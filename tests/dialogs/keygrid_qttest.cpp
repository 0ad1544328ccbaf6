// The calculator dialogs' key grid: every shown key (and the decimal-places spin edit) fills a
// cell of its own at the key size of the form, with nothing between the cells; the grid is
// mirrored when the dialog reads right to left; long translated captions move and resize no
// key.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"
#include "QORKITTranslation.h"

#include <QGuiApplication>
#include <QListView>
#include <QTranslator>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <tuple>

namespace qorkit {
namespace {

using test::CalcDialogTest;

struct FormRow {
    const char* Name;
    std::function<std::unique_ptr<TQORCalcFormBase>()> Make;
    QSize Key; // one cell of the grid
    int Columns;
};

const FormRow FormRows[] = {
    {"Standard", [] { return std::make_unique<TQORCalcForm>(); }, QSize(30, 22), 6},
    {"Small",
     [] {
         auto form = std::make_unique<TQORCalcForm>();
         form->SetHideFnBtns(true);
         return form;
     },
     QSize(30, 22), 6},
    {"Scientific", [] { return std::make_unique<TQORSciCalcForm>(); }, QSize(30, 22), 7},
    {"Programmers", [] { return std::make_unique<TQORProgCalcForm>(); }, QSize(31, 22), 13},
};

// Where each shown control of the key panel stands, by name, in the panel.
std::map<QString, QRect> PanelPlaces(const TQORCalcFormBase& form)
{
    std::map<QString, QRect> places;
    for (auto* widget : form.KeyPanel->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!widget->isHidden())
            places[widget->objectName()] = widget->geometry();
    }
    return places;
}

// Where each shown child of the form stands, by name, in the form.
std::map<QString, QRect> FormPlaces(const TQORCalcFormBase& form)
{
    std::map<QString, QRect> places;
    for (auto* widget : form.findChildren<QWidget*>()) {
        if (!widget->isHidden() && !widget->objectName().isEmpty())
            places[widget->objectName()]
                = QRect(widget->mapTo(&form, QPoint(0, 0)), widget->size());
    }
    return places;
}

class KeyGridTest : public CalcDialogTest, public ::testing::WithParamInterface<FormRow> { };

TEST_P(KeyGridTest, EveryShownKeyFillsACellOfItsOwn)
{
    const auto form = GetParam().Make();
    const QSize key = GetParam().Key;
    std::set<std::pair<int, int>> taken;
    int rows = 0;
    for (auto* widget : form->KeyPanel->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (widget->isHidden())
            continue;
        const std::string name = widget->objectName().toStdString();
        const QRect place = widget->geometry();
        EXPECT_EQ(place.x() % key.width(), 0) << name << " starts between two columns";
        EXPECT_EQ(place.y() % key.height(), 0) << name << " starts between two rows";
        EXPECT_EQ(place.height(), key.height()) << name;
        EXPECT_EQ(place.width() % key.width(), 0) << name << " ends between two columns";
        EXPECT_GT(place.width(), 0) << name;
        const int row = place.y() / key.height();
        const int col = place.x() / key.width();
        for (int c = col; c < col + place.width() / key.width(); ++c)
            EXPECT_TRUE(taken.insert({row, c}).second) << name << " shares a cell";
        EXPECT_LE(place.right(), form->KeyPanel->width() - 1) << name << " sticks out";
        rows = std::max(rows, row + 1);
    }
    EXPECT_EQ(form->KeyPanel->size(), QSize(GetParam().Columns * key.width(), rows * key.height()));
}

TEST_P(KeyGridTest, RightToLeftMirrorsTheKeysInsideThePanel)
{
    const auto ltr = GetParam().Make();
    const auto leftToRight = PanelPlaces(*ltr);
    const int width = ltr->KeyPanel->width();
    const auto expectMirrored = [&](const TQORCalcFormBase& form, const char* how) {
        const auto rightToLeft = PanelPlaces(form);
        ASSERT_EQ(rightToLeft.size(), leftToRight.size()) << how;
        EXPECT_EQ(form.KeyPanel->width(), width) << how;
        for (const auto& [name, place] : leftToRight) {
            const QRect mirrored(width - place.x() - place.width(), place.y(), place.width(),
                                 place.height());
            EXPECT_EQ(rightToLeft.at(name), mirrored) << name.toStdString() << ", " << how;
        }
    };

    // The application reads right to left before the dialog is made ...
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto rtl = GetParam().Make();
    expectMirrored(*rtl, "made right to left");
    // The form follows the application back (its direction was never set on its own).
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(PanelPlaces(*rtl), leftToRight);

    // ... or the open dialog is turned.
    ltr->show();
    ltr->setLayoutDirection(Qt::RightToLeft);
    QCoreApplication::processEvents();
    expectMirrored(*ltr, "turned while shown");

    // ... or a host turns the key panel alone.
    const auto panelOnly = GetParam().Make();
    panelOnly->KeyPanel->setLayoutDirection(Qt::RightToLeft);
    expectMirrored(*panelOnly, "key panel turned alone");
}

// Gives every text of the calculator a long translation, longer than any key can show.
class LongTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* = nullptr,
                      int = -1) const override
    {
        if (qstrncmp(context, "QORKIT_RS_", 10) != 0)
            return {};
        return QString::fromUtf8(source) + QStringLiteral(" – eine sehr lange Übersetzung");
    }
};

TEST_P(KeyGridTest, LongTranslatedCaptionsMoveNoKey)
{
    InstallQtTranslationHook();
    const auto form = GetParam().Make();
    form->show();
    const auto before = FormPlaces(*form);
    const QSize size = form->size();

    LongTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    // A host may also set a caption of its own on a key, without any fitting.
    form->SevenBtn->setText(QStringLiteral("sieben und noch viel mehr"));
    QCoreApplication::processEvents();
    const auto translated = FormPlaces(*form);
    const QString clear = form->MemoryClearBtn->text();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);

    ASSERT_TRUE(clear.endsWith(QStringLiteral("Übersetzung"))) << clear.toStdString();
    EXPECT_EQ(form->size(), size);
    ASSERT_EQ(translated.size(), before.size());
    for (const auto& [name, place] : before)
        EXPECT_EQ(translated.at(name), place) << name.toStdString();
}

// The form's own children (panels, lists, the key panel, the tape) stand mirrored in a form
// that reads right to left, and Tab goes through a row of keys from the right.
TEST_P(KeyGridTest, RightToLeftMirrorsThePanelsAndTheTape)
{
    const auto ltr = GetParam().Make();
    ltr->SetShowTape(true);
    const int width = ltr->width();
    std::map<QString, QRect> leftToRight;
    for (auto* child : ltr->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden() && !child->objectName().isEmpty())
            leftToRight[child->objectName()] = child->geometry();
    }
    const auto expectMirrored = [&](const TQORCalcFormBase& form, const char* how) {
        ASSERT_EQ(form.width(), width) << how;
        for (const auto& [name, place] : leftToRight) {
            auto* child = form.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly);
            ASSERT_NE(child, nullptr) << name.toStdString();
            EXPECT_EQ(
                child->geometry(),
                QRect(width - place.x() - place.width(), place.y(), place.width(), place.height()))
                << name.toStdString() << ", " << how;
        }
        ASSERT_NE(form.TapeView, nullptr);
        EXPECT_EQ(form.TapeView->x(), 5) << how; // the tape on the left
    };

    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto rtl = GetParam().Make();
    rtl->SetShowTape(true);
    expectMirrored(*rtl, "made right to left");
    // Tab goes through a row of keys from the right.
    rtl->UpdateTabOrder();
    QWidget* first = rtl->KeyPanel->findChild<QWidget*>(QStringLiteral("AllClearBtn"));
    ASSERT_NE(first, nullptr);
    QWidget* next = first->nextInFocusChain();
    while (next != nullptr && (next->focusPolicy() & Qt::TabFocus) == 0)
        next = next->nextInFocusChain();
    ASSERT_NE(next, nullptr);
    if (next->y() == first->y() && next->parentWidget() == first->parentWidget()) {
        EXPECT_LT(next->x(), first->x()) << next->objectName().toStdString();
    }
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);

    ltr->setLayoutDirection(Qt::RightToLeft);
    expectMirrored(*ltr, "turned");
}

INSTANTIATE_TEST_SUITE_P(Forms, KeyGridTest, ::testing::ValuesIn(FormRows), test::RowName<FormRow>);

} // namespace
} // namespace qorkit
