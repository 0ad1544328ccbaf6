// The library's enumerations reach Qt's meta-object system with their member names, in step
// with the declarations the compiler sees.
#include "QORKITQtEnums.h"

#include <QMetaEnum>
#include <QVariant>

#include <gtest/gtest.h>

namespace qorkit {
namespace {

TEST(QtEnums, MemberNamesAndValuesMatchTheDeclarations)
{
    const QMetaEnum angle = QMetaEnum::fromType<TQORAngleMode>();
    EXPECT_STREQ(angle.name(), "TQORAngleMode");
    EXPECT_EQ(angle.keyCount(), 3);
    EXPECT_EQ(angle.keyToValue("amGradians"), amGradians);
    EXPECT_STREQ(QMetaEnum::fromType<TQORBitSize>().valueToKey(bs64Bits), "bs64Bits");
    EXPECT_EQ(QVariant::fromValue(bdOctal).toString(), QStringLiteral("bdOctal"));
}

TEST(QtEnums, EveryUnitEnumerationIsComplete)
{
    // The last member of each unit enumeration is found under its own name, so no member is
    // missing from the names moc was shown.
#define QORKIT_CHECK_UNITS(quantity, stem, names, table, family, array)                            \
    {                                                                                              \
        const QMetaEnum e = QMetaEnum::fromType<TQOR##stem##Type>();                               \
        EXPECT_EQ(static_cast<std::size_t>(e.keyCount()), std::size(array)) << #stem;              \
        for (int i = 0; i < e.keyCount(); ++i)                                                     \
            EXPECT_EQ(e.value(i), i) << #stem << ' ' << e.key(i);                                  \
    }
    QORKIT_QUANTITY_LIST(QORKIT_CHECK_UNITS)
#undef QORKIT_CHECK_UNITS
#define QORKIT_COUNT_ONE(member, text) +1
    EXPECT_EQ(QMetaEnum::fromType<TQORConvType>().keyCount(),
              0 QORKIT_UC_CONV_NAMES(QORKIT_COUNT_ONE));
#undef QORKIT_COUNT_ONE
}

} // namespace
} // namespace qorkit
