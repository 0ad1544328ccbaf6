// The pages of the gallery. A page is one Page*.cpp file that registers a factory:
//
//   static const bool registered = gallery::RegisterPage({"Float edit", 10, MakeFloatEditPage});
//
// Every page is shown in the window and written by --screenshot. A page may also name modal
// dialogs to render: Shots returns (file name, widget) pairs that the screenshot run grabs.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

namespace gallery {

struct Page {
    QString Title;
    int Order = 0; // pages are shown in this order
    std::function<QWidget*(QWidget* parent)> Make; // builds the page
    // Extra pictures for --screenshot (dialogs shown from the page); each widget is deleted
    // after it is written.
    std::function<std::vector<std::pair<QString, QWidget*>>()> Shots;
};

bool RegisterPage(Page page);
std::vector<Page> AllPages();

} // namespace gallery
