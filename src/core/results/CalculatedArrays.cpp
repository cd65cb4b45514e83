#include "core/results/CalculatedArrays.h"

namespace
{
constexpr int kCommonColumns = 2; ///< encounter frequency and roll angle, in front of the appendages

int Speeds(const CResults& results)
{
    return results.Control.SpeedCount;
}

/// Speed, seaway, position.
CHeldArray<3> PerPosition(const CResults& results)
{
    return CHeldArray<3>({Speeds(results), results.Body.SeawayCount, results.Body.PositionCount});
}

/// Speed, seaway, position, row, column.
CHeldArray<5> RowsPerPosition(const CResults& results, int columns)
{
    return CHeldArray<5>({Speeds(results), results.Body.SeawayCount, results.Body.PositionCount,
                          CalculatedRows(results), columns});
}

/// Speed, heading, frequency, column.
CHeldArray<4> RowsPerHeading(const CResults& results, int columns)
{
    return CHeldArray<4>({Speeds(results), results.Body.HeadingCount, results.Body.FreqCount, columns});
}

/// Takes rows over whose columns are the first of the array; `place` tells the indices in front of the row.
template <std::size_t Dimensions, class... Place>
void Hold(CHeldArray<Dimensions>& values, const CFloatRows& rows, Place... place)
{
    if (rows.Count() > 0 && rows.Width() == values.Size(Dimensions - 1))
    {
        rows.CopyTo(&values(place..., 0, 0));
        return;
    }
    for (int row = 0; row < rows.Count(); ++row)
    {
        for (int column = 0; column < rows.Width(); ++column)
        {
            values(place..., row, column) = rows.At(row, column);
        }
    }
}

/// The first column of a breakdown means nothing.
void HoldBreakdown(CHeldArray<4>& table, const CFloatRows& rows, int speed, int heading)
{
    for (int row = 0; row < rows.Count(); ++row)
    {
        for (int column = 1; column < rows.Width(); ++column)
        {
            table(speed, heading, row, column - 1) = rows.At(row, column);
        }
    }
}
} // namespace

CFrequencyArrays::CFrequencyArrays(const CResults& results)
    : Froude(static_cast<std::size_t>(Speeds(results))),
      EncounterFreq({Speeds(results), results.Body.HeadingCount, results.Body.FreqCount}),
      WavelengthRatio(EncounterFreq)
{
}

void CFrequencyArrays::FroudeNumber(int speed, int /*heading*/, float number)
{
    if (speed != m_speed)
    {
        Froude[static_cast<std::size_t>(speed)] = number;
        m_speed = speed;
    }
}

void CFrequencyArrays::Frequencies(int speed, int heading, const CFloatRows& rows)
{
    for (int row = 0; row < rows.Count(); ++row)
    {
        EncounterFreq(speed, heading, row) = rows.At(row, 0);
        WavelengthRatio(speed, heading, row) = rows.At(row, 1);
    }
}

CDampingArrays::CDampingArrays(const CResults& results)
    : Constants(static_cast<std::size_t>(Speeds(results))),
      Components(RowsPerHeading(results, ColumnCount)),
      LiftTable(RowsPerHeading(results, kCommonColumns + LiftAppendages(results.Control))),
      ViscousTable(RowsPerHeading(results, kCommonColumns + ViscousAppendages(results.Control)))
{
}

void CDampingArrays::RollConstants(int speed, int /*heading*/, const std::array<float, 3>& values)
{
    if (speed != m_speed)
    {
        Constants[static_cast<std::size_t>(speed)] = values;
        m_speed = speed;
    }
}

void CDampingArrays::Damping(int speed, int heading, const CFloatRows& rows)
{
    Hold(Components, rows, speed, heading);
}

void CDampingArrays::LiftBreakdown(int speed, int heading, const CFloatRows& rows)
{
    HasBreakdown = true;
    HoldBreakdown(LiftTable, rows, speed, heading);
}

void CDampingArrays::ViscousBreakdown(int speed, int heading, const CFloatRows& rows)
{
    HoldBreakdown(ViscousTable, rows, speed, heading);
}

CSlammingArrays::CSlammingArrays(const CResults& results)
    : Levels({Speeds(results), results.Body.SeawayCount, results.Body.PositionCount, kLevels}),
      Rows(PerPosition(results)),
      Values(RowsPerPosition(results, kColumns))
{
}

void CSlammingArrays::Slamming(int speed, int seaway, int position, const std::array<float, 4>& levels,
                               const CFloatRows& rows)
{
    HoldLevels(speed, seaway, position, levels);
    Rows(speed, seaway, position) = static_cast<float>(rows.Count());
    Hold(Values, rows, speed, seaway, position);
}

void CSlammingArrays::WetnessOrEmergence(int speed, int seaway, int position,
                                         const std::array<float, 2>& levels, const CFloatRows& rows)
{
    HoldLevels(speed, seaway, position, levels);
    Rows(speed, seaway, position) = static_cast<float>(rows.Count());
    Hold(Values, rows, speed, seaway, position);
}

CInterruptionArrays::CInterruptionArrays(const CResults& results)
    : Rows(PerPosition(results)),
      Values(RowsPerPosition(results, kColumns))
{
}

void CInterruptionArrays::Interruption(int speed, int seaway, int position, const CFloatRows& rows)
{
    Rows(speed, seaway, position) = static_cast<float>(rows.Count());
    Hold(Values, rows, speed, seaway, position);
}

CSicknessArrays::CSicknessArrays(const CResults& results)
    : Formulation(PerPosition(results)),
      ExposureFlag(Formulation),
      Exposure(Formulation),
      Rows(Formulation),
      Values(RowsPerPosition(results, kColumns))
{
}

void CSicknessArrays::Sickness(int speed, int seaway, int position, int formulation, int exposureFlag,
                               float exposure, const CFloatRows& rows)
{
    Formulation(speed, seaway, position) = static_cast<float>(formulation);
    ExposureFlag(speed, seaway, position) = static_cast<float>(exposureFlag);
    Exposure(speed, seaway, position) = exposure;
    Rows(speed, seaway, position) = static_cast<float>(rows.Count());
    Hold(Values, rows, speed, seaway, position);
}

CLoadRmsArrays::CLoadRmsArrays(const CResults& results)
    : Rows({Speeds(results), results.Body.SeawayCount, results.Head.LoadStationCount}),
      Values({Speeds(results), results.Body.SeawayCount, results.Head.LoadStationCount,
              CalculatedRows(results), kColumns})
{
}

void CLoadRmsArrays::LoadRms(int speed, int seaway, int loadStation, const CFloatRows& rows)
{
    Rows(speed, seaway, loadStation) = static_cast<float>(rows.Count());
    Hold(Values, rows, speed, seaway, loadStation);
}
