#include "QorkitTestSupport.h"

#include "QORKITResource.h"

namespace qorkit::test {

void ResetAllGlobals()
{
    ResetGlobalSettings();
    SetTranslationHook({});
}

void GlobalStateTest::SetUp() { ResetAllGlobals(); }

void GlobalStateTest::TearDown() { ResetAllGlobals(); }

CommaDecimals::CommaDecimals() : saved_(FormatSettings)
{
    FormatSettings.DecimalSeparator = ',';
    FormatSettings.ThousandSeparator = '.';
}

CommaDecimals::~CommaDecimals() { FormatSettings = saved_; }

} // namespace qorkit::test
