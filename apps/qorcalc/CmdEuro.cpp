// qorcalc euro: a legacy monetary-union currency to euros and back at the fixed rates.
#include "QORKITCurrency.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <ostream>
#include <string>
#include <vector>

namespace {

int RunEuro(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    if (qorcalc::TakeFlag(args, "--list")) {
        qorcalc::EndOptions(args);
        for (const auto& c : qorkit::EMUCurrencies())
            out << c.Code << "  " << qorkit::Float2EStr2(c.Rate, 6) << " per euro  " << c.Country
                << '\n';
        return 0;
    }
    const bool fromEuro = qorcalc::TakeFlag(args, "--from-euro");
    qorcalc::EndOptions(args);
    if (args.size() != 2) {
        err << "qorcalc euro: expected CODE AMOUNT (see qorcalc euro --help)\n";
        return 2;
    }
    const std::string& code = args[0];
    if (qorkit::EMUCode2EMUNo(code) == 0) {
        err << "qorcalc euro: unknown currency code " << code << " (see qorcalc euro --list)\n";
        return 2;
    }
    const auto amount = qorkit::Currency::FromExtended(qorcalc::ParseNumber(args[1], "AMOUNT"));
    const auto result
        = fromEuro ? qorkit::ConvertEuro2EC(code, amount) : qorkit::ConvertEC2Euro(code, amount);
    out << qorkit::Float2EStr(amount.ToExtended(), 4) << ' ' << (fromEuro ? "EUR" : code) << " = "
        << qorkit::Float2EStr(result.ToExtended(), 2) << ' ' << (fromEuro ? code : "EUR") << '\n';
    return 0;
}

const bool registered = qorcalc::RegisterCommand(
    {"euro", "CODE AMOUNT [--from-euro] | --list",
     "a legacy euro-area currency (ATS, BEF, DEM, NJG ...) to euros, or euros to it", RunEuro});

} // namespace
