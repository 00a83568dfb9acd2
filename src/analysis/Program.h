// The program's start.
#pragma once

namespace velorix {

// Puts every module and screen back to the state of a program that has just been started.
void ResetProgram();

// What a started program does before the user's first command: a new gravity project on the input screen.
void StartSession();

} // namespace velorix
