// Which typed keys a field or a cell takes.
#pragma once

namespace velorix {

// Digits, the decimal point, Backspace and Enter. No sign: no value can be typed negative.
bool IsNumberKey(int Key);

// The same, Escape and the codes of the arrow keys. As typed characters those four are "%", "&", "'" and "(".
bool IsCellNumberKey(int Key);

struct KeyFilter {
    bool (*Takes)(int Key);
};

inline constexpr KeyFilter NumberKeys = {IsNumberKey};

} // namespace velorix
