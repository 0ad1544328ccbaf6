// qorcalc as a user runs it: one table row per command line, with the exit status and a piece
// of the output or of the message it must give.
#include "QorkitTestSupport.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace qorkit::test {
namespace {

struct RunResult {
    int Status = -1;
    std::string Out;
    std::string Err;
};

std::string Slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Runs qorcalc with the arguments (no shell between), standard input from `input`.
RunResult RunQorcalc(const std::vector<std::string>& args, const std::string& input = {})
{
    char outName[] = "/tmp/qorcalc_outXXXXXX";
    char errName[] = "/tmp/qorcalc_errXXXXXX";
    char inName[] = "/tmp/qorcalc_inXXXXXX";
    const int outFd = mkstemp(outName);
    const int errFd = mkstemp(errName);
    const int inFd = mkstemp(inName);
    RunResult result;
    if (outFd < 0 || errFd < 0 || inFd < 0)
        return result;
    if (!input.empty() && write(inFd, input.data(), input.size()) < 0)
        return result;
    lseek(inFd, 0, SEEK_SET);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, inFd, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, outFd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errFd, STDERR_FILENO);
    std::vector<std::string> argv {QORCALC_PATH};
    argv.insert(argv.end(), args.begin(), args.end());
    std::vector<char*> pointers;
    for (auto& arg : argv)
        pointers.push_back(arg.data());
    pointers.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawn(&pid, QORCALC_PATH, &actions, nullptr, pointers.data(), environ) == 0) {
        int status = 0;
        waitpid(pid, &status, 0);
        result.Status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    posix_spawn_file_actions_destroy(&actions);
    for (const int fd : {outFd, errFd, inFd})
        close(fd);
    result.Out = Slurp(outName);
    result.Err = Slurp(errName);
    for (const char* name : {outName, errName, inName})
        std::remove(name);
    return result;
}

struct CliRow {
    const char* Name;
    std::vector<std::string> Args;
    int Status;
    const char* Out; // a piece of standard output ("" when none is expected)
    const char* Err; // a piece of standard error ("" when none is expected)
};

std::string RowName(const ::testing::TestParamInfo<CliRow>& info) { return info.param.Name; }

class Qorcalc : public ::testing::TestWithParam<CliRow> { };

TEST_P(Qorcalc, Row)
{
    const CliRow& row = GetParam();
    const RunResult run = RunQorcalc(row.Args);
    EXPECT_EQ(run.Status, row.Status) << run.Out << run.Err;
    EXPECT_NE(run.Out.find(row.Out), std::string::npos) << run.Out;
    EXPECT_NE(run.Err.find(row.Err), std::string::npos) << run.Err;
    if (row.Status == 2) {
        EXPECT_EQ(run.Out, "") << "a refused command prints no result";
    }
}

// A thousands separator only where it groups three digits; numbers the engine cannot hold
// are reported, not dropped.
INSTANTIATE_TEST_SUITE_P(
    Numbers, Qorcalc,
    ::testing::Values(
        CliRow {"CommaInsideANumber", {"eval", "1,5"}, 2, "", "must group three digits"},
        CliRow {"GroupedThousands", {"eval", "12,345,678+1"}, 0, "12345679\n", ""},
        CliRow {"GroupOfTwoAfterTheFirst", {"eval", "1,23"}, 2, "", "'1,23' is not a number"},
        CliRow {"GroupOfFourFirst", {"eval", "1234,567"}, 2, "", "must group three digits"},
        CliRow {"CommaBetweenBrackets", {"eval", "(1),(2)"}, 2, "", "',' is not a number"},
        CliRow {"HugeExponent", {"eval", "1e99999"}, 2, "", "number out of range: 1e99999"},
        CliRow {"HugeNegative", {"eval", "--", "-1e99999"}, 2, "", "number out of range"},
        CliRow {"TinyExponent", {"eval", "1e-99999"}, 2, "", "number out of range"},
        CliRow {"ZeroWithExponent", {"eval", "0e5"}, 2, "", "write 0"},
        CliRow {"LargestExtended", {"eval", "1e4932"}, 0, "E+4932", ""},
        CliRow {"ExponentWorks", {"eval", "2e3+1"}, 0, "2001\n", ""},
        CliRow {"NegativeAfterMarker", {"eval", "--", "-5+2"}, 0, "-3\n", ""},
        CliRow {"ComplexTwoCommas", {"complex", "add", "1,2,3", "0"}, 2, "", "one comma"},
        CliRow {"ComplexParts", {"complex", "add", "1,2", "3,4"}, 0, "4.000000 + i6.000000", ""},
        CliRow {"ConvertValue", {"convert", "1,5", "m", "km"}, 2, "", "VALUE: '1,5'"},
        CliRow {"ConvertGrouped", {"convert", "1,000", "m", "km"}, 0, "= 1 Kilometres", ""},
        CliRow {"FormatNumber", {"format", "1,5"}, 2, "", "NUMBER: '1,5'"},
        CliRow {"EuroAmount", {"euro", "DEM", "1e99999"}, 2, "", "out of range"},
        CliRow {"KeysNumberWord", {"keys", "1,5", "="}, 2, "", "must group three digits"},
        CliRow {"HexNotAnInteger", {"format", "--hex", "1,5"}, 2, "", "not a 64-bit integer"}),
    RowName);

// Options: unknown ones are refused by every command; values are checked against their range.
INSTANTIATE_TEST_SUITE_P(
    Options, Qorcalc,
    ::testing::Values(
        CliRow {"EvalUnknown", {"eval", "--bogus", "1+1"}, 2, "", "unknown option '--bogus'"},
        CliRow {"KeysUnknown", {"keys", "--bogus", "1"}, 2, "", "unknown option"},
        CliRow {"ProgUnknown", {"prog", "--bogus", "1"}, 2, "", "unknown option"},
        CliRow {"ConvertUnknown", {"convert", "1", "m", "km", "--bogus"}, 2, "", "unknown option"},
        CliRow {"UnitsUnknown", {"units", "--bogus"}, 2, "", "unknown option"},
        CliRow {"AstroUnknown", {"astro", "2024-01-01", "--latt", "3"}, 2, "", "unknown option"},
        CliRow {"NavUnknown", {"nav", "0", "0", "1", "1", "--km"}, 2, "", "unknown option"},
        CliRow {"ComplexUnknown", {"complex", "--bogus", "sqrt", "2"}, 2, "", "unknown option"},
        CliRow {"EuroUnknown", {"euro", "DEM", "1", "--bogus"}, 2, "", "unknown option"},
        CliRow {"FormatUnknown", {"format", "1", "--bogus"}, 2, "", "unknown option"},
        CliRow {"MissingValue", {"eval", "1", "--decimals"}, 2, "", "needs a value"},
        CliRow {"EvalDecimals", {"eval", "--decimals", "31", "1"}, 2, "", "from 0 to 30"},
        CliRow {"ComplexDecimalsWide",
                {"complex", "--decimals", "300", "sqrt", "2"},
                2,
                "",
                "from 0 to 30, got '300'"},
        CliRow {"ComplexDecimalsNegative",
                {"complex", "--decimals", "-1", "sqrt", "2"},
                2,
                "",
                "from 0 to 30"},
        CliRow {
            "ComplexDecimals", {"complex", "--decimals", "2", "sqrt", "2"}, 0, "1.41 + i0.00", ""},
        CliRow {"RootsNegative", {"complex", "roots", "1,0", "-2"}, 2, "", "from 1 to 1000"},
        CliRow {"RootsZero", {"complex", "roots", "1,0", "0"}, 2, "", "from 1 to 1000"},
        CliRow {"RootsHuge", {"complex", "roots", "1,0", "100000000"}, 2, "", "from 1 to 1000"},
        CliRow {"RootsFour", {"complex", "roots", "16,0", "4"}, 0, "-2.000000", ""},
        CliRow {"ArctanhAsInTheHelp", {"complex", "arctanh", "0.5"}, 0, "0.549306", ""},
        CliRow {"ArtanhStill", {"complex", "artanh", "0.5"}, 0, "0.549306", ""}),
    RowName);

// Places, dates and courses: out-of-range values are named, with the value given.
INSTANTIATE_TEST_SUITE_P(
    Places, Qorcalc,
    ::testing::Values(
        CliRow {"LatitudeBeyondPole",
                {"astro", "2024-01-01", "--lat", "95", "--lon", "0"},
                2,
                "",
                "--lat must lie between -90 and 90, got 95"},
        CliRow {"LongitudeBeyond",
                {"astro", "2024-01-01", "--lat", "0", "--lon", "400"},
                2,
                "",
                "--lon must lie between -180 and 180"},
        CliRow {"LatitudeAlone", {"astro", "2024-01-01", "--lat", "10"}, 2, "", "give both"},
        CliRow {"LongitudeAlone", {"astro", "2024-01-01", "--lon", "10"}, 2, "", "give both"},
        CliRow {"InvalidTime", {"astro", "2024-01-01T25:00"}, 2, "", "invalid time 25:00"},
        CliRow {"InvalidMinute", {"astro", "2024-01-01T12:60"}, 2, "", "invalid time 12:60"},
        CliRow {"InvalidDate", {"astro", "2023-02-29"}, 2, "", "invalid date 2023-02-29"},
        CliRow {"LeapDay", {"astro", "2024-02-29"}, 0, "julian date     2460369.5", ""},
        CliRow {"TrailingJunk", {"astro", "2024-01-01x"}, 2, "", "expected a date"},
        CliRow {"OffsetBeyondADay",
                {"astro", "2024-01-01", "--lat", "0", "--lon", "0", "--offset", "30"},
                2,
                "",
                "--offset must lie between -24 and 24"},
        CliRow {"GreenwichPlusFive",
                {"astro", "2024-01-10", "--lat", "51.4779", "--lon", "0", "--offset", "5"},
                0,
                "/ 21:",
                ""},
        CliRow {"RadiusZero",
                {"nav", "0", "0", "--bearing", "90", "--distance", "100", "--unit", "km",
                 "--radius", "0"},
                2,
                "",
                "--radius must be greater than 0"},
        CliRow {"RadiusNegative",
                {"nav", "0", "0", "1", "1", "--radius", "-1"},
                2,
                "",
                "--radius must be greater than 0"},
        CliRow {"BeyondTheAntipode",
                {"nav", "0", "0", "--bearing", "90", "--distance", "30000", "--unit", "km"},
                2,
                "",
                "destination beyond the antipode"},
        CliRow {"NearAPole",
                {"nav", "80", "0", "--bearing", "90", "--distance", "3000", "--unit", "km"},
                2,
                "",
                "too close to a pole"},
        CliRow {"NavLatitude",
                {"nav", "95", "0", "10", "10"},
                2,
                "",
                "first latitude must lie between -90 and 90"},
        CliRow {"NavHalfway", {"nav", "0", "0", "0", "180"}, 0, "distance  10800.00 nm", ""}),
    RowName);

// Units as people write them, and suggestions ranked by how they spell.
INSTANTIATE_TEST_SUITE_P(
    Units, Qorcalc,
    ::testing::Values(
        CliRow {"Foot", {"convert", "1", "foot", "m"}, 0, "1 Feet = 0.3048 Metres", ""},
        CliRow {"InchToCm", {"convert", "1", "inch", "cm"}, 0, "= 2.54 Centimetres", ""},
        CliRow {"Pound", {"convert", "1", "lb", "kg"}, 0, "= 0.45359237 Kilograms", ""},
        CliRow {"FeetSymbol", {"convert", "3", "ft", "yd"}, 0, "= 1 Yards", ""},
        CliRow {"Fahrenheit", {"convert", "212", "°F", "°C"}, 0, "= 100 Celsius", ""},
        CliRow {"USGallon", {"convert", "1", "gallon", "liter"}, 0, "= 3.785411784 Litres", ""},
        CliRow {"Kilometer", {"convert", "1", "kilometer", "meter"}, 0, "= 1000 Metres", ""},
        CliRow {"SpeedSymbols", {"convert", "36", "km/h", "m/s"}, 0, "= 10 Metres per Second", ""},
        CliRow {"NameBeatsAlias", {"convert", "1", "mph", "km/h"}, 0, "1 MPH =", ""},
        CliRow {"AliasPicksQuantity", {"convert", "1", "newton", "lbf"}, 0, "1 Newtons =", ""},
        CliRow {"MisspeltFoot", {"convert", "1", "fot", "m"}, 2, "", "close matches:\n  Feet"},
        CliRow {"MisspeltPound", {"convert", "1", "lbb", "kg"}, 2, "", "close matches:\n  Pounds"},
        CliRow {"PrefixOfMetre",
                {"convert", "1", "metr", "km"},
                2,
                "",
                "close matches:\n  Metres (Distance"},
        CliRow {"MisspeltCelsius",
                {"convert", "1", "celcius", "F"},
                2,
                "",
                "close matches:\n  Celsius"},
        CliRow {"NotUnitsOfOneQuantity", {"convert", "1", "ft", "kg"}, 2, "", "not units of one"}),
    RowName);

TEST(QorcalcStandardInput, EachLineIsCheckedAndTheOthersStillRun)
{
    const RunResult run = RunQorcalc({"eval"}, "1,5\n2+2\n1e99999\n");
    EXPECT_EQ(run.Status, 1);
    EXPECT_EQ(run.Out, "4\n");
    EXPECT_NE(run.Err.find("'1,5' is not a number"), std::string::npos) << run.Err;
    EXPECT_NE(run.Err.find("number out of range"), std::string::npos) << run.Err;
}

} // namespace
} // namespace qorkit::test
