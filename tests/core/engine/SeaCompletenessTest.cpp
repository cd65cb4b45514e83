#include "tests/core/engine/CompletenessCase.h"

#include <limits>

#include <gtest/gtest.h>

namespace
{
const std::string kHeights = "The significant wave heights for\nall the seaways are not complete.";
const std::string kTwoSeaways = "2"; ///< the line in front of the sea

/// The first seaway lacks a value.
void ExpectIncompleteSea(float spectrum, CField field, const std::string& message)
{
    CCompletenessCase test;
    test.SetSeas(spectrum);
    test.Unset(field);
    test.ExpectMessage(message, kTwoSeaways);
}

void ExpectIncompleteSea(float spectrum, CSeaField field, const std::string& message)
{
    CCompletenessCase test;
    test.SetSeas(spectrum);
    (test.Project.*field)[0] = -1;
    test.ExpectMessage(message, kTwoSeaways);
}

/// No file is chosen, told by the empty text and by the word for it.
void ExpectMissingFile(float spectrum, std::string CEnvironmentFields::*file, const std::string& message)
{
    for (const char* name : {"", "empty"})
    {
        CCompletenessCase test;
        test.SetSeas(spectrum);
        test.Project.*file = name;
        test.ExpectMessage(message, kTwoSeaways);
    }
}
} // namespace

TEST(SeaCompleteness, MinimumWaveFrequencyComesFirstAndStops)
{
    CCompletenessCase test;
    test.Project.WaveFreqUserInput = 1;
    test.Unset(&CProjectData::WVFREQMIN);
    test.Unset(&CProjectData::WVFREQMAX);
    test.Unset(&CProjectData::SPECTRUM);
    test.ExpectMessage("You have not specified the minimum wave frequency.", "NOLOAD RAW");
}

TEST(SeaCompleteness, MaximumWaveFrequencyWithAnyOptionButZero)
{
    CCompletenessCase test;
    test.Project.WaveFreqUserInput = 2;
    test.Unset(&CProjectData::WVFREQMAX);
    test.ExpectMessage("You have not specified the maximum wave frequency.", "NOLOAD RAW");
}

TEST(SeaCompleteness, DefaultWaveFrequenciesAreNotTested)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::WVFREQMIN);
    test.Unset(&CProjectData::WVFREQMAX);
    test.ExpectNothing();
}

TEST(SeaCompleteness, AnUnsetSpectrumEndsTheFileBehindTheEncounterFrequencies)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::SPECTRUM);
    test.Unset(&CProjectData::NSEADIR);
    test.ExpectMessage("You have not specified the wave spectrum.", "0.0 0.0 0.0");
}

TEST(SeaCompleteness, SeaDirectionsAreAskedForBelowTheTenParameterSpectrum)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::NSEADIR);
    test.Unset(&CProjectData::WAVESTEEP);
    test.ExpectMessage("You have not specified the sea directions.", "REGULAR");
    CCompletenessCase tenParameters;
    tenParameters.SetSeas(6);
    tenParameters.Unset(&CProjectData::NSEADIR);
    tenParameters.ExpectNothing();
}

TEST(SeaCompleteness, WaveSlopeOfARegularSea)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::WAVESTEEP);
    test.Unset(&CProjectData::SHIPLEN);
    test.ExpectMessage("The wave slope is not specified.", "1");
}

TEST(SeaCompleteness, QuadraticSeaHasItsMessageWithoutAFullStop)
{
    const std::string message = "The significant wave heights for\nall the seaways are not complete";
    ExpectIncompleteSea(1, &CProjectData::HSW, message);
    ExpectIncompleteSea(1, &CProjectData::TSW, message);
}

TEST(SeaCompleteness, BretschneiderSea)
{
    ExpectIncompleteSea(2, &CProjectData::BretHs, kHeights);
    ExpectIncompleteSea(2, &CProjectData::BretTp, kHeights);
}

TEST(SeaCompleteness, JonswapSea)
{
    ExpectIncompleteSea(3, &CProjectData::JonswapHs, kHeights);
    ExpectIncompleteSea(3, &CProjectData::JonswapTp, kHeights);
}

TEST(SeaCompleteness, EachOfTheSixOchiHubbleValues)
{
    for (const CSeaField field :
         {&CEnvironmentFields::OchiHs1, &CEnvironmentFields::OchiTp1, &CEnvironmentFields::OchiLam1,
          &CEnvironmentFields::OchiHs2, &CEnvironmentFields::OchiTp2, &CEnvironmentFields::OchiLam2})
    {
        ExpectIncompleteSea(4, field, "You have not completed the Ochi and Hubble wave spectrum.");
    }
}

TEST(SeaCompleteness, EachOfTheTenParameters)
{
    for (const CField field :
         {&CProjectData::ZETA1, &CProjectData::OMEGA1, &CProjectData::LAMB1, &CProjectData::KAPA1,
          &CProjectData::EXPP1, &CProjectData::ZETA2, &CProjectData::OMEGA2, &CProjectData::LAMB2,
          &CProjectData::KAPA2, &CProjectData::EXPP2})
    {
        ExpectIncompleteSea(6, field, "You have not completed the \n10 Parameter Direction wave spectrum.");
    }
}

TEST(SeaCompleteness, SpectrumFiles)
{
    ExpectMissingFile(5, &CEnvironmentFields::SpectrumFile, "The wave sea spectral file was not specified.");
    ExpectMissingFile(7, &CEnvironmentFields::HindcastFile, "The hindcast data file was not specified.");
    ExpectMissingFile(8, &CEnvironmentFields::DirectionalFile,
                      "The input directional file was not specified.");
}

TEST(SeaCompleteness, AnIncompleteSeaIsToldOnceNotForEachSeaway)
{
    CCompletenessCase test;
    test.SetSeas(2);
    test.Project.BretHs.fill(-1);
    test.Unset(&CProjectData::SHIPLEN);
    test.ExpectMessage(kHeights, kTwoSeaways);
}

TEST(SeaCompleteness, OnlyTheFirstSeawayIsTested)
{
    CCompletenessCase test;
    test.SetSeas(1);
    test.Unset(&CProjectData::HSW, 1);
    test.ExpectNothing();
}

TEST(SeaCompleteness, WithoutASeawayThereIsNoMessage)
{
    for (const float spectrum : {1.0F, 2.0F, 3.0F, 4.0F, 6.0F})
    {
        for (const float count : {0.0F, -1.0F, -5.0F, std::numeric_limits<float>::quiet_NaN()})
        {
            CCompletenessCase test;
            test.Project.SPECTRUM.Set(spectrum);
            test.Project.NSEAWAY.Set(count);
            test.ExpectNothing();
        }
    }
}

TEST(SeaCompleteness, AnEnvironmentWithoutSpeedsPasses)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::NSPEED);
    test.ExpectNothing();
}
