// A run whose listing a test writes itself, line by line.
#pragma once

#include "tests/core/results/CCompletion.h"
#include "tests/core/results/CEchoBytes.h"

#include <gtest/gtest.h>

#include <vector>

struct CHandMadeRun : CCompletion
{
    CProjectData& P = Project;
    std::string Listing;

    /// A given GM, no station, no position, no speed.
    CHandMadeRun()
    {
        P.GMFLAG.Set(1);
        P.GMUSER.Set(1.5F);
        P.SHIPLEN.Set(100);
        P.NST.Set(0);
        P.SPECTRUM.Set(0);
        Lines({"ENFREQMIN : 1", "max : 2", "step : 3", "GMFLAG", "", "GM : 4", "GENERAL HULL PARAMETERS",
               "Displacement, draft : 5", "XCG : 6", "Displacement : 7", "Cb : 0.5"});
    }

    CHandMadeRun& Lines(const std::vector<std::string>& lines)
    {
        for (const std::string& line : lines)
        {
            Listing += line + "\n";
        }
        return *this;
    }
    CHandMadeRun& Sections() { return Lines({"SECTIONAL PROPERTIES", "", "", "", "", ""}); }

    /// Completes with as many headings and frequencies in the engine's part.
    void Run(int headings, int frequencies)
    {
        CEngineRun run = EngineRunOf(P);
        run.Headings.assign(static_cast<std::size_t>(headings), 0);
        run.FrequencyCount = frequencies;
        Folder.Write(kResultsFileName, EngineBinary(run));
        Folder.Write(kListingFileName, Listing);
        Complete();
    }

    /// What stands behind the head of section A, which is that of the lines above.
    std::string Calculated(std::size_t trailer = 16) const
    {
        const std::string bytes = FileContent(Path);
        const auto begin = static_cast<std::size_t>(ValueAt<int>(bytes, bytes.size() - 4));
        EXPECT_EQ(bytes.substr(begin, 32), CEchoBytes().Floats({1, 2, 3, 4, 5, 6, 7, 0.5F}).Bytes());
        return bytes.substr(begin + 32, bytes.size() - trailer - begin - 32);
    }
    void Expect(const CEchoBytes& expected, std::size_t trailer = 16)
    {
        EXPECT_EQ(Recorder.Messages, std::vector<std::string>());
        ASSERT_EQ(P.ResultsLoaded, 1);
        const std::string found = Calculated(trailer);
        EXPECT_TRUE(found == expected.Bytes())
            << found.size() << " and " << expected.Bytes().size() << Told(found);
    }

    static std::string Told(const std::string& bytes)
    {
        std::string text;
        for (std::size_t k = 0; k + 4 <= bytes.size(); k += 4)
        {
            text += " " + std::to_string(ValueAt<float>(bytes, k));
        }
        return text;
    }
};
