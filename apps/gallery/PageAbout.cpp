// The first page: what the library offers and where each part is shown.
#include "GalleryPages.h"
#include "QORKITConstants.h"
#include "QORKITStrings.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

QWidget* MakeAboutPage(QWidget* parent)
{
    auto* page = new QWidget(parent);
    auto* layout = new QVBoxLayout(page);
    auto* title = new QLabel(QStringLiteral("<h2>qorkit</h2>"), page);
    auto* text = new QLabel(page);
    text->setWordWrap(true);
    text->setText(QStringLiteral(
        "Calculator components for Qt 6 Widgets applications: keystroke calculator engines, "
        "an expression evaluator, unit conversion, numeric domains, calculator dialogs and "
        "edit controls.<br><br>Every page of this gallery shows one part of the library."));
    const auto sample = qorkit::Float2CEStr(qorkit::QORPi * 1e6L, 4);
    auto* number = new QLabel(
        QStringLiteral("Formatted by the base library: %1").arg(QString::fromStdString(sample)),
        page);
    number->setObjectName(QStringLiteral("SampleNumber"));
    layout->addWidget(title);
    layout->addWidget(text);
    layout->addWidget(number);
    layout->addStretch();
    return page;
}

const bool registered = gallery::RegisterPage({QStringLiteral("About"), 0, MakeAboutPage, {}});

} // namespace
