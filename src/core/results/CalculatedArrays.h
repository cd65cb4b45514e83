// Receivers that hold what one family of report sections needs of the calculated section. Values that the
// file doesn't have are 0.
#pragma once

#include "core/results/CHeldArray.h"
#include "core/results/CalculatedSection.h"

#include <array>
#include <vector>

/// Motion and load RAOs.
class CFrequencyArrays : public CCalculatedReceiver
{
public:
    explicit CFrequencyArrays(const CResults& results);
    void FroudeNumber(int speed, int heading, float number) override;
    void Frequencies(int speed, int heading, const CFloatRows& rows) override;

    std::vector<float> Froude;   ///< speed: that of its first heading
    CHeldArray<3> EncounterFreq; ///< speed, heading, frequency
    CHeldArray<3> WavelengthRatio;

private:
    int m_speed = -1; ///< the last whose number was taken
};

/// Roll damping.
class CDampingArrays : public CCalculatedReceiver
{
public:
    enum EColumn
    {
        EncounterFrequency,
        RollAngle,
        Total,
        Wave,
        Lift,
        Eddy,
        Skin,
        BilgeKeelViscous,
        FoilViscous,
        AddedMass,
        ColumnCount
    };

    explicit CDampingArrays(const CResults& results);
    void RollConstants(int speed, int heading, const std::array<float, 3>& values) override;
    void Damping(int speed, int heading, const CFloatRows& rows) override;
    void LiftBreakdown(int speed, int heading, const CFloatRows& rows) override;
    void ViscousBreakdown(int speed, int heading, const CFloatRows& rows) override;

    std::vector<std::array<float, 3>> Constants; ///< speed: those of its first heading
    CHeldArray<4> Components;                    ///< speed, heading, frequency, column
    bool HasBreakdown = false;                   ///< the file has the two tables
    /// Speed, heading, frequency, column: encounter frequency, roll angle, then the appendages.
    CHeldArray<4> LiftTable;
    CHeldArray<4> ViscousTable;

private:
    int m_speed = -1; ///< the last whose constants were taken
};

/// Slamming, deck wetness and emergence.
class CSlammingArrays : public CCalculatedReceiver
{
public:
    static constexpr int kLevels = 4;
    static constexpr int kColumns = 11;

    explicit CSlammingArrays(const CResults& results);
    void Slamming(int speed, int seaway, int position, const std::array<float, 4>& levels,
                  const CFloatRows& rows) override;
    void WetnessOrEmergence(int speed, int seaway, int position, const std::array<float, 2>& levels,
                            const CFloatRows& rows) override;

    CHeldArray<4> Levels; ///< speed, seaway, position, level in the order of the walk
    CHeldArray<3> Rows;   ///< speed, seaway, position: how many rows the file has
    CHeldArray<5> Values; ///< speed, seaway, position, row, column in the order of the walk

private:
    template <std::size_t Count>
    void HoldLevels(int speed, int seaway, int position, const std::array<float, Count>& levels)
    {
        for (std::size_t level = 0; level < Count; ++level)
        {
            Levels(speed, seaway, position, level) = levels[level];
        }
    }
};

/// Motion interruption.
class CInterruptionArrays : public CCalculatedReceiver
{
public:
    static constexpr int kColumns = 6;

    explicit CInterruptionArrays(const CResults& results);
    void Interruption(int speed, int seaway, int position, const CFloatRows& rows) override;

    CHeldArray<3> Rows;   ///< speed, seaway, position: how many rows the file has
    CHeldArray<5> Values; ///< speed, seaway, position, row, column
};

/// Motion sickness.
class CSicknessArrays : public CCalculatedReceiver
{
public:
    static constexpr int kColumns = 3;

    explicit CSicknessArrays(const CResults& results);
    void Sickness(int speed, int seaway, int position, int formulation, int exposureFlag, float exposure,
                  const CFloatRows& rows) override;

    CHeldArray<3> Formulation; ///< speed, seaway, position
    CHeldArray<3> ExposureFlag;
    CHeldArray<3> Exposure; ///< hours
    CHeldArray<3> Rows;     ///< how many rows the file has
    CHeldArray<5> Values;   ///< speed, seaway, position, row, column
};

/// RMS loads.
class CLoadRmsArrays : public CCalculatedReceiver
{
public:
    static constexpr int kColumns = 10;

    explicit CLoadRmsArrays(const CResults& results);
    void LoadRms(int speed, int seaway, int loadStation, const CFloatRows& rows) override;

    CHeldArray<3> Rows;   ///< speed, seaway, load station: how many rows the file has
    CHeldArray<5> Values; ///< speed, seaway, load station, heading, column
};
