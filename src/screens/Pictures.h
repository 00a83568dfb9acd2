// The pictures that the plots paint: symbols of the components, and captions turned to read upwards.
#pragma once

#include "platform/DisplayList.h"

#include <array>
#include <string_view>

namespace velorix {

// Symbols of the components: air valve, non-return valve, isolating valve, reservoir, pump station.
inline const std::array<StoredPicture, 5> imgCPP = {{{"imgCPP(1)", 240, 320},
                                                     {"imgCPP(2)", 320, 200},
                                                     {"imgCPP(3)", 320, 200},
                                                     {"imgCPP(4)", 360, 260},
                                                     {"imgCPP(5)", 320, 320}}};

inline const StoredPicture imgDot{"imgDot", 70, 70};

// Of the legends on paper, and the program's own mark.
inline const StoredPicture imgPumpCurve{"imgPumpCurve", 510, 170};
inline const StoredPicture imgEfficiencyCurve{"imgEfficiencyCurve", 510, 170};
inline const StoredPicture picLogo{"picLogo", 1134, 1134};

constexpr int CaptionWidth = 240;
constexpr int CaptionHeight = 2400;

// Titles of the level axis, by unit of elevation: m, km, ft, miles.
inline const StoredPicture imgM{"imgM", CaptionWidth, CaptionHeight, "Elevation (m)"};
inline const StoredPicture imgKm{"imgKm", CaptionWidth, CaptionHeight, "Elevation (km)"};
inline const StoredPicture imgFt{"imgFt", CaptionWidth, CaptionHeight, "Elevation (ft)"};
inline const StoredPicture imgMiles{"imgMiles", CaptionWidth, CaptionHeight, "Elevation (miles)"};

inline const StoredPicture imgHeadm{"imgHeadm", CaptionWidth, CaptionHeight, "Head (m)"};
inline const StoredPicture imgHeadft{"imgHeadft", CaptionWidth, CaptionHeight, "Head (ft)"};
inline const StoredPicture imgEfficiency{"imgEfficiency", CaptionWidth, CaptionHeight, "Efficiency (%)"};
inline const StoredPicture picVLDemand{"picVLDemand", CaptionWidth, CaptionHeight, "Demand and yield"};
inline const StoredPicture imgIRRLegend{"imgIRRLegend", CaptionWidth, CaptionHeight, "Income less cost"};

// The turned caption of that name; none for a symbol.
inline const StoredPicture* FindTurnedCaption(std::string_view Name)
{
    for (const StoredPicture* Each : {&imgM, &imgKm, &imgFt, &imgMiles, &imgHeadm, &imgHeadft, &imgEfficiency,
                                      &picVLDemand, &imgIRRLegend})
        if (Each->Name == Name) return Each;
    return nullptr;
}

} // namespace velorix
