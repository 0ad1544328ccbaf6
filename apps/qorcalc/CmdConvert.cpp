// qorcalc convert: one value between two units, found by display or member name.
#include "QORKITConversion.h"
#include "QORKITStrings.h"
#include "QorcalcCommands.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

namespace qorcalc {

using qorkit::TQORConvType;

// Shared with `qorcalc units` (CmdUnits.cpp).
std::string LowerAscii(std::string_view text);
std::string FormatNumber(qorkit::Extended value);
std::vector<TQORConvType> QuantitiesWithUnits();
bool FindQuantity(std::string_view text, TQORConvType& quantity, std::ostream& err);

namespace {

struct TUnitMatch {
    TQORConvType Quantity;
    std::size_t Unit;
};

// Units named by the text, ignoring case: first by display or member name, then by routine token
// ("Km", "Lbs"), then by the plural of a display name ("mile" finds "Miles").
std::vector<TUnitMatch> FindUnits(std::string_view text, const std::vector<TQORConvType>& scope)
{
    const std::string wanted = LowerAscii(text);
    std::vector<TUnitMatch> matches;
    const auto collect = [&](auto&& matchesUnit) {
        for (const auto quantity : scope) {
            const auto rules = qorkit::UnitRules(quantity);
            for (std::size_t unit = 0; unit < rules.size(); ++unit)
                if (matchesUnit(quantity, unit, rules[unit]))
                    matches.push_back({quantity, unit});
        }
        return !matches.empty();
    };
    collect([&](TQORConvType q, std::size_t unit, const qorkit::TQORUnitRule& rule) {
        return LowerAscii(qorkit::UnitName(q, unit)) == wanted
            || LowerAscii(rule.MemberName) == wanted;
    }) || collect([&](TQORConvType, std::size_t, const qorkit::TQORUnitRule& rule) {
        return LowerAscii(rule.Token) == wanted;
    }) || collect([&](TQORConvType q, std::size_t unit, const qorkit::TQORUnitRule&) {
        return LowerAscii(qorkit::UnitName(q, unit)) == wanted + "s";
    });
    return matches;
}

std::size_t EditDistance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1])});
            diagonal = above;
        }
    }
    return row[b.size()];
}

// Names close to an unknown one: containing it, or a few edits away.
void ListCloseMatches(std::string_view text, const std::vector<TQORConvType>& scope,
                      std::ostream& err)
{
    const std::string wanted = LowerAscii(text);
    std::vector<std::pair<std::size_t, std::string>> close;
    for (const auto quantity : scope)
        for (std::size_t unit = 0; unit < qorkit::UnitCount(quantity); ++unit) {
            const std::string name = qorkit::UnitName(quantity, unit);
            const std::string lower = LowerAscii(name);
            if (lower.empty())
                continue;
            const std::size_t distance
                = lower.find(wanted) != std::string::npos ? 0 : EditDistance(lower, wanted);
            if (distance <= 3)
                close.emplace_back(distance, name + " (" + qorkit::QORConvTypeStr[quantity] + ")");
        }
    std::stable_sort(close.begin(), close.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    if (close.empty())
        return;
    err << "close matches:";
    for (std::size_t i = 0; i < close.size() && i < 10; ++i)
        err << "\n  " << close[i].second;
    err << '\n';
}

std::string Describe(const TUnitMatch& match)
{
    return std::string(qorkit::UnitMemberName(match.Quantity, match.Unit)) + " \""
        + qorkit::UnitName(match.Quantity, match.Unit) + "\" ("
        + qorkit::QORConvTypeStr[match.Quantity] + ")";
}

int RunConvert(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    auto args = arguments;
    std::vector<TQORConvType> scope = QuantitiesWithUnits();
    std::string quantityText;
    if (TakeOption(args, "--quantity", quantityText)) {
        TQORConvType quantity {};
        if (!FindQuantity(quantityText, quantity, err))
            return 1;
        scope = {quantity};
    }
    if (args.size() != 3) {
        err << "usage: qorcalc convert VALUE FROM TO [--quantity QUANTITY]\n";
        return 2;
    }
    qorkit::Extended value = 0;
    if (!qorkit::TryStr2Float(args[0], value)) {
        err << "'" << args[0] << "' is not a number\n";
        return 1;
    }
    const auto from = FindUnits(args[1], scope);
    const auto to = FindUnits(args[2], scope);
    for (const auto& [text, found] : {std::pair {args[1], &from}, std::pair {args[2], &to}})
        if (found->empty()) {
            err << "unknown unit '" << text << "'\n";
            ListCloseMatches(text, scope, err);
            return 1;
        }
    std::vector<std::pair<TUnitMatch, TUnitMatch>> pairs;
    for (const auto& a : from)
        for (const auto& b : to)
            if (a.Quantity == b.Quantity)
                pairs.emplace_back(a, b);
    if (pairs.empty()) {
        err << "'" << args[1] << "' and '" << args[2] << "' are not units of one quantity\n";
        return 1;
    }
    if (pairs.size() > 1) {
        err << "ambiguous units; give member names or --quantity. Candidates:\n";
        for (const auto& [a, b] : pairs)
            err << "  " << Describe(a) << " -> " << Describe(b) << '\n';
        return 1;
    }
    const auto& [a, b] = pairs.front();
    const auto result = qorkit::ConvertUnits(a.Quantity, a.Unit, b.Unit, value);
    out << FormatNumber(value) << ' ' << qorkit::UnitName(a.Quantity, a.Unit) << " = "
        << FormatNumber(result) << ' ' << qorkit::UnitName(b.Quantity, b.Unit) << '\n';
    return 0;
}

const bool registered = RegisterCommand(
    {"convert", "VALUE FROM TO [--quantity QUANTITY]",
     "convert a value between two units, named by display or member name", RunConvert});

} // namespace
} // namespace qorcalc
