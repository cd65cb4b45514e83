#include "bench/CBenchEngine.h"

#include "core/engine/CEngineInputWriter.h"
#include "oe7/calculation/Calculation.h"
#include "oe7/input/ForEach.h"
#include "oe7/input/InputFile.h"
#include "oe7/output/EngineFiles.h"

#include <Eigen/QR>

#include <numeric>
#include <vector>

namespace
{
constexpr int kSpeeds = 10;
constexpr int kDirections = 13;
constexpr float kLowest = 0.20F; ///< rad/s
constexpr float kHighest = 1.97F;
constexpr float kStep = 0.03F;
constexpr int kGridFrequencies = 46; ///< of the default grid
constexpr int kSymmetries = 2;
constexpr int kPanels = 30;
constexpr int kInside = 6; ///< points inside a section

void SetLargeRun(CProjectData& project)
{
    project.WVFREQMIN.Set(kLowest);
    project.WVFREQMAX.Set(kHighest);
    project.DWVFREQ.Set(kStep);
    project.NSPEED.Set(static_cast<float>(kSpeeds));
    for (int i = 0; i < kSpeeds; ++i)
    {
        project.SPDKNOT.Set(i, 2.5F * static_cast<float>(i));
    }
    project.NSEADIR.Set(static_cast<float>(kDirections));
    for (int i = 0; i < kDirections; ++i)
    {
        project.SEADIR.Set(i, 15.0F * static_cast<float>(i));
    }
}

oe7::CInput WrittenInput(CBenchProject& bench, oe7::ESectionMethod method)
{
    bench.File.OpenPath(ONDARA_SOURCE_DIR "/samples/Sample01.od7");
    SetLargeRun(bench.Project);
    bench.Project.HYMETHOD.Set(method == oe7::ESectionMethod::BoundaryElement ? 0.0F : 1.0F);
    CEngineInputWriter(bench.Project, bench.Folder, bench.Recorder.Platform).Write();
    bench.RequireNoMessage();
    oe7::CRunLog log;
    return oe7::ReadInput(bench.Folder, log);
}
} // namespace

CBenchEngine::CBenchEngine(oe7::ESectionMethod method)
    : Name(oe7::MethodName(method)),
      m_input(WrittenInput(Project, method))
{
}

std::size_t CBenchEngine::Calculate() const
{
    constexpr std::string_view kStamp = "Fri Nov 20 17:31:18 2026";
    oe7::CRunLog log;
    const oe7::CResults results = oe7::Calculate(m_input, log, {kEngineThreads, {}});
    return oe7::BinaryFile(m_input, results, kStamp, log).size() +
           oe7::Listing(m_input, results, kStamp, log).size();
}

double CBenchEngine::SolveSections() const
{
    const Eigen::MatrixXcd system = Eigen::MatrixXcd::Random(kPanels + kInside, kPanels);
    const Eigen::MatrixXcd right = Eigen::MatrixXcd::Random(kPanels + kInside, 2);
    std::vector<double> sums(static_cast<std::size_t>(m_input.StationCount));
    oe7::ForEach(m_input.StationCount, kEngineThreads,
                 [&](int station)
                 {
                     double& sum = sums[static_cast<std::size_t>(station)];
                     for (int i = 0; i < kGridFrequencies * kSymmetries; ++i)
                     {
                         sum += system.householderQr().solve(right).norm();
                     }
                 });
    return std::accumulate(sums.begin(), sums.end(), 0.0);
}
