// Pipe formulas of all hydraulic calculations, as plain functions of doubles in metres and m3/s.
#pragma once

namespace velorix {

constexpr double Pi = 3.14159265359;   // as all formulas of the program write it
constexpr double TwiceGravity = 19.62; // m/s2

// Cross-section of a round pipe of bore D (m2).
double PipeArea(double D);

// Mean velocity V = Q / A (m/s).
double Velocity(double Q, double D);

// Friction factor of a fully rough pipe, which doesn't depend on the flow; ks is the absolute roughness (m).
//     1 / sqrt(f) = 2 log10(3.7 D / ks)        Colebrook-White (1939) for Re without bound
double RoughPipeFactor(double D, double ks);

// Friction head loss over a length L (m).
//     hf = f (L / D) V^2 / 2g                  Darcy-Weisbach
double FrictionHead(double Q, double D, double L, double f);

// Head lost in fittings of the loss coefficient K (m).
//     hs = K V^2 / 2g
double SecondaryHead(double Q, double D, double K);

} // namespace velorix
