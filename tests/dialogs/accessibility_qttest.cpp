// What assistive technology gets from the calculator dialogs: a name and a description for
// every key, announcements when the value or the memory changes, and a tab order that follows
// the form from top to bottom, left to right.
#include "CalcDialogTest.h"
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"
#include "QORKITTranslation.h"

#include <QAccessible>
#include <QTest>
#ifdef QORKIT_TEST_PLATFORM_ACCESSIBILITY
#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformaccessibility.h>
#include <QtGui/qpa/qplatformintegration.h>
#endif
#include <QListView>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace qorkit {
namespace {

// Switches accessibility on for a scope, as a screen reader does when it connects: events reach
// assistive technology (and an update handler) only then. Only the platform layer can do it.
class ScreenReaderOn {
public:
    ScreenReaderOn()
    {
#ifdef QORKIT_TEST_PLATFORM_ACCESSIBILITY
        platform_ = QGuiApplicationPrivate::platformIntegration()->accessibility();
        if (platform_ != nullptr) {
            wasActive_ = platform_->isActive();
            platform_->setActive(true);
        }
#endif
    }
    ~ScreenReaderOn()
    {
#ifdef QORKIT_TEST_PLATFORM_ACCESSIBILITY
        if (platform_ != nullptr)
            platform_->setActive(wasActive_);
#endif
    }
    ScreenReaderOn(const ScreenReaderOn&) = delete;
    ScreenReaderOn& operator=(const ScreenReaderOn&) = delete;

private:
#ifdef QORKIT_TEST_PLATFORM_ACCESSIBILITY
    QPlatformAccessibility* platform_ = nullptr;
    bool wasActive_ = false;
#endif
};

// The events the forms send to assistive technology while it is installed.
class AccessibleEventRecorder {
public:
    AccessibleEventRecorder()
    {
        instance_ = this;
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (instance_ != nullptr && event->type() == QAccessible::ValueChanged) {
                const auto* change = static_cast<QAccessibleValueChangeEvent*>(event);
                instance_->values_.emplace_back(event->object(), change->value().toString());
            }
        });
    }
    ~AccessibleEventRecorder()
    {
        QAccessible::installUpdateHandler(nullptr);
        instance_ = nullptr;
    }
    AccessibleEventRecorder(const AccessibleEventRecorder&) = delete;
    AccessibleEventRecorder& operator=(const AccessibleEventRecorder&) = delete;

    // The values announced for `object`, in order.
    std::vector<QString> ValuesOf(const QObject* object) const
    {
        std::vector<QString> values;
        for (const auto& [sender, value] : values_) {
            if (sender == object)
                values.push_back(value);
        }
        return values;
    }

private:
    static inline AccessibleEventRecorder* instance_ = nullptr;
    std::vector<std::pair<const QObject*, QString>> values_;
};

std::vector<QToolButton*> VisibleKeys(const TQORCalcFormBase& form)
{
    std::vector<QToolButton*> keys;
    for (auto* key : form.KeyPanel->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
        if (!key->isHidden())
            keys.push_back(key);
    }
    return keys;
}

template<class Form> class AccessibleDialogTest : public test::CalcDialogTest { };
using Forms = ::testing::Types<TQORCalcForm, TQORSciCalcForm, TQORProgCalcForm>;
TYPED_TEST_SUITE(AccessibleDialogTest, Forms);

TYPED_TEST(AccessibleDialogTest, EveryKeyHasADistinctNameAndADescription)
{
    TypeParam form;
    const auto keys = VisibleKeys(form);
    ASSERT_GT(keys.size(), 20u);
    std::set<QString> names;
    for (auto* key : keys) {
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(key);
        ASSERT_NE(iface, nullptr) << key->objectName().toStdString();
        const QString name = iface->text(QAccessible::Name);
        EXPECT_FALSE(name.isEmpty()) << key->objectName().toStdString();
        EXPECT_FALSE(iface->text(QAccessible::Description).isEmpty())
            << key->objectName().toStdString();
        EXPECT_TRUE(names.insert(name).second)
            << key->objectName().toStdString() << " repeats " << name.toStdString();
    }
    for (auto* panel : {form.ValueDisplay, form.MemoryDisplay}) {
        QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(panel);
        ASSERT_NE(iface, nullptr);
        EXPECT_FALSE(iface->text(QAccessible::Name).isEmpty());
    }
}

TYPED_TEST(AccessibleDialogTest, ValueAndMemoryChangesAreAnnounced)
{
    TypeParam form;
    const ScreenReaderOn screenReader;
    if (!QAccessible::isActive())
        GTEST_SKIP() << "accessibility cannot be switched on without Qt's platform headers";
    AccessibleEventRecorder recorder;
    QTest::keyClicks(form.KeyPanel, QStringLiteral("12+3="));
    const auto values = recorder.ValuesOf(form.ValueDisplay);
    ASSERT_FALSE(values.empty());
    EXPECT_EQ(values.back(), form.ValueDisplay->text());
    EXPECT_GE(values.size(), 3u); // "1", "12", "3", the result ...
    QTest::keyClicks(form.KeyPanel, QStringLiteral("7"));
    form.MemoryAddBtn->click();
    const auto memory = recorder.ValuesOf(form.MemoryDisplay);
    ASSERT_FALSE(memory.empty());
    EXPECT_EQ(memory.back(), form.MemoryDisplay->text());
}

TYPED_TEST(AccessibleDialogTest, TabReachesEveryKeyInReadingOrder)
{
    TypeParam form;
    form.SetShowTape(true);
    form.show();
    EXPECT_EQ(form.focusWidget(), form.KeyPanel); // typing starts on the keys
    // Walk the focus chain once around from the form.
    std::vector<QWidget*> chain;
    for (QWidget* w = form.nextInFocusChain(); w != &form; w = w->nextInFocusChain()) {
        if ((w->focusPolicy() & Qt::TabFocus) != 0 && !w->isHidden() && w->isEnabled())
            chain.push_back(w);
    }
    for (auto* key : VisibleKeys(form)) {
        if (!key->isEnabled()) // the programmer's digits above the base are disabled
            continue;
        EXPECT_NE(std::find(chain.begin(), chain.end(), key), chain.end())
            << key->objectName().toStdString();
    }
    ASSERT_FALSE(chain.empty());
    EXPECT_EQ(chain.back(), form.TapeView);
    std::pair<int, int> previous {-1, -1};
    for (auto* w : chain) {
        if (w == form.TapeView)
            continue;
        const QPoint at = w->mapTo(&form, QPoint(0, 0));
        const std::pair<int, int> place {at.y(), at.x()};
        EXPECT_LE(previous, place) << w->objectName().toStdString();
        previous = place;
    }
}

class AccessibleNameTest : public test::CalcDialogTest { };

TEST_F(AccessibleNameTest, NamesSayWhatTheKeyDoes)
{
    TQORSciCalcForm sci;
    EXPECT_EQ(sci.SinBtn->accessibleName(), QStringLiteral("sine"));
    EXPECT_EQ(sci.MemoryRecallBtn->accessibleName(), QStringLiteral("memory recall"));
    EXPECT_EQ(sci.EBtn->accessibleName(), QStringLiteral("Euler's number"));
    TQORProgCalcForm prog;
    EXPECT_EQ(prog.EBtn->accessibleName(), QStringLiteral("hex digit E"));
    EXPECT_EQ(prog.XORBtn->accessibleName(), QStringLiteral("bitwise exclusive or"));

    ASSERT_TRUE(LoadTranslation(QLocale(QLocale::German, QLocale::Germany)));
    sci.UpdateLanguage();
    EXPECT_EQ(sci.SinBtn->accessibleName(), QStringLiteral("Sinus"));
    EXPECT_EQ(sci.MemoryRecallBtn->accessibleName(), QStringLiteral("Speicher abrufen"));
    LoadTranslation(QLocale::c());
}

// Key texts are converted once while the built-in texts are in use; a form made while a
// translation is installed, and one made after it is gone, still show the texts of their time.
TEST_F(AccessibleNameTest, EachNewFormShowsTheTextsOfItsTime)
{
    const auto texts = [](const TQORSciCalcForm& form) {
        return QStringList {form.SinBtn->text(), form.SinBtn->toolTip(),
                            form.SinBtn->accessibleName(), form.SinBtn->accessibleDescription()};
    };
    const QStringList english = texts(TQORSciCalcForm());
    ASSERT_EQ(english[2], QStringLiteral("sine"));
    SetTranslationHook(
        [](std::string_view, std::string_view source) { return "<" + std::string(source) + ">"; });
    const QStringList marked = texts(TQORSciCalcForm());
    SetTranslationHook({});
    for (qsizetype i = 0; i < english.size(); ++i)
        EXPECT_EQ(marked[i], QLatin1Char('<') + english[i] + QLatin1Char('>')) << i;
    EXPECT_EQ(texts(TQORSciCalcForm()), english);
}

} // namespace
} // namespace qorkit
