#include "tests/core/engine/CompletenessCase.h"

#include <gtest/gtest.h>

namespace
{
const std::string kOffsets =
    "You have not completed all of the y or z-offsets\nspecified in the hull geometry.";
const std::string kSections =
    "You have not completed the sectional area\nparameters for all the stations specified.";
const std::string kDraft = "The draft at midships is not specified.";

/// Three stations by section areas.
struct CSections : CCompletenessCase
{
    CSections() { SetSections(3); }
};

/// Twenty-one stations whose offsets weren't completed.
struct COffsets : CCompletenessCase
{
    COffsets()
    {
        SetStations(21);
        Project.SectionAreaUnit = 0;
    }
};
} // namespace

TEST(HullCompleteness, ShipLength)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::SHIPLEN);
    test.Unset(&CProjectData::ROLLNF);
    test.ExpectMessage("You have not specified a\nlength between perpendiculars.", "0 ");
}

TEST(HullCompleteness, UnsetCentreHeightAndPitchRadiusPassAllTests)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::KG);
    test.Unset(&CProjectData::PITCHRG);
    test.ExpectNothing();
}

TEST(HullCompleteness, AValueBesideTheSentinelIsGiven)
{
    CCompletenessCase test;
    test.Project.SHIPLEN.Set(-1.0001F);
    test.ExpectNothing();
}

TEST(HullCompleteness, MetacentricHeightStopsBeforeTheRollValues)
{
    CCompletenessCase test;
    test.Project.GMFLAG.Set(1);
    test.Unset(&CProjectData::ROLLNF);
    test.ExpectMessage("You have not specified a\n value for metacentric height.", "GMINPUT WETROLLNF");
}

TEST(HullCompleteness, RollNaturalFrequency)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::ROLLNF);
    test.Unset(&CProjectData::NST);
    test.ExpectMessage("You have not specified a\n value for roll natural frequency.", "GMCOMP WETROLLNF");
}

TEST(HullCompleteness, DryRollRadius)
{
    CCompletenessCase test;
    test.Project.ROLLRGDEF.Set(1);
    test.ExpectMessage("You have not specified a\n value for dry roll radius of gyration.",
                       "GMCOMP DRYROLLRG");
}

TEST(HullCompleteness, WetRollRadius)
{
    CCompletenessCase test;
    test.Project.ROLLRGDEF.Set(2);
    test.ExpectMessage("You have not specified a\n value for wet roll radius of gyration.",
                       "GMCOMP WETROLLRG");
}

TEST(HullCompleteness, RollValuesOfOtherOptionsAreNotAskedFor)
{
    CCompletenessCase test;
    test.Project.ROLLRGDEF.Set(3);
    test.Unset(&CProjectData::ROLLNF);
    test.ExpectNothing();
}

TEST(HullCompleteness, NumberOfStationsStopsBeforeTheDraft)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::NST);
    test.Unset(&CProjectData::DRAFTMID);
    test.ExpectMessage("You have not specified the number of stations.", "OFFSETS");
}

TEST(HullCompleteness, OffsetsAreToldOnceForEachOfTwentyOneStations)
{
    COffsets test;
    test.ExpectMessages(std::vector<std::string>(21, kOffsets), "0");
}

TEST(HullCompleteness, ABeamIsToldForEachStation)
{
    CSections test;
    test.Unset(&CProjectData::BEAM, 0);
    test.Unset(&CProjectData::BEAM, 2);
    test.ExpectMessages({kSections, kSections}, "0");
}

TEST(HullCompleteness, AStationsDraftAndAreaAreGuarded)
{
    CSections test;
    test.UnsetAll(&CProjectData::DRAFT);
    test.UnsetAll(&CProjectData::ACOEF);
    test.ExpectMessage(kSections, "0");
}

TEST(HullCompleteness, AMissingBeamGuardsItsOwnDraft)
{
    CSections test;
    test.Unset(&CProjectData::BEAM);
    test.Unset(&CProjectData::DRAFT);
    test.ExpectMessage(kSections, "0");
}

TEST(HullCompleteness, AnAreaOfTheSecondStation)
{
    CSections test;
    test.Unset(&CProjectData::ACOEF, 1);
    test.ExpectMessage(kSections, "1");
}

TEST(HullCompleteness, ABeamBehindAMissingDraftIsStillToldAndAnAreaIsNot)
{
    CSections test;
    test.Unset(&CProjectData::DRAFT, 0);
    test.Unset(&CProjectData::BEAM, 1);
    test.Unset(&CProjectData::ACOEF, 2);
    test.ExpectMessages({kSections, kSections}, "0");
}

TEST(HullCompleteness, DraftAtMidshipsGuardsTheTrim)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::DRAFTMID);
    test.Unset(&CProjectData::TRIMST);
    test.ExpectMessage(kDraft, "DRAFT");
}

TEST(HullCompleteness, Trim)
{
    CCompletenessCase test;
    test.Unset(&CProjectData::TRIMST);
    test.ExpectMessage("The trim is not specified.", "DRAFT");
}

TEST(HullCompleteness, TheDraftIsAskedForBehindFailedStationsButNotTheTrim)
{
    CSections test;
    test.Unset(&CProjectData::BEAM);
    test.Unset(&CProjectData::DRAFTMID);
    test.ExpectMessages({kSections, kDraft}, "0");
    CSections trim;
    trim.Unset(&CProjectData::BEAM);
    trim.Unset(&CProjectData::TRIMST);
    trim.ExpectMessage(kSections, "0");
}

TEST(HullCompleteness, LoadStationsStopBeforeThePositions)
{
    for (const float count : {-1.0F, 0.0F, 0.9F})
    {
        CCompletenessCase test;
        test.SetSlamming(1);
        test.UnsetAll(&CProjectData::SLFORM);
        test.Project.LOADFLAG.Set(0);
        test.Project.LoadStationsUserInput = 2;
        test.Project.NSTLOAD.Set(count);
        test.ExpectMessage("Stations for load calculations are not specified.", FixedText(count, "%.0f"));
    }
}

TEST(HullCompleteness, WithoutLoadsTheirStationsAreNotAskedFor)
{
    CCompletenessCase test;
    test.Project.LoadStationsUserInput = 1;
    test.ExpectNothing();
}

TEST(HullCompleteness, FailedStationsStopAllGroupsBehind)
{
    COffsets test;
    test.Project.NST.Set(1);
    test.SetLaterFailures();
    test.SetPositions(1);
    test.UnsetAll(&CProjectData::YPOS);
    test.ExpectMessage(kOffsets, "0");
}
