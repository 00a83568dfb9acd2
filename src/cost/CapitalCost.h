// What the pipeline costs to build: pipe, trench, the fees and taxes on top, and its spread over the years.
#pragma once

#include "hydraulics/Normalise.h"

namespace velorix {

constexpr double Tax = 0.14;       // value-added tax, as a part of the amount
constexpr double TaxFactor = 1.14; // an amount with the tax on it

// Laying rates in money and laying conditions, as ReadLayingRates takes them from wLaying.
extern Single RateLaying;     // per metre of pipe, joining included
extern Single RateExcavation; // this rate and the next six per cubic metre
extern Single RateRockExcavation;
extern Single RateBeddingImport;
extern Single RateBeddingTrench; // bedding won from the trench
extern Single RateBlanketImport;
extern Single RateBlanketTrench; // blanket won from the trench
extern Single RateBackfilling;
extern Single PercentRock;          // of the excavation
extern Single PercentBeddingImport; // of the bedding
extern Single PercentBlanketImport; // of the blanket
extern Single Cover;                // over the pipe (m)
extern Single BelowInvert;          // excavation, filled with bedding, below the pipe (m)

extern Single PipeSupplyCost; // of all rows
extern ByRow ExcavationCost;  // of section i; the four after it likewise
extern ByRow BeddingCost;
extern ByRow BlanketCost; // below zero where the pipe takes more room than the blanket
extern ByRow BackfillCost;
extern ByRow PipeLayingCost;
extern Single LayingCost; // sum of the five over all sections

extern Single EscalationBase;   // construction cost ahead of escalation
extern Single EscalationAmount; // escalation over the months of construction
extern Single ConsultingFees;   // on civil, mechanical and electrical work
extern Single SupervisionCost;  // administration and management
extern Single TotalCapitalCost; // tax included

extern ByYear CapitalSeries; // TotalCapitalCost in equal parts over the construction years, then 0

// Copies the 13 laying values of the working set into the named values above.
void ReadLayingRates();

// Consulting fee on civil work of the value X, and on mechanical and electrical work of the value Y. The
// scales are those of the consulting engineers' association (SAACE 2002): a share of the value that falls
// from bracket to bracket, without a step at the ends of a bracket.
double CivilFee(double X);
double MechanicalElectricalFee(double Y);

// Works out all costs above from the named rates, InternalDiameter, LiningLoss, SectionLength, the rates of
// the working set and the supervision fee as it stands on the input screen. Throws ArithmeticFailure for
// construction that costs nothing ahead of escalation, ConversionFailure for a supervision fee that is no
// number and SubscriptFailure for more than 100 construction years; what was computed before stands.
void ComputeCapitalCost();

void ResetCapitalCost();

} // namespace velorix
