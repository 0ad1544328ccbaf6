#include "ProgKeyDriver.h"

#include "KeyGrammar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace qorkit::test {

namespace {

// The programmer's keyboard characters that stand for a named key of the engine.
constexpr std::pair<char, std::string_view> kCharNames[] = {
    {'%', "MOD"}, {'&', "AND"},  {'|', "OR"},  {'^', "XOR"}, {'#', "NAND"},
    {'?', "NOR"}, {'!', "XNOR"}, {'~', "NOT"}, {'_', "NEG"}, {'<', "SHL"},
    {'>', "SHR"}, {'{', "ROL"},  {'}', "ROR"},
};

// The name the engine's key table knows the key by.
std::string EngineName(const KeyToken& key)
{
    if (!key.Bracketed) {
        for (const auto& [ch, name] : kCharNames)
            if (key.Name.front() == ch)
                return std::string(name);
        return key.Name;
    }
    const bool size = !key.Name.empty()
        && std::all_of(key.Name.begin(), key.Name.end(),
                       [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
    return size ? "BITS" + key.Name : key.Name;
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
    for (const auto& key : SplitKeys(keys)) {
        const std::string name = EngineName(key);
        EXPECT_TRUE(PressProgKey(*engine_, name))
            << "unknown key '" << key.Name << "' (engine key '" << name << "')";
    }
    return *this;
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
