// Links against the installed Qt library target (compiles and links only).
#include <QCoreApplication>
#include <QORKITSettings.h>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    return qorkit::FormatSettings.DecimalSeparator == '.' ? 0 : 1;
}
