// Exception kinds raised by the library's free functions. The message is the resource text.
#pragma once

#include "qorkit_base_export.h"

#include <stdexcept>
#include <string>

namespace qorkit {

class QORKIT_BASE_EXPORT Exception : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Arithmetic faults: domain errors, zero divisors, overflow.
class QORKIT_BASE_EXPORT EMathError : public Exception {
public:
    using Exception::Exception;
};
class QORKIT_BASE_EXPORT EZeroDivide : public EMathError {
public:
    using EMathError::EMathError;
};
class QORKIT_BASE_EXPORT EInvalidOp : public EMathError {
public:
    using EMathError::EMathError;
};
class QORKIT_BASE_EXPORT EOverflow : public EMathError {
public:
    using EMathError::EMathError;
};

// Text that cannot be converted, and out-of-range positions.
class QORKIT_BASE_EXPORT EConvertError : public Exception {
public:
    using Exception::Exception;
};

} // namespace qorkit
