#include "QorcalcCommands.h"

#include <algorithm>
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

bool TakeFlag(std::vector<std::string>& args, std::string_view flag)
{
    const auto it = std::find(args.begin(), args.end(), flag);
    if (it == args.end())
        return false;
    args.erase(it);
    return true;
}

bool TakeOption(std::vector<std::string>& args, std::string_view name, std::string& value)
{
    const std::string prefix = std::string(name) + "=";
    for (auto it = args.begin(); it != args.end(); ++it) {
        if (*it == name) {
            if (std::next(it) == args.end())
                throw std::invalid_argument("option " + std::string(name) + " needs a value");
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

} // namespace qorcalc
