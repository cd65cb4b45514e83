// Converts the project's values to the units of an engine input: each value is stored in the unit that its
// own flag names, the engine gets all of them in one system.
#pragma once

/// What a value is, as far as its conversion goes.
enum class EQuantity
{
    Plain, ///< written as stored
    Length,
    Mass,
    InverseLength,
    Speed ///< always to knots; its unit flag is 0 for knots and 1 for metres per second
};

class CEngineUnits
{
public:
    /// `inSystem` is a value of INSYS: a text of "0" as "%.0f" is British, anything else metric.
    explicit CEngineUnits(float inSystem);

    /// What a value stored under a unit flag is multiplied by: exactly 1 if it is in the engine's unit
    /// already.
    double Factor(EQuantity quantity, int unit) const;

    double ConvertLength(float value, int unit) const { return value * Factor(EQuantity::Length, unit); }
    double ConvertMass(float value, int unit) const { return value * Factor(EQuantity::Mass, unit); }
    double ConvertInverseLength(float value, int unit) const
    {
        return value * Factor(EQuantity::InverseLength, unit);
    }
    double ConvertSpeed(float value, int unit) const { return value * Factor(EQuantity::Speed, unit); }

private:
    bool m_british;
};
