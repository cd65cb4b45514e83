#include "core/results/ResultsSections.h"

namespace
{
// Texts of the engine in front of its blocks.
constexpr std::size_t kSpeedText = 80;
constexpr std::size_t kLoadRaoText = 38;
constexpr std::size_t kRmsCgText = 36;
constexpr std::size_t kRmsLocalText = 54;
constexpr std::size_t kLoadRmsText = 32;
constexpr int kLoadRmsQuantities = 10;

std::vector<float> Floats(CResultsCursor& cursor, int count)
{
    const CFloatRows rows = cursor.Rows(count, 1);
    std::vector<float> values(static_cast<std::size_t>(count));
    rows.CopyTo(values.data());
    return values;
}

/// The blocks of the speeds, one behind the other.
class CSpeedBlocks
{
public:
    CSpeedBlocks(CResultsCursor& cursor, const CResultsHead& head, const CControlSection& control,
                 CResultsBody& body)
        : m_cursor(cursor),
          m_head(head),
          m_speeds(control.SpeedCount),
          m_seaways(head.SpectrumKind == kSpectrumRegular ? 0 : body.SeawayCount),
          m_body(body)
    {
    }

    void Read()
    {
        ExpectAll();
        Allocate();
        for (int speed = 0; speed < m_speeds; ++speed)
        {
            ReadSpeed(speed);
        }
    }

private:
    void ReadSpeed(int speed)
    {
        m_cursor.Skip(kSpeedText);
        ReadMotionRao(speed);
        if (m_head.LoadStationCount > 0)
        {
            m_cursor.Skip(kLoadRaoText);
            ReadLoadRao(speed);
        }
        for (int seaway = 0; seaway < m_seaways; ++seaway)
        {
            ReadSeaway(speed, seaway);
        }
    }

    /// The file has the modes outermost, the array the headings.
    void ReadMotionRao(int speed)
    {
        for (int mode = 0; mode < kMotionModes; ++mode)
        {
            for (int heading = 0; heading < m_body.HeadingCount; ++heading)
            {
                const CFloatRows rows = m_cursor.Rows(m_body.FreqCount, 2);
                const int row = (speed * m_body.HeadingCount + heading) * kMotionModes + mode;
                Divide(rows, row, m_body.RaoAmplitude, m_body.RaoPhase);
            }
        }
    }

    void ReadLoadRao(int speed)
    {
        const int values = kLoadComponents * m_head.LoadStationCount * m_body.HeadingCount * m_body.FreqCount;
        Divide(m_cursor.Rows(values, 2), speed, m_body.LoadRaoAmplitude, m_body.LoadRaoPhase);
    }

    /// Pairs of amplitude and phase, each to its own array, which have `place` blocks of that size before.
    template <class Array>
    static void Divide(const CFloatRows& pairs, int place, Array& amplitudes, Array& phases)
    {
        float* const amplitude = amplitudes.Values() + Behind(place, pairs.Count());
        float* const phase = phases.Values() + Behind(place, pairs.Count());
        for (int k = 0; k < pairs.Count(); ++k)
        {
            amplitude[k] = pairs.At(k, 0);
            phase[k] = pairs.At(k, 1);
        }
    }

    static std::size_t Behind(int blocks, int size)
    {
        return static_cast<std::size_t>(blocks) * static_cast<std::size_t>(size);
    }

    void ReadSeaway(int speed, int seaway)
    {
        const int place = speed * m_body.SeawayCount + seaway;
        m_cursor.Skip(kRmsCgText);
        Take(kRmsKinds * kMotionModes * m_body.HeadingCount, place, m_body.RmsCg.Values());
        if (m_body.PositionCount > 0)
        {
            m_cursor.Skip(kRmsLocalText);
            Take(kLocalQuantities * m_body.PositionCount * m_body.HeadingCount, place,
                 m_body.RmsLocal.Values());
        }
        if (m_head.LoadStationCount > 0)
        {
            m_cursor.Skip(kLoadRmsText);
            m_cursor.Rows(m_head.LoadStationCount * m_body.HeadingCount, kLoadRmsQuantities);
        }
    }

    /// A block whose array has the order of the file.
    void Take(int count, int place, float* values)
    {
        m_cursor.Rows(count, 1).CopyTo(values + Behind(place, count));
    }

    /// The file holds all blocks, so that no array is larger than the file allows.
    void ExpectAll() const
    {
        const int headings = m_body.HeadingCount;
        const int loads = m_head.LoadStationCount;
        std::size_t speed = kSpeedText + Bytes(2 * kMotionModes * headings * m_body.FreqCount);
        std::size_t seaway = kRmsCgText + Bytes(kRmsKinds * kMotionModes * headings);
        if (m_body.PositionCount > 0)
        {
            seaway += kRmsLocalText + Bytes(kLocalQuantities * m_body.PositionCount * headings);
        }
        if (loads > 0)
        {
            speed += kLoadRaoText + Bytes(2 * kLoadComponents * loads * headings * m_body.FreqCount);
            seaway += kLoadRmsText + Bytes(kLoadRmsQuantities * loads * headings);
        }
        speed += seaway * static_cast<std::size_t>(m_seaways);
        CResultsCursor(m_cursor).Skip(speed * static_cast<std::size_t>(m_speeds));
    }

    static std::size_t Bytes(int floats) { return static_cast<std::size_t>(floats) * sizeof(float); }

    void Allocate()
    {
        const int headings = m_body.HeadingCount;
        const int loads = m_head.LoadStationCount;
        const int seaways = m_body.SeawayCount;
        m_body.RaoAmplitude = CHeldArray<4>({m_speeds, headings, kMotionModes, m_body.FreqCount});
        m_body.RaoPhase = m_body.RaoAmplitude;
        m_body.LoadRaoAmplitude =
            CHeldArray<5>({m_speeds, kLoadComponents, loads, headings, m_body.FreqCount});
        m_body.LoadRaoPhase = m_body.LoadRaoAmplitude;
        m_body.RmsCg = CHeldArray<5>({m_speeds, seaways, kRmsKinds, kMotionModes, headings});
        m_body.RmsLocal =
            CHeldArray<5>({m_speeds, seaways, kLocalQuantities, m_body.PositionCount, headings});
    }

    CResultsCursor& m_cursor;
    const CResultsHead& m_head;
    int m_speeds;
    int m_seaways; ///< with blocks of their own
    CResultsBody& m_body;
};
} // namespace

CResultsBody ReadBodyTables(CResultsCursor& cursor, const CResultsHead& head)
{
    CResultsBody body;
    if (head.LoadStationCount > 0)
    {
        body.LoadStations = Floats(cursor, head.LoadStationCount);
        body.StillWaterWeight = Floats(cursor, head.StationCount);
        body.StillWaterBuoyancy = Floats(cursor, head.StationCount);
        body.StillWaterShear = Floats(cursor, head.StationCount);
        body.StillWaterMoment = Floats(cursor, head.StationCount);
    }
    body.PositionCount = cursor.Count(kMaxPositions);
    body.PositionStation = Floats(cursor, body.PositionCount);
    body.PositionY = Floats(cursor, body.PositionCount);
    body.PositionZ = Floats(cursor, body.PositionCount);
    body.SpeedCount = cursor.Count(kMaxSpeeds);
    cursor.Rows(body.SpeedCount, 1);
    body.HeadingCount = cursor.Count(kMaxHeadings);
    body.Headings = Floats(cursor, body.HeadingCount);
    body.SeawayCount = cursor.Count(kMaxSeaways);
    body.WaveHeights = Floats(cursor, body.SeawayCount);
    body.WavePeriods = Floats(cursor, body.SeawayCount);
    body.FreqCount = cursor.Count(kMaxFrequencies);
    body.FirstFrequency = cursor.Float();
    body.FrequencyStep = cursor.Float();
    return body;
}

void ReadSpeedBlocks(CResultsCursor& cursor, const CResultsHead& head, const CControlSection& control,
                     CResultsBody& body)
{
    if (body.SpeedCount < control.SpeedCount)
    {
        throw CResultsError();
    }
    CSpeedBlocks(cursor, head, control, body).Read();
}
