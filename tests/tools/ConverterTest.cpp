// The unit converter over all its tables.
#include "tools/Converter.h"

#include "base/Failure.h"
#include "base/NumberText.h"
#include "tools/ConverterTables.h"

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace velorix {
namespace {

// Empty for a failure.
std::string Converted(const std::string& Group, const std::string& Source, const std::string& Target,
                      const std::string& Value)
{
    try {
        return ConvertUnits(Group, Source, Target, Value);
    } catch (const Failure&) {
        return "";
    }
}

// The units that don't come back as they went, and what 1 of them comes back as.
const std::map<std::string, std::string> Oddities = {{"inch (in)", GeneralText(0.0254 / 0.2054)},
                                                     {"day (d)", ""},
                                                     {"week (w)", ""},
                                                     {"year (y)", ""},
                                                     {"millimetres of water (mm)\"", ""}};

// Through the base unit and back; the way over every other unit of the group ends at the same number.
TEST(ConverterTest, EveryUnitComesBackFromEveryOther)
{
    const std::map<std::string, std::size_t> Sizes = {{"Area", 11},     {"Flow rate", 13}, {"Length", 8},
                                                      {"Pressure", 18}, {"Time", 9},       {"Volume", 11}};
    std::map<std::string, std::size_t> Found;
    std::set<std::string> Odd;
    for (const std::string& Group : ConverterGroupTexts()) {
        const std::vector<std::string> Units = ConverterUnitTexts(Group);
        Found[Group] = std::set<std::string>(Units.begin(), Units.end()).size();
        for (const std::string& Source : Units)
            for (const std::string& Target : Units) {
                const bool IsOdd = Oddities.count(Source) || Oddities.count(Target);
                if (Source == Target && IsOdd) {
                    EXPECT_EQ(Converted(Group, Source, Source, "1"), Oddities.at(Source)) << Source;
                    Odd.insert(Source);
                }
                if (IsOdd) continue;
                const std::string There = Converted(Group, Source, Target, "-12.5");
                ASSERT_NE(There, "") << Source << " to " << Target;
                EXPECT_NEAR(ParseDouble(Converted(Group, Target, Source, There)), -12.5, 1e-12)
                    << Source << " to " << Target;
            }
    }
    EXPECT_EQ(Found, Sizes);
    EXPECT_EQ(Odd.size(), Oddities.size());
}

// Units as the books define them, by their other units. Some factors hold six digits, all others eight.
TEST(ConverterTest, FactorsAgreeWithTheDefinitionsOfTheUnits)
{
    const std::tuple<const char*, const char*, const char*, double, double> Cases[] = {
        {"Area", "square mile", "acre", 640, 1e-5},
        {"Area", "kilometers squared (km²)", "hectare (ha)", 100, 1e-8},
        {"Flow rate", "mega liters per day (Ml/day)", "cubic metres per hour (m³/h)", 1000.0 / 24, 1e-8},
        {"Flow rate", "gallons per second (gal/s)(EUR)", "litre per second (l/s)", 4.546092, 1e-8},
        {"Flow rate", "gallons per second (gal/s)(USA)", "gallons per minute (gal/min)(USA)", 60, 1e-5},
        {"Length", "miles (mile)", "yard (yd)", 1760, 1e-8},
        {"Length", "yard (yd)", "inch (in)", 36 * 0.0254 / 0.2054, 1e-8},
        {"Pressure", "metres mercury (m Hg)", "inches mercury (in Hg)", 1 / 0.0254, 3e-8},
        {"Pressure", "feet of water (ft)", "inches of water (in)", 12, 3e-8},
        {"Pressure", "pound force per inch squared (psi)", "pound force per foot squared (lb/ft²)", 144,
         3e-8},
        {"Pressure", "kilogram force per millimetre squared (kg/mm²)", "metres of water (m)", 1000, 1e-8},
        {"Pressure", "Newtons per millimetre squared (N/mm²)", "Pascals (Pa)", 1e-6, 1e-8},
        {"Pressure", "kilogram force per metre squared (kg/m²)", "millibar (mbar)", 1, 1e-8},
        {"Volume", "US gallon (gal)", "inches cubed (in³)", 231, 1e-8},
    };
    for (const auto& [Group, Source, Target, Worth, Within] : Cases)
        EXPECT_NEAR(ParseDouble(ConvertUnits(Group, Source, Target, "1")) / Worth, 1, Within) << Source;
}

TEST(ConverterTest, NumbersAreTakenAndWrittenAsTold)
{
    const std::tuple<const char*, const char*, const char*> Cases[] = {
        {"1", "inch (in)", "4.86854917234664"},
        {"0", "mile", ""}, // no unit: a factor of 0
        {"0", "foot (ft)", "0"},
        {" 1E-3 ", "kilometre (km)", "1E-06"},
        {" 12.5\r\n", "meter (m)", "12.5"}, // the cell of a table
        {"12\n5", "meter (m)", ""},
        {"1e308", "millimetre (mm)", ""},
        {"1e-320", "kilometre (km)", "9.88131291682493E-324"}, // an underflow is no failure
        {"1,5", "meter (m)", ""},
    };
    for (const auto& [Value, Target, Result] : Cases)
        EXPECT_EQ(Converted("Length", "meter (m)", Target, Value), Result) << Value;
    EXPECT_EQ(Converted(" Length ", " inch (in) ", " meter (m) ", "1"), "0.0254"); // blanks don't count
    const std::string NoKey = "millimetres of water (mm)\"";
    EXPECT_EQ(Converted("Pressure", NoKey, "bar", "7"), "0");
    EXPECT_EQ(Converted("Pressure", "bar", NoKey, "7"), "");
    EXPECT_EQ(Converted("Pressure", NoKey, NoKey, "0"), "");
    EXPECT_EQ(Converted("Temperature", "degrees Celcius (°C)", "Kelvin (K)", "-544.3"), "2");
    EXPECT_TRUE(ConverterUnitTexts("Temperature").empty());
}

} // namespace
} // namespace velorix
