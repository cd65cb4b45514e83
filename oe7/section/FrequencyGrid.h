// The encounter frequencies at which sections are solved.
#pragma once

#include <array>
#include <vector>

namespace oe7
{

/// The grid: the default one of 46 frequencies, geometric between 0.2 and 30 times sqrt(g/L), when the three
/// values (lowest, highest, step; rad/s) are 0; else from them. Throws CInputError if fewer than 4 or more
/// than 100 frequencies would remain.
std::vector<double> FrequencyGrid(const std::array<double, 3>& asked, double length);

/// Which grid values an encounter frequency takes, and with what weights.
struct CGridWeights
{
    std::array<int, 4> Index{};
    std::array<double, 4> Weight{};
    /// Factor of the imaginary part: -1 for a negative frequency, falling above the grid.
    double Imaginary = 1;
};

/// Cubic Lagrange weights in ln |w| of a signed frequency (rad/s). Below the grid its lowest value holds;
/// above it the real part of its last one, and an imaginary part that falls with w^4.
CGridWeights GridWeights(const std::vector<double>& grid, double w);

} // namespace oe7
