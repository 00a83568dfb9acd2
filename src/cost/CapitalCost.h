// What the pipeline costs to build: pipe, trench, the fees and taxes on top, and its spread over the years.
#pragma once

#include "base/Single.h"

namespace velorix {

constexpr double Tax = 0.14;       // value-added tax, as a part of the amount
constexpr double TaxFactor = 1.14; // an amount with the tax on it

// Copies the 13 laying values of the working set into the named rates and conditions.
void ReadLayingRates();

// Consulting fee on civil work of the value X, and on mechanical and electrical work of the value Y. The
// scales are those of the consulting engineers' association (SAACE 2002): a share of the value that falls
// from bracket to bracket, without a step at the ends of a bracket.
double CivilFee(double X);
double MechanicalElectricalFee(double Y);

// Works out the pipe, the trenches, the escalation and the consulting fees from the named rates,
// InternalDiameter, LiningLoss, SectionLength and the rates of the working set. Throws ArithmeticFailure for
// construction that costs nothing ahead of escalation; what was computed before stands.
void ComputeConstructionCost();

// Adds the supervision fee and the tax, and spreads the total over the construction years. Throws
// SubscriptFailure for more than 100 of them; those that have a place stand.
void ComputeTotalCapitalCost(Single Supervision);

} // namespace velorix
