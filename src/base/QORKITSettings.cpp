#include "QORKITSettings.h"

namespace qorkit {

TFormatSettings FormatSettings;

bool QORCalcRadians = true;
Extended QORCalcMemory = 0;
std::string QORCalcDispFont = QORDefaultCalcDispFont;
std::int64_t QORProgCalcMemory = 0;

TQORRegIniType QORRegIniType = ritNone;
std::string QORRegPath;
std::string QORRegSection;
std::string QORIniFile;
std::string QORIniSection;

int QORCalcHelpContext = 0;
int QORSmallCalcHelpContext = 0;
int QORSciCalcHelpContext = 0;
int QORProgCalcHelpContext = 0;

bool QORNorthPositive = true;
bool QOREastPositive = true;

namespace {
constexpr std::uint64_t DefaultSeed = 5489u;

// A seed takes effect at the generator's next use: engines seed on construction and most of
// them never draw a number, so seeding costs nothing until someone does.
bool seedPending = false;
std::uint64_t pendingSeed = 0;
} // namespace

std::mt19937_64& RandomGenerator()
{
    static std::mt19937_64 generator {DefaultSeed};
    if (seedPending) {
        generator.seed(pendingSeed);
        seedPending = false;
    }
    return generator;
}

void RandomSeed(std::uint64_t seed)
{
    pendingSeed = seed;
    seedPending = true;
}

Extended RandomExtended()
{
    // 64 random bits scaled into [0, 1): every bit of the extended mantissa is random.
    constexpr Extended scale = 1.0L / 18446744073709551616.0L;
    return static_cast<Extended>(RandomGenerator()()) * scale;
}

void ResetGlobalSettings()
{
    FormatSettings = TFormatSettings {};
    QORCalcRadians = true;
    QORCalcMemory = 0;
    QORCalcDispFont = QORDefaultCalcDispFont;
    QORProgCalcMemory = 0;
    QORRegIniType = ritNone;
    QORRegPath.clear();
    QORRegSection.clear();
    QORIniFile.clear();
    QORIniSection.clear();
    QORCalcHelpContext = 0;
    QORSmallCalcHelpContext = 0;
    QORSciCalcHelpContext = 0;
    QORProgCalcHelpContext = 0;
    QORNorthPositive = true;
    QOREastPositive = true;
    RandomSeed(DefaultSeed);
}

} // namespace qorkit
