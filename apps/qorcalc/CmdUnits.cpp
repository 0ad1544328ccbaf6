// qorcalc units: the quantities, or the units of one quantity with their sizes in its base unit.
// Also holds the name lookups that `qorcalc convert` shares.
#include "QORKITConversion.h"
#include "QorcalcCommands.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace qorcalc {

using qorkit::TQORConvType;

std::string LowerAscii(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return result;
}

std::string FormatNumber(qorkit::Extended value)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.15Lg", value);
    return buffer;
}

std::vector<TQORConvType> QuantitiesWithUnits()
{
    std::vector<TQORConvType> result;
    for (std::size_t q = 0; q < qorkit::QORConvTypeStr.size(); ++q)
        if (qorkit::UnitCount(static_cast<TQORConvType>(q)) > 0)
            result.push_back(static_cast<TQORConvType>(q));
    return result;
}

// The quantity named by its display name ("Distance (Length)"), the start of it ("distance"),
// its member name ("ectDistance") or its ordinal, ignoring case; false when none or several.
bool FindQuantity(std::string_view text, TQORConvType& quantity, std::ostream& err)
{
    const std::string wanted = LowerAscii(text);
    std::vector<TQORConvType> exact;
    std::vector<TQORConvType> prefix;
    for (std::size_t q = 0; q < qorkit::QORConvTypeStr.size(); ++q) {
        const auto candidate = static_cast<TQORConvType>(q);
        const std::string name = LowerAscii(qorkit::QORConvTypeStr[candidate]);
        const std::string member = LowerAscii(qorkit::QuantityMemberName(candidate));
        if (name == wanted || member == wanted || member == "ect" + wanted
            || std::to_string(q) == wanted)
            exact.push_back(candidate);
        else if (name.starts_with(wanted))
            prefix.push_back(candidate);
    }
    const auto& found = exact.empty() ? prefix : exact;
    if (found.size() == 1) {
        quantity = found.front();
        return true;
    }
    err << (found.empty() ? "unknown quantity '" : "ambiguous quantity '") << text
        << "'; `qorcalc units` lists the quantities\n";
    return false;
}

namespace {

const char* SourceName(qorkit::TQORFactorSource source)
{
    switch (source) {
    case qorkit::TQORFactorSource::Const:
        return "named constant";
    case qorkit::TQORFactorSource::Exact:
        return "exact";
    case qorkit::TQORFactorSource::Nist:
        return "NIST SP 811";
    case qorkit::TQORFactorSource::Custom:
        return "customary";
    case qorkit::TQORFactorSource::Ref:
        return "reference value";
    }
    return "";
}

int RunUnits(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    EndOptions(args);
    if (args.size() > 1) {
        err << "usage: qorcalc units [QUANTITY]\n";
        return 2;
    }
    if (args.empty()) {
        for (const auto quantity : QuantitiesWithUnits())
            out << static_cast<int>(quantity) << '\t' << qorkit::QORConvTypeStr[quantity] << " ("
                << qorkit::UnitCount(quantity) << " units)\n";
        return 0;
    }
    TQORConvType quantity {};
    if (!FindQuantity(args[0], quantity, err))
        return 2;
    if (qorkit::UnitCount(quantity) == 0) {
        err << qorkit::QORConvTypeStr[quantity] << " has no units\n";
        return 1;
    }
    const auto base = qorkit::BaseUnit(quantity);
    out << qorkit::QORConvTypeStr[quantity] << "; base unit " << qorkit::UnitName(quantity, base)
        << '\n';
    const auto rules = qorkit::UnitRules(quantity);
    for (std::size_t unit = 0; unit < rules.size(); ++unit) {
        out << unit << '\t' << rules[unit].MemberName << '\t' << qorkit::UnitName(quantity, unit);
        try {
            out << "\t1 = " << FormatNumber(qorkit::UnitToBase(quantity, unit, 1)) << ' '
                << qorkit::UnitName(quantity, base);
        } catch (const std::exception& e) {
            out << '\t' << e.what();
        }
        out << " [" << SourceName(rules[unit].Source) << "]\n";
    }
    return 0;
}

const bool registered = RegisterCommand(
    {"units", "[QUANTITY]", "list the quantities, or the units of one quantity", RunUnits});

} // namespace
} // namespace qorcalc
