#include "QORKITTypes.h"

#include "QORKITExceptions.h"
#include "QORKITResource.h"

#include <cmath>

namespace qorkit {

Currency Currency::FromExtended(Extended value)
{
    const Extended scaled = std::round(value * static_cast<Extended>(Scale));
    // The int64 range, exclusive of its top: 2^63 is exactly representable in extended.
    constexpr Extended limit = 9223372036854775808.0L;
    if (!std::isfinite(scaled) || scaled >= limit || scaled < -limit)
        throw EOverflow(rsOverflow());
    return FromScaled(static_cast<std::int64_t>(scaled));
}

} // namespace qorkit
