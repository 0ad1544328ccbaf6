// Exception kinds raised by the library's free functions. The message is the resource text.
#pragma once

#include <stdexcept>
#include <string>

namespace qorkit {

class Exception : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Arithmetic faults: domain errors, zero divisors, overflow.
class EMathError : public Exception {
public:
    using Exception::Exception;
};
class EZeroDivide : public EMathError {
public:
    using EMathError::EMathError;
};
class EInvalidOp : public EMathError {
public:
    using EMathError::EMathError;
};
class EOverflow : public EMathError {
public:
    using EMathError::EMathError;
};

// Text that cannot be converted, and out-of-range positions.
class EConvertError : public Exception {
public:
    using Exception::Exception;
};

} // namespace qorkit
