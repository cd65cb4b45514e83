// The input echo of a made file: the shortest that has positions, loads and appendages.
#include "tests/support/CMadeResults.h"

void CMadeResults::InputEcho()
{
    EchoSettings();
    EchoShip();
    m_out.Floats({0, 7.5F, 0.25F}); // TRIMDEF, DRAFTMID, TRIMST
    if (LoadFlag == 0)
    {
        EchoLoads();
    }
    FloatCount(PositionCount());
    m_out.Floats({24, 0.01F});
    for (const CPosition& position : Positions)
    {
        EchoPosition(position);
    }
    EchoAppendages();
    for (int k = 0; k < (Magic ? 66 : 62); ++k)
    {
        m_out.Integer(0);
    }
}

void CMadeResults::EchoSettings()
{
    m_out.Floats({1, 1, 0, 0, 0}); // INSYS to SWELLCOR
    m_out.Float(static_cast<float>(OutRao));
    m_out.Float(2);
    m_out.Float(static_cast<float>(HeadingCount()));
    m_out.Float(static_cast<float>(LoadFlag));
    m_out.Float(0);
    m_out.Floats({0.2F, 2.0F, 0.1F, 3, 0, 0, 0, 0, 0, 0}); // WVFREQMIN to DENFREQ
    m_out.Float(0);                                        // SPECTRUM
    FloatCount(HeadingCount());
    m_out.Float(SpreadAngle);
    for (const float heading : Headings)
    {
        m_out.Float(heading);
    }
    FloatCount(SeawayCount);
    m_out.Float(0.05F);
}

void CMadeResults::EchoShip()
{
    FloatCount(static_cast<int>(Speeds.size()));
    for (const float speed : Speeds)
    {
        m_out.Float(speed);
    }
    m_out.Floats({120.5F, 6.25F, 30, 0, 0, 9}); // SHIPLEN to ROLLRGDEF, ROLLNF
    m_out.Float(1);                             // HULLDEF
    FloatCount(StationCount);
    m_out.Floats({static_cast<float>(StationCount), -1, -1});
    m_out.Floats(4 * StationCount, 2);
}

void CMadeResults::EchoLoads()
{
    FloatCount(LoadStationCount);
    m_out.Floats(LoadStationCount, 4);
    m_out.Floats(3 * StationCount, 5);
    m_out.Floats(10, 6);
}

void CMadeResults::EchoPosition(const CPosition& position)
{
    const int kind = position.RelMotionKind;
    m_out.Text(position.Label, 255, '\0');
    m_out.Floats({static_cast<float>(kind), static_cast<float>(position.Mii), 1, 2, 3});
    if (kind > 0 && kind < 5)
    {
        m_out.Float(12); // DECKHBL
    }
    if (kind == 2)
    {
        FloatCount(1);
        m_out.Floats(1 + 2 + 20, 3);
    }
    else if (kind == 1 || kind == 3)
    {
        m_out.Floats({0.5F, 0.75F});
    }
    if (position.Mii == 1)
    {
        m_out.Floats({0.25F, 0.17F, 60});
    }
    if (Magic)
    {
        m_out.Integer(position.Msi == 1 ? 26 : 27);
        m_out.Integer(0);
        m_out.Integer(1);
        m_out.Float(4);
    }
}

void CMadeResults::EchoAppendages()
{
    FloatCount(Keels);
    for (int k = 0; k < Keels; ++k)
    {
        m_out.Floats({0, 0, 8, 9, 1, 2, 0.5F}); // first and last station, then the one between
    }
    m_out.Floats(3, 0);
    m_out.Floats(8, 0);
    m_out.Integer(23);
    m_out.Float(-90);
    m_out.Integer(5);
    m_out.Text("NoFile", 255, '\0');
    m_out.Floats(10, 0);
    if (Magic)
    {
        m_out.Integer(0);
        m_out.Floats(5, 0);
    }
    FloatCount(Foils);
    m_out.Floats(8 * Foils, 0);
    m_out.Float(0); // FINTANKSTAB
    m_out.Integer(5);
    m_out.Text("NoFile", 255, '\0');
    for (int k = 0; k < 4; ++k)
    {
        m_out.Integer(0);
    }
}
