// A program outside the source tree, built against the installed package.
#include <qorkit/QORKITStrings.h>

#include <cstdio>

int main()
{
    const auto text = qorkit::Float2CEStr(1234567.891L, 2);
    std::printf("%s\n", text.c_str());
    return text == "1,234,567.89" ? 0 : 1;
}
