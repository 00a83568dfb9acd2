// The stored number of the program: 32 bits wide, computed with in double.
#pragma once

#include <bit>
#include <cstdint>

namespace velorix {

// Reading a Single widens it to double; assigning to it rounds once. So `Single C = A * B / 3;` computes in
// double and rounds when it is stored, and `+=` rounds at each addition. The arithmetic of two 32-bit
// numbers in 32 bits can't happen by accident.
class Single {
public:
    constexpr Single() = default;
    constexpr Single(double Value)
        : Stored(static_cast<float>(Value))
    {
    }

    constexpr operator double() const { return Stored; }
    constexpr float Float() const { return Stored; }

    constexpr Single& operator+=(double Value) { return *this = *this + Value; }
    constexpr Single& operator-=(double Value) { return *this = *this - Value; }
    constexpr Single& operator*=(double Value) { return *this = *this * Value; }
    constexpr Single& operator/=(double Value) { return *this = *this / Value; }

    // The 32 bits as they stand in a file; every pattern goes through unchanged.
    constexpr std::uint32_t Bits() const { return std::bit_cast<std::uint32_t>(Stored); }
    static constexpr Single FromBits(std::uint32_t Bits)
    {
        Single Result;
        Result.Stored = std::bit_cast<float>(Bits);
        return Result;
    }

private:
    float Stored = 0.0F;
};

} // namespace velorix
