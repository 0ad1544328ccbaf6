// Time to open the calculator dialogs: construct, show and run the event loop until the first
// paint has reached the dialog, then destroy. Each beside a plain QDialog with as many push
// buttons in a grid, which is what the same number of keys costs without any calculator.
#include "QORKITCalculator.h"
#include "QORKITProgCalculator.h"
#include "QORKITSciCalculator.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace qorkit;

// Notes the first paint event of the widget it watches.
class PaintWatch : public QObject {
public:
    bool painted = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted = true;
        return QObject::eventFilter(watched, event);
    }
};

void ShowUntilPainted(QWidget& dialog)
{
    PaintWatch watch;
    dialog.installEventFilter(&watch);
    dialog.show();
    for (int round = 0; !watch.painted && round < 1000; ++round)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    dialog.removeEventFilter(&watch);
    dialog.hide();
}

template<class Form> int ButtonCount()
{
    Form form;
    return static_cast<int>(form.template findChildren<QAbstractButton*>().size());
}

template<class Form> void BM_OpenDialog(benchmark::State& state)
{
    for (auto _ : state) {
        auto form = std::make_unique<Form>();
        ShowUntilPainted(*form);
    }
    state.SetItemsProcessed(state.iterations());
}

// The peer: a QDialog with `buttons` captioned push buttons in a grid of six columns.
void BM_PlainDialog(benchmark::State& state)
{
    const int buttons = static_cast<int>(state.range(0));
    for (auto _ : state) {
        auto dialog = std::make_unique<QDialog>();
        auto* grid = new QGridLayout(dialog.get());
        for (int i = 0; i < buttons; ++i)
            grid->addWidget(new QPushButton(QString::number(i), dialog.get()), i / 6, i % 6);
        ShowUntilPainted(*dialog);
    }
    state.SetItemsProcessed(state.iterations());
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The forms read and write their settings: keep them in a scratch directory.
    QTemporaryDir settingsDir;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());

    benchmark::RegisterBenchmark("BM_OpenDialog/Standard", BM_OpenDialog<TQORCalcForm>);
    benchmark::RegisterBenchmark("BM_PlainDialog/Standard", BM_PlainDialog)
        ->Arg(ButtonCount<TQORCalcForm>());
    benchmark::RegisterBenchmark("BM_OpenDialog/Scientific", BM_OpenDialog<TQORSciCalcForm>);
    benchmark::RegisterBenchmark("BM_PlainDialog/Scientific", BM_PlainDialog)
        ->Arg(ButtonCount<TQORSciCalcForm>());
    benchmark::RegisterBenchmark("BM_OpenDialog/Programmer", BM_OpenDialog<TQORProgCalcForm>);
    benchmark::RegisterBenchmark("BM_PlainDialog/Programmer", BM_PlainDialog)
        ->Arg(ButtonCount<TQORProgCalcForm>());

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
