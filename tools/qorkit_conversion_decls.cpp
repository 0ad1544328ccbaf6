// qorkit_conversion_decls [file]: writes the declarations of the unit-conversion routines (see
// qorkit_conversion_decls.h) to the file, or to standard output. An unchanged file is left alone
// so that nothing that includes it is rebuilt.
#include "qorkit_conversion_decls.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

int main(int argc, char* argv[])
{
    const std::string text = qorkit::tools::ConversionRoutinesHeader();
    if (argc < 2) {
        std::cout << text;
        return 0;
    }
    {
        std::ifstream current(argv[1], std::ios::binary);
        if (current
            && std::string(std::istreambuf_iterator<char>(current),
                           std::istreambuf_iterator<char>())
                == text)
            return 0;
    }
    std::ofstream out(argv[1], std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out) {
        std::cerr << "qorkit_conversion_decls: cannot write " << argv[1] << '\n';
        return 1;
    }
    std::cout << "Wrote " << argv[1] << '\n';
    return 0;
}
