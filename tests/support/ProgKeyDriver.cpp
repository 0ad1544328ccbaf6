#include "ProgKeyDriver.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <stdexcept>
#include <utility>

namespace qorkit::test {

namespace {

using Action = std::function<void(IQORProgCalcEngine&)>;

const std::map<char, Action>& CharKeys()
{
    static const std::map<char, Action> keys {
        {'+', [](IQORProgCalcEngine& e) { e.DoAdd(); }},
        {'-', [](IQORProgCalcEngine& e) { e.DoSubtract(); }},
        {'*', [](IQORProgCalcEngine& e) { e.DoMultiply(); }},
        {'/', [](IQORProgCalcEngine& e) { e.DoDivide(); }},
        {'%', [](IQORProgCalcEngine& e) { e.DoMod(); }},
        {'&', [](IQORProgCalcEngine& e) { e.DoAnd(); }},
        {'|', [](IQORProgCalcEngine& e) { e.DoOr(); }},
        {'^', [](IQORProgCalcEngine& e) { e.DoXor(); }},
        {'#', [](IQORProgCalcEngine& e) { e.DoNand(); }},
        {'?', [](IQORProgCalcEngine& e) { e.DoNor(); }},
        {'!', [](IQORProgCalcEngine& e) { e.DoXnor(); }},
        {'~', [](IQORProgCalcEngine& e) { e.DoNot(); }},
        {'_', [](IQORProgCalcEngine& e) { e.DoNeg(); }},
        {'<', [](IQORProgCalcEngine& e) { e.DoShl(1); }},
        {'>', [](IQORProgCalcEngine& e) { e.DoShr(1); }},
        {'{', [](IQORProgCalcEngine& e) { e.DoRol(1); }},
        {'}', [](IQORProgCalcEngine& e) { e.DoRor(1); }},
        {'(', [](IQORProgCalcEngine& e) { e.InputLeftBracket(); }},
        {')', [](IQORProgCalcEngine& e) { e.InputRightBracket(); }},
        {'=', [](IQORProgCalcEngine& e) { e.DoEquals(); }},
    };
    return keys;
}

} // namespace

ProgKeyDriver::ProgKeyDriver() : engine_(std::make_shared<TQORProgCalcEngine>())
{
    auto record = [this](std::string name) {
        return [this, name = std::move(name)](IQORProgCalcEngine* sender) {
            if (sender != engine_.get())
                throw std::logic_error("notification from another sender");
            events_.push_back(name);
            ++counts_[name];
        };
    };
    engine_->SetOnHistoryChange(record("History"));
    engine_->SetOnDisplayChange(record("Display"));
    engine_->SetOnError(record("Error"));
    engine_->SetOnMemoryChange(record("Memory"));
    engine_->SetOnBaseDisplayChange(record("Base"));
    engine_->SetOnBitSizeChange(record("BitSize"));
    engine_->SetOnSpacingChange(record("Spacing"));
    engine_->SetOnSizeChangeChange(record("SizeChange"));
}

ProgKeyDriver& ProgKeyDriver::Setup(TQORBaseDisplay base, TQORBitSize size)
{
    engine_->SetBaseDisplay2(base);
    engine_->SetBitSize2(size);
    engine_->AllClear();
    ClearEvents();
    return *this;
}

ProgKeyDriver& ProgKeyDriver::Press(std::string_view keys)
{
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const char ch = keys[i];
        if (ch == ' ')
            continue;
        if (ch == '[') {
            const std::size_t end = keys.find(']', i);
            if (end == std::string_view::npos)
                throw std::invalid_argument("unclosed [ in keys");
            PressWord(std::string(keys.substr(i + 1, end - i - 1)));
            i = end;
        } else if (std::isxdigit(static_cast<unsigned char>(ch))) {
            engine_->InputDigit(ch);
        } else if (auto it = CharKeys().find(ch); it != CharKeys().end()) {
            it->second(*engine_);
        } else {
            throw std::invalid_argument(std::string("unknown key ") + ch);
        }
    }
    return *this;
}

// A bracketed word is a key of the engine's table ("[MC]", "[HEX]"), a word size ("[16]"), or a
// counted key with its count ("[SHL 4]"), pressed the way PressProgKey presses named keys.
void ProgKeyDriver::PressWord(const std::string& word)
{
    const bool size = !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
        return std::isdigit(static_cast<unsigned char>(c)) != 0;
    });
    const std::string name = size ? "BITS" + word : word;
    if (PressProgKey(*engine_, name))
        return;
    throw std::invalid_argument("unknown key [" + word + "]");
}

std::vector<std::string> ProgKeyDriver::History()
{
    std::vector<std::string> lines;
    engine_->HistoryStart();
    for (std::int32_t i = 0; i < engine_->GetHistoryLength(); ++i)
        lines.push_back(engine_->GetNextHistoryEntry());
    return lines;
}

int ProgKeyDriver::Count(const std::string& event) const
{
    const auto it = counts_.find(event);
    return it == counts_.end() ? 0 : it->second;
}

void ProgKeyDriver::ClearEvents()
{
    events_.clear();
    counts_.clear();
}

} // namespace qorkit::test
