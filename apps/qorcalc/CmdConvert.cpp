// qorcalc convert: one value between two units, found by display or member name.
#include "QORKITConversion.h"
#include "QORKITStrings.h"
#include "QORKITUnitAliases.h"
#include "QorcalcCommands.h"

#include <algorithm>
#include <iostream>
#include <optional>
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

// Units named by the text, ignoring case: first by display name, member name or one of the
// spellings of the alias table ("foot", "meter", "lb", "°F"), then by routine token ("Km",
// "Lbs"), then by the plural of a display name ("mile" finds "Miles").
std::vector<TUnitMatch> FindUnits(std::string_view text, const std::vector<TQORConvType>& scope)
{
    const std::string wanted = LowerAscii(text);
    const auto inScope = [&scope](TQORConvType q) {
        return std::find(scope.begin(), scope.end(), q) != scope.end();
    };
    std::vector<TUnitMatch> matches;
    const auto add = [&matches](TQORConvType q, std::size_t unit) {
        for (const auto& m : matches)
            if (m.Quantity == q && m.Unit == unit)
                return;
        matches.push_back({q, unit});
    };
    const auto collect = [&](auto&& matchesUnit) {
        for (const auto quantity : scope) {
            const auto rules = qorkit::UnitRules(quantity);
            for (std::size_t unit = 0; unit < rules.size(); ++unit)
                if (matchesUnit(quantity, unit, rules[unit]))
                    add(quantity, unit);
        }
        return !matches.empty();
    };
    const auto names = [&](TQORConvType q, std::size_t unit, const qorkit::TQORUnitRule& rule) {
        return LowerAscii(qorkit::UnitName(q, unit)) == wanted
            || LowerAscii(rule.MemberName) == wanted;
    };
    // An alias adds a unit only in a quantity where no display or member name matched ("mph"
    // is the name "MPH"; "newton" names a temperature scale and, as an alias, the force).
    const auto aliases = [&] {
        const auto named = matches;
        const auto nameIn = [&named](TQORConvType q) {
            return std::any_of(named.begin(), named.end(),
                               [q](const TUnitMatch& m) { return m.Quantity == q; });
        };
        for (const auto& alias : qorkit::QORUnitAliases)
            if (LowerAscii(alias.Alias) == wanted && inScope(alias.Quantity)
                && !nameIn(alias.Quantity))
                add(alias.Quantity, alias.Unit);
        return !matches.empty();
    };
    const bool named = collect(names);
    const bool aliased = aliases();
    named || aliased || collect([&](TQORConvType, std::size_t, const qorkit::TQORUnitRule& rule) {
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

// How well a spelling (a display name or an alias, lower case) fits what was typed, the way
// people mistype: it begins with the text, then a few edits away (scaled to the length), then
// a word of it begins with the text; lower is better, nullopt when it does not fit at all.
std::optional<std::size_t> Closeness(const std::string& spelling, const std::string& wanted)
{
    if (spelling.starts_with(wanted))
        return 0;
    const std::size_t edits = EditDistance(spelling, wanted);
    const std::size_t allowed
        = std::max<std::size_t>(1, std::min(wanted.size(), spelling.size()) / 3);
    if (edits <= allowed)
        return edits;
    if (spelling.find(" " + wanted) != std::string::npos
        || spelling.find("(" + wanted) != std::string::npos)
        return allowed + 1;
    return std::nullopt;
}

// Names close to an unknown one, best first: each unit once, at its best spelling; among equals
// the spelling nearest in length to what was typed ("metr" is "metre" before "metric ton"), then
// the shorter (more common) name.
void ListCloseMatches(std::string_view text, const std::vector<TQORConvType>& scope,
                      std::ostream& err)
{
    const std::string wanted = LowerAscii(text);
    struct Candidate {
        std::pair<std::size_t, std::size_t> Rank; // closeness, then difference in length
        TUnitMatch Unit;
        std::string Label;
    };
    std::vector<Candidate> close;
    const auto consider = [&](TQORConvType q, std::size_t unit, std::string_view spelling) {
        const std::string name = qorkit::UnitName(q, unit);
        const auto score = Closeness(LowerAscii(spelling), wanted);
        if (name.empty() || !score)
            return;
        const std::pair rank {*score,
                              std::max(spelling.size(), wanted.size())
                                  - std::min(spelling.size(), wanted.size())};
        for (auto& c : close)
            if (c.Unit.Quantity == q && c.Unit.Unit == unit) {
                c.Rank = std::min(c.Rank, rank);
                return;
            }
        close.push_back({rank, {q, unit}, name + " (" + qorkit::QORConvTypeStr[q] + ")"});
    };
    for (const auto quantity : scope)
        for (std::size_t unit = 0; unit < qorkit::UnitCount(quantity); ++unit)
            consider(quantity, unit, qorkit::UnitName(quantity, unit));
    for (const auto& alias : qorkit::QORUnitAliases)
        if (std::find(scope.begin(), scope.end(), alias.Quantity) != scope.end())
            consider(alias.Quantity, alias.Unit, alias.Alias);
    std::stable_sort(close.begin(), close.end(), [](const Candidate& a, const Candidate& b) {
        return a.Rank != b.Rank ? a.Rank < b.Rank : a.Label.size() < b.Label.size();
    });
    if (close.empty())
        return;
    err << "close matches:";
    for (std::size_t i = 0; i < close.size() && i < 8; ++i)
        err << "\n  " << close[i].Label;
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
            return 2;
        scope = {quantity};
    }
    EndOptions(args);
    if (args.size() != 3) {
        err << "usage: qorcalc convert VALUE FROM TO [--quantity QUANTITY]\n";
        return 2;
    }
    const qorkit::Extended value = ParseNumber(args[0], "VALUE");
    const auto from = FindUnits(args[1], scope);
    const auto to = FindUnits(args[2], scope);
    for (const auto& [text, found] : {std::pair {args[1], &from}, std::pair {args[2], &to}})
        if (found->empty()) {
            err << "unknown unit '" << text << "'\n";
            ListCloseMatches(text, scope, err);
            return 2;
        }
    std::vector<std::pair<TUnitMatch, TUnitMatch>> pairs;
    for (const auto& a : from)
        for (const auto& b : to)
            if (a.Quantity == b.Quantity)
                pairs.emplace_back(a, b);
    if (pairs.empty()) {
        err << "'" << args[1] << "' and '" << args[2] << "' are not units of one quantity\n";
        return 2;
    }
    if (pairs.size() > 1) {
        err << "ambiguous units; give member names or --quantity. Candidates:\n";
        for (const auto& [a, b] : pairs)
            err << "  " << Describe(a) << " -> " << Describe(b) << '\n';
        return 2;
    }
    const auto& [a, b] = pairs.front();
    const auto result = qorkit::ConvertUnits(a.Quantity, a.Unit, b.Unit, value);
    out << FormatNumber(value) << ' ' << qorkit::UnitName(a.Quantity, a.Unit) << " = "
        << FormatNumber(result) << ' ' << qorkit::UnitName(b.Quantity, b.Unit) << '\n';
    return 0;
}

const bool registered = RegisterCommand(
    {"convert", "VALUE FROM TO [--quantity QUANTITY]",
     "convert a value between two units, named by display or member name, or as people write "
     "them (\"foot\", \"meter\", \"lb\", \"°F\", \"km/h\"; a bare \"gallon\", \"pint\" or "
     "\"ton\" is the US one)",
     RunConvert});

} // namespace
} // namespace qorcalc
