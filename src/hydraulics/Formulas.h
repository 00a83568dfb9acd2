// Pipe formulas of all hydraulic calculations, as plain functions of doubles in metres and m3/s. Their order
// of operations fixes the last digit of every result. They stand here so that loops over them become vectors.
#pragma once

namespace velorix {

constexpr double Pi = 3.14159265359;   // as all formulas of the program write it
constexpr double TwiceGravity = 19.62; // m/s2

// Cross-section of a round pipe of bore D (m2).
inline double PipeArea(double D)
{
    return Pi * D * D / 4;
}

// Mean velocity V = Q / A (m/s).
inline double Velocity(double Q, double D)
{
    return Q / PipeArea(D);
}

// Friction factor of a fully rough pipe, which doesn't depend on the flow; ks is the absolute roughness (m).
//     1 / sqrt(f) = 2 log10(3.7 D / ks)        Colebrook-White (1939) for Re without bound
double RoughPipeFactor(double D, double ks);

// Friction head loss over a length L (m).
//     hf = f (L / D) V^2 / 2g                  Darcy-Weisbach
inline double FrictionHead(double Q, double D, double L, double f)
{
    const double V = Velocity(Q, D);
    return f * L * V * V / (D * TwiceGravity);
}

// Head lost in fittings of the loss coefficient K (m).
//     hs = K V^2 / 2g
inline double SecondaryHead(double Q, double D, double K)
{
    const double V = Velocity(Q, D);
    return K * V * V / TwiceGravity;
}

} // namespace velorix
