// The bundled engine on a large run: the first sample ship at 10 speeds in waves of 13 directions and 60
// frequencies.
#pragma once

#include "bench/CBenchProject.h"
#include "oe7/input/CInput.h"

#include <string>

/// How many threads a run has in the measurement.
constexpr int kEngineThreads = 2;

class CBenchEngine
{
public:
    /// Writes the engine's input of a section method into a folder of its own.
    explicit CBenchEngine(oe7::ESectionMethod method);

    /// The whole run in memory, from the input to the text of the binary file and of the listing. Gives their
    /// length.
    std::size_t Calculate() const;
    /// The least that its linear algebra takes: one complex system of 30 panels by least squares for each
    /// section, frequency of the grid and symmetry, on as many threads. Gives a sum of the solutions.
    double SolveSections() const;

    CBenchProject Project; ///< for its folder
    std::string Name;      ///< of the section method

private:
    oe7::CInput m_input;
};
