#include "QorcalcCommands.h"

#include "QORKITSettings.h"
#include "QORKITStrings.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <stdexcept>

namespace qorcalc {

namespace {
std::map<std::string, Command, std::less<>>& Table()
{
    static std::map<std::string, Command, std::less<>> table;
    return table;
}
} // namespace

bool RegisterCommand(Command command)
{
    auto name = command.Name;
    return Table().emplace(std::move(name), std::move(command)).second;
}

const Command* FindCommand(std::string_view name)
{
    const auto it = Table().find(name);
    return it == Table().end() ? nullptr : &it->second;
}

std::vector<const Command*> AllCommands()
{
    std::vector<const Command*> result;
    for (const auto& [name, command] : Table())
        result.push_back(&command);
    return result;
}

namespace {

// The arguments before the "--" marker: the only place options are looked for.
std::vector<std::string>::iterator OptionsEnd(std::vector<std::string>& args)
{
    return std::find(args.begin(), args.end(), "--");
}

bool LooksLikeOption(const std::string& arg)
{
    return arg.size() > 2 && arg.starts_with("--")
        && std::isalpha(static_cast<unsigned char>(arg[2]));
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The shape of a typed number. On success `plain` is the number without thousands separators
// and `significant` tells whether any digit of the mantissa is not zero.
struct NumberShape {
    std::string problem; // empty when the text is a number
    std::string plain;
    bool significant = false;
};

NumberShape ShapeOf(std::string_view text, bool grouping)
{
    const char decimal = qorkit::FormatSettings.DecimalSeparator;
    const char thousands = qorkit::FormatSettings.ThousandSeparator;
    NumberShape shape;
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '-' || text[i] == '+'))
        shape.plain += text[i++];
    // The whole part, as groups between thousands separators.
    std::vector<std::size_t> groups {0};
    for (; i < text.size() && (IsDigit(text[i]) || text[i] == thousands); ++i) {
        if (text[i] == thousands) {
            groups.push_back(0);
            continue;
        }
        ++groups.back();
        shape.plain += text[i];
        shape.significant = shape.significant || text[i] != '0';
    }
    if (groups.size() > 1) {
        const bool threes
            = std::all_of(groups.begin() + 1, groups.end(), [](std::size_t n) { return n == 3; });
        if (!grouping)
            shape.problem = "no thousands separators here";
        else if (groups.front() == 0 || groups.front() > 3 || !threes)
            shape.problem
                = std::string("a thousands separator '") + thousands + "' must group three digits";
    }
    if (i < text.size() && text[i] == decimal) {
        shape.plain += '.';
        for (++i; i < text.size() && IsDigit(text[i]); ++i) {
            shape.plain += text[i];
            shape.significant = shape.significant || text[i] != '0';
        }
    }
    auto digits
        = static_cast<std::size_t>(std::count_if(shape.plain.begin(), shape.plain.end(), IsDigit));
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E') && digits > 0) {
        shape.plain += 'e';
        ++i;
        if (i < text.size() && (text[i] == '-' || text[i] == '+'))
            shape.plain += text[i++];
        const std::size_t start = i;
        for (; i < text.size() && IsDigit(text[i]); ++i)
            shape.plain += text[i];
        if (i == start)
            digits = 0; // "1e" has no exponent digits
    }
    if (shape.problem.empty() && (digits == 0 || i != text.size()))
        shape.problem = "not a number";
    return shape;
}

// The value of a number whose shape is right, or a UsageError for one out of range.
qorkit::Extended ValueOf(const NumberShape& shape, std::string_view text, std::string_view what)
{
    std::string localised = shape.plain;
    std::replace(localised.begin(), localised.end(), '.', qorkit::FormatSettings.DecimalSeparator);
    qorkit::Extended value = 0;
    // Str2Float refuses a value too large for an extended float and reads one too small as 0.
    if (!qorkit::TryStr2Float(localised, value) || (value == 0 && shape.significant))
        throw UsageError(std::string(what) + ": number out of range: " + std::string(text));
    return value;
}

std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

} // namespace

bool TakeFlag(std::vector<std::string>& args, std::string_view flag)
{
    const auto end = OptionsEnd(args);
    const auto it = std::find(args.begin(), end, flag);
    if (it == end)
        return false;
    args.erase(it);
    return true;
}

bool TakeOption(std::vector<std::string>& args, std::string_view name, std::string& value)
{
    const std::string prefix = std::string(name) + "=";
    const auto end = OptionsEnd(args);
    for (auto it = args.begin(); it != end; ++it) {
        if (*it == name) {
            if (std::next(it) == args.end())
                throw UsageError("option " + std::string(name) + " needs a value");
            value = *std::next(it);
            args.erase(it, std::next(it, 2));
            return true;
        }
        if (it->starts_with(prefix)) {
            value = it->substr(prefix.size());
            args.erase(it);
            return true;
        }
    }
    return false;
}

void EndOptions(std::vector<std::string>& args)
{
    const auto end = OptionsEnd(args);
    const auto unknown = std::find_if(args.begin(), end, LooksLikeOption);
    if (unknown != end)
        throw UsageError("unknown option " + Quoted(*unknown) + " (see --help)");
    if (end != args.end())
        args.erase(end);
}

qorkit::Extended ParseNumber(std::string_view text, std::string_view what, bool grouping)
{
    const NumberShape shape = ShapeOf(text, grouping);
    if (!shape.problem.empty())
        throw UsageError(std::string(what) + ": " + Quoted(text) + " is not a number"
                         + (shape.problem == "not a number" ? "" : " (" + shape.problem + ")"));
    return ValueOf(shape, text, what);
}

qorkit::Extended ParseNumberIn(std::string_view text, std::string_view what, qorkit::Extended low,
                               qorkit::Extended high)
{
    const qorkit::Extended value = ParseNumber(text, what);
    if (value < low || value > high)
        throw UsageError(std::string(what) + " must lie between " + qorkit::Float2EStr2(low, 6)
                         + " and " + qorkit::Float2EStr2(high, 6) + ", got " + std::string(text));
    return value;
}

std::int64_t ParseWhole(std::string_view text, std::string_view what, std::int64_t low,
                        std::int64_t high)
{
    const auto refuse = [&] {
        return UsageError(std::string(what) + " takes a whole number from " + std::to_string(low)
                          + " to " + std::to_string(high) + ", got " + Quoted(text));
    };
    qorkit::Extended value = 0;
    try {
        value = ParseNumber(text, what);
    } catch (const UsageError&) {
        throw refuse();
    }
    if (value != std::trunc(value) || value < static_cast<qorkit::Extended>(low)
        || value > static_cast<qorkit::Extended>(high))
        throw refuse();
    return static_cast<std::int64_t>(value);
}

void CheckExpressionNumbers(std::string_view text)
{
    // The evaluator skips blanks, so "1 e 5" is written 1e5; it lower-cases its text.
    std::string compact;
    for (const char c : text)
        if (static_cast<unsigned char>(c) > ' ')
            compact += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    const char decimal = qorkit::FormatSettings.DecimalSeparator;
    const char thousands = qorkit::FormatSettings.ThousandSeparator;
    const auto inNumber = [&](char c) { return IsDigit(c) || c == decimal || c == thousands; };
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    std::size_t i = 0;
    while (i < compact.size()) {
        if (isLetter(compact[i])) { // a word: its letters are no number
            while (i < compact.size() && isLetter(compact[i]))
                ++i;
            continue;
        }
        if (!inNumber(compact[i])) {
            ++i;
            continue;
        }
        const std::size_t start = i;
        while (i < compact.size() && inNumber(compact[i]))
            ++i;
        // "e" alone (not the start of a longer word) is the exponent key.
        if (i + 1 < compact.size() && compact[i] == 'e' && !isLetter(compact[i + 1])) {
            std::size_t j = i + 1;
            if (compact[j] == '-' || compact[j] == '+')
                ++j;
            const std::size_t digits = j;
            while (j < compact.size() && IsDigit(compact[j]))
                ++j;
            if (j > digits)
                i = j;
        }
        const std::string_view literal = std::string_view(compact).substr(start, i - start);
        const qorkit::Extended value = ParseNumber(literal, "expression");
        // The calculator drops a whole zero before an exponent and reads the exponent's digits
        // as a new number ("0e5" would give 5).
        if (value == 0 && literal.find('e') != std::string_view::npos
            && literal.find(decimal) == std::string_view::npos)
            throw UsageError("expression: " + Quoted(literal)
                             + " is a zero with an exponent; write 0");
    }
}

} // namespace qorcalc
