// Key codes, as key events carry them: a pressed key's own code, or the character that was typed.
#pragma once

namespace velorix::Keys {

constexpr int Backspace = 8;
constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Escape = 27;
constexpr int PageUp = 33;
constexpr int PageDown = 34;
constexpr int End = 35;
constexpr int Home = 36;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Delete = 46;
constexpr int F1 = 112;
constexpr int F2 = 113;

} // namespace velorix::Keys
