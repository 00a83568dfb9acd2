// The single-byte code page of the project file, Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace velorix {

// Whether the project file can hold the character.
bool InCodePage(char32_t Code);

// UTF-8 to one byte a character. A character outside the code page, and a byte that is no UTF-8, gives "?".
std::string ToCodePage(std::string_view Utf8);

// Bytes of the code page to UTF-8. The five bytes without a character give the control code of the same
// number, so that every byte comes back through ToCodePage.
std::string FromCodePage(std::string_view Bytes);

} // namespace velorix
