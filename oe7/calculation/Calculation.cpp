#include "oe7/calculation/Calculation.h"

#include "oe7/calculation/CSpeedCalculation.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <thread>

namespace oe7
{
namespace
{
/// The part of a run that goes into solving the sections, about; the rest is shared evenly by the speeds.
constexpr double kSectionsShare = 0.3;

int ThreadCount(int asked)
{
    return asked > 0 ? asked : std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

/// sqrt(stiffness/(inertia + added mass at that frequency)), found by turns.
template <class AddedMass>
double NaturalFrequency(double stiffness, double inertia, const AddedMass& addedMass)
{
    if (stiffness <= 0 || inertia <= 0)
    {
        return 0;
    }
    double w = std::sqrt(stiffness / inertia);
    for (int round = 0; round < 50; ++round)
    {
        const double next = std::sqrt(stiffness / std::max(inertia + addedMass(w), 0.1 * inertia));
        if (std::abs(next - w) < 1e-9)
        {
            break;
        }
        w = 0.5 * (w + next);
    }
    return w;
}

/// Of heave or pitch, at zero speed, alone.
double VerticalFrequency(const CShipModel& model, int mode, double stiffness, double inertia)
{
    const auto addedMass = [&](double w)
    {
        const CComplexMatrix6 hull =
            RadiationMatrix(model.Hull, StripCoefficients(model.Potentials, w), 0, model.Input.EndTerms);
        return -hull(mode, mode).real() / (w * w);
    };
    return NaturalFrequency(stiffness, inertia, addedMass);
}

CResults WithoutSpeeds(const CShipModel& model)
{
    CResults results{.Hull = model.Hull,
                     .Inertia = model.Inertia,
                     .Headings = model.Headings,
                     .Frequencies = model.Frequencies,
                     .Grid = model.Potentials.Grid(),
                     .HeaveFrequency = VerticalFrequency(model, 2, model.Hull.C33, model.Hull.Mass),
                     .PitchFrequency = VerticalFrequency(model, 4, model.Hull.C55, model.Inertia.I55),
                     .SlamForms = {},
                     .TankFrequency = {},
                     .Masses = {},
                     .StillWater = {},
                     .LiftColumns = model.RollDamping.LiftColumns(),
                     .ViscousColumns = model.RollDamping.ViscousColumns(),
                     .Speeds = {}};
    for (const CPosition& position : model.Input.Positions)
    {
        results.SlamForms.push_back(SlamForm(position));
    }
    if (model.Input.Tank)
    {
        results.TankFrequency = FindTank(*model.Input.Tank, model.Hull).NaturalFrequency();
    }
    if (model.Masses)
    {
        results.Masses = model.Masses->All();
        results.StillWater = StillWater(model.Hull, *model.Masses);
    }
    return results;
}

/// Tells the progress of a run, from any of its threads.
class CProgressTeller
{
public:
    explicit CProgressTeller(const CRunOptions& options) : m_options(options) {}

    void Tell(const std::string& what, double part)
    {
        if (m_options.Progress)
        {
            const std::lock_guard lock(m_mutex);
            m_options.Progress(what, part);
        }
    }

private:
    const CRunOptions& m_options;
    std::mutex m_mutex;
};
} // namespace

CResults Calculate(const CInput& input, CRunLog& log, const CRunOptions& options)
{
    CProgressTeller teller(options);
    teller.Tell("sections", 0);
    const CShipModel model(input, log, ThreadCount(options.Threads));
    CResults results = WithoutSpeeds(model);
    const std::size_t count = input.Speeds.size();
    if (count == 0)
    {
        log.Warn("No speed is given: there are no motions");
    }
    for (std::size_t speed = 0; speed < count; ++speed)
    {
        const std::string what = "speed " + std::to_string(speed + 1) + " of " + std::to_string(count);
        const auto progress = [&](double part)
        {
            const double ofSpeeds = (static_cast<double>(speed) + part) / static_cast<double>(count);
            teller.Tell(what, kSectionsShare + (1 - kSectionsShare) * ofSpeeds);
        };
        results.Speeds.push_back(CSpeedCalculation(model, input.Speeds[speed]).Run(progress));
    }
    return results;
}

} // namespace oe7
