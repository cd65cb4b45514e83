#include "core/results/CalculatedSection.h"

#include "core/results/CResultsCursor.h"
#include "core/results/CalculatedFormat.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr std::size_t kWord = 4;

constexpr int kDampingColumns = 10;
constexpr int kInterruptionColumns = 6;
constexpr int kMotionColumns = 7;   ///< of a slamming row, in front of its tag
constexpr int kUnshownColumns = 2;  ///< behind the tag
constexpr int kPressureColumns = 4; ///< behind those
constexpr int kWetnessColumns = 5;
constexpr int kLoadColumns = 10;

/// The walk: speeds, in each the seaways, in each the three groups.
class CWalk
{
public:
    CWalk(const CResults& results, CCalculatedReceiver& receiver)
        : m_results(results),
          m_receiver(receiver),
          m_cursor(results.Bytes, static_cast<std::ptrdiff_t>(results.SpeedBlocks)),
          m_output(results.Input->OUTRAO.Integer()),
          m_irregular(results.Head.SpectrumKind != kSpectrumRegular)
    {
    }

    void Run()
    {
        for (m_speed = 0; m_speed < m_results.Control.SpeedCount; ++m_speed)
        {
            const bool directional = IsDirectional(m_results.Head.SpectrumKind);
            m_headings = directional ? kHeadingsBeforeLoads : m_results.Body.HeadingCount;
            for (m_seaway = 0; m_seaway < m_results.Body.SeawayCount; ++m_seaway)
            {
                WalkSeaway(directional);
            }
        }
    }

private:
    void WalkSeaway(bool directional)
    {
        if (m_seaway == 0)
        {
            RegularSeas();
        }
        if (m_irregular)
        {
            Positions();
            Loads(directional);
        }
    }

    void RegularSeas()
    {
        for (int heading = 0; heading < m_results.Body.HeadingCount; ++heading)
        {
            const float angle = m_results.Body.Headings[static_cast<std::size_t>(heading)];
            if (!(angle <= kGreatestReportedHeading))
            {
                continue;
            }
            if (m_output > 0)
            {
                m_receiver.FroudeNumber(m_speed, heading, m_cursor.Float());
                m_receiver.Frequencies(m_speed, heading, m_cursor.Rows(m_results.Body.FreqCount, 2));
            }
            if (m_output == 2)
            {
                RollDamping(heading);
            }
        }
    }

    void RollDamping(int heading)
    {
        const int frequencies = m_results.Body.FreqCount;
        m_receiver.RollConstants(m_speed, heading, Floats<3>());
        m_receiver.Damping(m_speed, heading, m_cursor.Rows(frequencies, kDampingColumns));
        const int tag = m_cursor.PeekInteger();
        if (tag != kTagData && tag != kTagNoData)
        {
            return;
        }
        m_cursor.Skip(kWord);
        if (tag == kTagData)
        {
            const int lift = kBreakdownColumns + LiftAppendages(m_results.Control);
            const int viscous = kBreakdownColumns + ViscousAppendages(m_results.Control);
            m_receiver.LiftBreakdown(m_speed, heading, m_cursor.Rows(frequencies, lift));
            m_receiver.ViscousBreakdown(m_speed, heading, m_cursor.Rows(frequencies, viscous));
        }
    }

    void Positions()
    {
        const CControlSection& control = m_results.Control;
        for (int position = 0; position < m_results.Body.PositionCount; ++position)
        {
            const auto index = static_cast<std::size_t>(position);
            if (control.MiiKind[index] == 1)
            {
                m_receiver.Interruption(m_speed, m_seaway, position,
                                        m_cursor.Rows(m_headings, kInterruptionColumns));
            }
            if (control.MsiKind[index] == 1)
            {
                Sickness(position);
            }
            RelativeMotion(position, control.RelMotionKind[index]);
        }
    }

    void Sickness(int position)
    {
        const int formulation = m_cursor.Integer();
        const int exposureFlag = m_cursor.Integer();
        const float exposure = m_cursor.Float();
        const CFloatRows rows = m_cursor.Rows(m_headings, m_results.Control.HasMagic ? 3 : 2);
        m_receiver.Sickness(m_speed, m_seaway, position, formulation, exposureFlag, exposure, rows);
    }

    void RelativeMotion(int position, int kind)
    {
        if (kind >= 1 && kind <= 3)
        {
            const auto levels = Floats<4>();
            m_receiver.Slamming(m_speed, m_seaway, position, levels, SlammingRows());
        }
        else if (kind == 4 || kind == 5)
        {
            const auto levels = Floats<2>();
            m_receiver.WetnessOrEmergence(m_speed, m_seaway, position, levels,
                                          m_cursor.Rows(m_headings, kWetnessColumns));
        }
    }

    /// The rows without the tags and what no report shows.
    CFloatRows SlammingRows()
    {
        constexpr int columns = kMotionColumns + kPressureColumns;
        m_slamming.resize(static_cast<std::size_t>(m_headings) * columns);
        float* row = m_slamming.data();
        for (int heading = 0; heading < m_headings; ++heading)
        {
            m_cursor.Rows(1, kMotionColumns).CopyTo(row);
            if (m_cursor.Integer() == kTagData)
            {
                m_cursor.Rows(1, kUnshownColumns);
            }
            m_cursor.Rows(1, kPressureColumns).CopyTo(row + kMotionColumns);
            row += columns;
        }
        return {reinterpret_cast<const char*>(m_slamming.data()), m_headings, columns};
    }

    void Loads(bool directional)
    {
        if (directional && m_results.Head.LoadStationCount > 0)
        {
            m_headings = kHeadingsFromLoadsOn;
        }
        for (int station = 0; station < m_results.Head.LoadStationCount; ++station)
        {
            m_receiver.LoadRms(m_speed, m_seaway, station, m_cursor.Rows(m_headings, kLoadColumns));
        }
    }

    template <std::size_t Count>
    std::array<float, Count> Floats()
    {
        std::array<float, Count> values = {};
        m_cursor.Rows(1, static_cast<int>(Count)).CopyTo(values.data());
        return values;
    }

    const CResults& m_results;
    CCalculatedReceiver& m_receiver;
    CResultsCursor m_cursor;
    int m_output;     ///< OUTRAO: what there is per frequency
    bool m_irregular; ///< only irregular seas have the second and third group
    int m_speed = 0;
    int m_seaway = 0;
    int m_headings = 0;            ///< rows of the second and third group
    std::vector<float> m_slamming; ///< rows of one position
};
} // namespace

int LiftAppendages(const CControlSection& control)
{
    return ViscousAppendages(control) + (control.HasSkegColumn != 0 ? 1 : 0);
}

int ViscousAppendages(const CControlSection& control)
{
    return (control.HasRudderColumn != 0 ? 1 : 0) + control.KeelColumns + control.FoilColumns +
           control.FinColumns;
}

int CalculatedRows(const CResults& results)
{
    return IsDirectional(results.Head.SpectrumKind)
               ? std::max(results.Body.HeadingCount, kHeadingsFromLoadsOn)
               : results.Body.HeadingCount;
}

void WalkCalculated(const CResults& results, CCalculatedReceiver& receiver)
{
    CWalk(results, receiver).Run();
}
