// The ways in which a step of the program can fail. A failure's text carries the values that explain it.
#pragma once

#include <stdexcept>
#include <string>

namespace velorix {

class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Division by zero, logarithm of a number that isn't positive, overflow, invalid operation, or a number
// that its 16 or 32 bit integer can't hold.
class ArithmeticFailure : public Failure {
public:
    using Failure::Failure;
};

// An index beyond an array's bounds.
class SubscriptFailure : public Failure {
public:
    SubscriptFailure(int Index, int First, int Last);
};

// A text that isn't a number.
class ConversionFailure : public Failure {
public:
    explicit ConversionFailure(const std::string& Text);
};

// A file that can't be read or written. The text names the file and the reason in the system's words.
class FileFailure : public Failure {
public:
    using Failure::Failure;
};

// One that the program doesn't outlive: whoever reports it ends the program.
class FatalFailure : public Failure {
public:
    using Failure::Failure;
};

} // namespace velorix
