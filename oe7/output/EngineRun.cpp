#include "oe7/output/EngineRun.h"

#include "oe7/input/FileNames.h"
#include "oe7/input/InputFile.h"
#include "oe7/output/EngineFiles.h"
#include "oe7/output/LogFile.h"
#include "oe7/output/WholeFile.h"

#include <chrono>
#include <new>
#include <ostream>

namespace fs = std::filesystem;

namespace oe7
{
namespace
{
/// The steps of one run and what they share.
class CEngineRun
{
public:
    CEngineRun(fs::path folder, const CRunOptions& options) : m_folder(std::move(folder)), m_options(options)
    {
    }

    /// Throws whatever goes wrong.
    void Calculate()
    {
        WriteWhole(m_folder / kLogFile, UnfinishedLog());
        RemoveBinary();
        const std::string text = ReadInputText(m_folder);
        m_binaryFile = BinaryFileName(text).value_or(m_binaryFile);
        RemoveBinary();
        WriteResults(ParseInput(text, m_folder, m_log));
        WriteWhole(m_folder / kLogFile, FinishedLog(m_log, m_stamp, Seconds()));
    }

    void Fail(std::string_view error)
    {
        RemoveBinary();
        WriteWhole(m_folder / kLogFile, FailedLog(error, m_log, m_stamp));
    }

private:
    /// The binary file comes last: that it is there says that all is well.
    void WriteResults(const CInput& input)
    {
        const CResults results = oe7::Calculate(input, m_log, m_options);
        WriteWhole(m_folder / kListingFile, Listing(input, results, m_stamp, m_log));
        WriteWhole(m_folder / kCoefficientFile, CoefficientTable(results, m_log));
        WriteWhole(m_folder / kWaveForceFile, WaveForceTable(results, m_log));
        WriteWhole(m_folder / m_binaryFile, BinaryFile(input, results, m_stamp, m_log));
    }

    void RemoveBinary() const
    {
        const fs::path path = m_folder / m_binaryFile;
        std::error_code failed;
        fs::remove(path, failed);
        if (failed && fs::is_regular_file(path, failed))
        {
            // Where no file can be taken away it may still be emptied, and then passes for no result.
            fs::resize_file(path, 0, failed);
        }
    }

    double Seconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }

    const fs::path m_folder;
    const CRunOptions& m_options;
    const std::string m_stamp = RunStamp(std::time(nullptr));
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    CRunLog m_log;
    std::string m_binaryFile = kUsualBinaryFile; ///< until the input names another
};

/// The failure is told on `errors` even where it can't be written into the log.
int Failed(CEngineRun& run, std::string_view error, std::ostream& errors)
{
    errors << "OE7: " << error << "\n";
    try
    {
        run.Fail(error);
    }
    catch (const std::exception& second)
    {
        errors << "OE7: " << second.what() << "\n";
    }
    return 1;
}
} // namespace

int RunEngine(const fs::path& folder, const CRunOptions& options, std::ostream& errors)
{
    CEngineRun run(folder, options);
    try
    {
        run.Calculate();
        return 0;
    }
    catch (const std::bad_alloc&)
    {
        return Failed(run, "there is not enough memory for this calculation", errors);
    }
    catch (const std::exception& error)
    {
        return Failed(run, error.what(), errors);
    }
}

} // namespace oe7
