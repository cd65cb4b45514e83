// Makes whole results files for tests, word by word and without the program's own code.
#pragma once

#include "tests/support/CByteWriter.h"

#include <string>
#include <vector>

/// The value that a made file has in a table at some indices: MadeValue("RaoPhase", speed, heading, ...). No
/// two are the same.
float MadeValueAt(const std::string& table, const std::vector<int>& indices);
template <class... Indices>
float MadeValue(const std::string& table, Indices... indices)
{
    return MadeValueAt(table, {static_cast<int>(indices)...});
}

class CMadeResults
{
public:
    struct CPosition
    {
        int RelMotionKind = 0;
        int Mii = 0;
        int Msi = 0;
        std::string Label = "Bridge";
    };

    bool Magic = true;
    bool GivenGM = false; ///< the trailer then has no GM
    std::string Stamp = "Mon Nov 03 14:07:52 2008";
    std::string Keyword = "JONSWAP";
    float SpreadAngle = 0;
    int StationCount = 3;
    int LoadStationCount = 2;
    std::vector<float> Speeds = {10, 20};
    std::vector<float> Headings = {0, 90, 180, 270};
    int SeawayCount = 2;
    int FreqCount = 3;
    std::vector<CPosition> Positions = {{1, 1, 1, "Bow Station"}, {4, 0, 0, "Mast"}, {5, 1, 0, "Keel"}};
    int OutRao = 2;
    int LoadFlag = 0;
    int StationNumbering = 1;
    bool HasColumnWords = true; ///< the words of the appendage columns, which the earliest files lack
    int Rudder = 1;
    int Skeg = 1;
    int Keels = 2;
    int Foils = 1;
    int Fins = 1;
    float KeelWord = 2; ///< the float of section C, 0 without bilge keels
    bool HasBreakdown = true;
    int SlamTag = 26; ///< behind it stand two more floats, or with any other none
    std::string Title = "Frigate  ";
    std::string GeometryFile = "hull.od7";
    std::string EnvironmentFile = "sea.od7";

    std::string Bytes();

    /// Places of the counts in the file made last, integers and floats; and of the three pointers.
    std::vector<std::size_t> IntegerCounts;
    std::vector<std::size_t> FloatCounts;
    int SectionC = 0;
    int SectionB = 0;
    int SectionA = 0;

private:
    void Count(int value);
    void FloatCount(int value);
    /// A table that is as many floats long as `inner` says.
    void Table(const std::string& name, std::vector<int> indices, int inner);
    void Head();
    void BodyTables();
    void SpeedBlock(int speed);
    void Rao(int speed);
    void Seaway(int speed, int seaway);
    void ControlSection();
    void InputEcho();
    void EchoSettings();
    void EchoShip();
    void EchoLoads();
    void EchoPosition(const CPosition& position);
    void EchoAppendages();
    void CalculatedHead();
    void CalculatedSpeed(int speed);
    void RegularSea(int speed, int heading);
    void Breakdown(const std::string& name, int speed, int heading, int appendages);
    void PositionBlock(int speed, int seaway, int position);
    void Slamming(int speed, int seaway, int position);
    void PositionRows(const std::string& name, int speed, int seaway, int position, int columns);

    int PositionCount() const { return static_cast<int>(Positions.size()); }
    int HeadingCount() const { return static_cast<int>(Headings.size()); }
    bool IsRegular() const { return Keyword == "REGULAR"; }
    bool IsDirectional() const
    {
        return Keyword == "TENPARAMETER" || Keyword == "ODGPHINDCAST" || Keyword == "INPUTDIR";
    }

    CByteWriter m_out;
    int m_rows = 0; ///< of the blocks per heading of section A
};
