// The processor's floating-point status flags, read from their register where it is known: the library's way
// takes longer than the arithmetic that is asked about. The bits are those of <cfenv>.
#pragma once

#include <cfenv>

namespace velorix {

constexpr unsigned FailureFlags = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

// The failure flags that stand when Value has been worked out. Value goes through the statement that reads
// them, so that neither its expression nor what is done with it can change sides; nor can a load or a store.
inline unsigned FailureFlagsAfter(float& Value)
{
#if defined(__x86_64__) && defined(__GNUC__)
    unsigned Register;
    asm volatile("stmxcsr %0" : "=m"(Register), "+x"(Value) : : "memory");
    return Register & FailureFlags;
#elif defined(__aarch64__) && defined(__GNUC__)
    unsigned long Register;
    asm volatile("mrs %0, fpsr" : "=r"(Register), "+w"(Value) : : "memory");
    return static_cast<unsigned>(Register) & FailureFlags;
#else
    volatile float Rounded = Value;
    const int Raised = std::fetestexcept(FailureFlags);
    Value = Rounded;
    return static_cast<unsigned>(Raised);
#endif
}

// Puts all flags back. On x86-64 those of the old unit as well: no arithmetic here uses it, but the library
// mixes them in when it saves and restores the flags.
inline void ClearStatusFlags()
{
#if defined(__x86_64__) && defined(__GNUC__)
    constexpr unsigned AllFlags = 0x3F;
    unsigned Register;
    asm volatile("stmxcsr %0" : "=m"(Register) : : "memory");
    Register &= ~AllFlags;
    asm volatile("fnclex\n\tldmxcsr %0" : : "m"(Register) : "memory");
#elif defined(__aarch64__) && defined(__GNUC__)
    constexpr unsigned long AllFlags = 0x9F;
    unsigned long Register;
    asm volatile("mrs %0, fpsr" : "=r"(Register) : : "memory");
    asm volatile("msr fpsr, %0" : : "r"(Register & ~AllFlags) : "memory");
#else
    std::feclearexcept(FE_ALL_EXCEPT);
#endif
}

} // namespace velorix
