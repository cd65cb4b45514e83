// The largest results file there is, in the folder of the largest project: made by completing what the engine
// would leave.
#pragma once

#include "bench/CBenchProject.h"
#include "core/results/CResults.h"

#include <string>
#include <vector>

class CBenchResults
{
public:
    /// The files of the largest run, or of one with fewer speeds.
    explicit CBenchResults(int speedCount = kMaxSpeeds);

    /// Puts the engine's two files into the folder and completes the results. Stops the program if that
    /// fails.
    void Complete();
    /// Reads the completed file into the held arrays of body and calculated section.
    void ReadWhole() const;
    /// Writes the whole report: each section that has data, all indices.
    void WriteReport();

    /// Puts the engine's two files into the folder.
    void WriteEngineFiles() const;

    CBenchProject Project;
    std::string Path;       ///< of the results file
    std::string ReportPath; ///< of the report
    std::string Binary;     ///< the engine's, end mark included
    std::string Listing;
};

/// Reads a file in one go and sums it as floats.
double SumAsFloats(const std::string& path);
/// The greatest memory of a process that runs a command line, in MiB; stops the program if it fails.
double PeakMemory(const std::vector<std::string>& command);
