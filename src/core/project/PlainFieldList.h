// The fields of a project that are no keyword fields, one row each: type, name, value after a reset.
#pragma once

// The project's title, and where it came from and goes to.
#define FILE_FIELDS(FIELD)                                                                                   \
    FIELD(std::string, ProjectTitle, {})                                                                     \
    FIELD(std::string, ActiveGeometryFile, {})                                                               \
    FIELD(std::string, ActiveEnvironmentFile, {})                                                            \
    FIELD(std::string, FileMagic, {})                                                                        \
    FIELD(std::string, InputFileName, {})                                                                    \
    FIELD(std::string, InputFilePath, kNoName)

// What the environment half of a project file holds.
#define ENVIRONMENT_FIELDS(FIELD)                                                                            \
    FIELD(std::string, OldFileText, {})                                                                      \
    FIELD(std::string, SpectrumFile, {})                                                                     \
    FIELD(std::string, HindcastFile, {})                                                                     \
    FIELD(std::string, DirectionalFile, {})                                                                  \
    FIELD(int, SeaDirectionUnit, 0)                                                                          \
    FIELD(int, SpreadOption, 0)                                                                              \
    FIELD(float, SpreadAngleText, kNotGiven)                                                                 \
    FIELD(CTenFloats, BretHs, Slots<10>(kNotGiven))                                                          \
    FIELD(CTenFloats, BretTp, Slots<10>(kNotGiven))                                                          \
    FIELD(CTenFloats, JonswapHs, Slots<10>(kNotGiven))                                                       \
    FIELD(CTenFloats, JonswapTp, Slots<10>(kNotGiven))                                                       \
    FIELD(int, BretUnit, kUnitMetric)                                                                        \
    FIELD(int, JonswapUnit, kUnitMetric)                                                                     \
    FIELD(int, OchiUnit, kUnitMetric)                                                                        \
    FIELD(CTenFloats, OchiHs1, Slots<10>(kNotGiven))                                                         \
    FIELD(CTenFloats, OchiHs2, Slots<10>(kNotGiven))                                                         \
    FIELD(CTenFloats, OchiTp1, Slots<10>(kNotGiven))                                                         \
    FIELD(CTenFloats, OchiTp2, Slots<10>(kNotGiven))                                                         \
    FIELD(CTenFloats, OchiLam1, Slots<10>(kNotGiven))                                                        \
    FIELD(CTenFloats, OchiLam2, Slots<10>(kNotGiven))

// What the geometry half of a project file holds.
#define GEOMETRY_FIELDS(FIELD)                                                                               \
    FIELD(int, StationOrigin, 0)                                                                             \
    FIELD(int, RudderRollStabilization, 0)                                                                   \
    FIELD(CTenTexts, PositionLabel, {})                                                                      \
    FIELD(int, SectionAreaUnit, 1)                                                                           \
    FIELD(int, SectionAreaSource, 0)                                                                         \
    FIELD(int, WorkingStationCount, 0)                                                                       \
    FIELD(float, WorkingDraft, 0)                                                                            \
    FIELD(int, WorkingDraftUnit, 0)                                                                          \
    FIELD(float, WorkingTrim, 0)                                                                             \
    FIELD(CStationFloats, StationSpare, Slots<21>(kNotGiven))                                                \
    FIELD(int, LoadStationsUserInput, 0)                                                                     \
    FIELD(int, KxxiUserInput, 0)                                                                             \
    FIELD(int, KgUserInput, 0)                                                                               \
    FIELD(int, WaveFreqUserInput, 0)                                                                         \
    FIELD(int, EncFreqUserInput, 0)                                                                          \
    FIELD(int, WarnMassLimit, 1)                                                                             \
    FIELD(int, MassDataEntered, 0)                                                                           \
    FIELD(CTenFloats, SlamMidshipDraft, Slots<10>(kNotGiven))                                                \
    FIELD(CTenFloats, SlamLoadHeight, Slots<10>(kNotGiven))                                                  \
    FIELD(CTenInts, MSIFlag, {})                                                                             \
    FIELD(CTenInts, MSIMethod, {})                                                                           \
    FIELD(CTenInts, MSIExposureOption, {})                                                                   \
    FIELD(CTenFloats, MSIExposure, Slots<10>(kDefaultMsiExposure))                                           \
    FIELD(CSummaryValues, SummaryValues, {})                                                                 \
    FIELD(int, AppendedHull, 0)                                                                              \
    FIELD(int, IncludeSkeg, 0)                                                                               \
    FIELD(int, IncludeFoils, 0)                                                                              \
    FIELD(int, IncludeBilgeKeels, 0)                                                                         \
    FIELD(int, IncludeRudder, 0)                                                                             \
    FIELD(int, IncludeStabilizer, 0)                                                                         \
    FIELD(int, RudderGainFileUsed, 0)                                                                        \
    FIELD(int, FinGainFileUsed, 0)                                                                           \
    FIELD(std::string, RudderGainFile, {})                                                                   \
    FIELD(std::string, FinGainFile, {})                                                                      \
    FIELD(float, RudderDihedral, kVerticalDihedral)                                                          \
    FIELD(CThreeFloats, RudderLateralGains, Slots<3>(kGainNotGiven))                                         \
    FIELD(CThreeInts, RudderLateralGainUnits, {})                                                            \
    FIELD(float, LateralPointX, kNotGiven)                                                                   \
    FIELD(float, LateralPointZ, kNotGiven)                                                                   \
    FIELD(int, LateralPointZUnit, kUnitMetric)                                                               \
    FIELD(int, LateralGainPoint, 0)                                                                          \
    FIELD(CThreeFloats, FinYawGains, Slots<3>(kGainNotGiven))

// What forms remember from one opening to the next.
#define FORM_FIELDS(FIELD)                                                                                   \
    FIELD(int, SeaDirectionOption, -1)                                                                       \
    FIELD(int, SummaryOption, -1)                                                                            \
    FIELD(int, SummaryOption2, 0)                                                                            \
    FIELD(int, SummaryOption3, 0)

// State of the running program: results, engine, check options; no reset touches it.
#define SESSION_FIELDS(FIELD)                                                                                \
    FIELD(int, EngineRunning, 0)                                                                             \
    FIELD(int, ResultsLoaded, 0)                                                                             \
    FIELD(std::string, ResultsFilePath, {})                                                                  \
    FIELD(std::string, ResultsTitle, kNoName)                                                                \
    FIELD(int, ReadingOldFile, 0)                                                                            \
    FIELD(CTenInts, CustomReport, {})                                                                        \
    FIELD(CSelection, SelectedSpeeds, {})                                                                    \
    FIELD(CSelection, SelectedHeadings, {})                                                                  \
    FIELD(CSelection, SelectedSeaways, {})                                                                   \
    FIELD(CSelection, SelectedPositions, {})                                                                 \
    FIELD(int, ResultSelectionA, 0)                                                                          \
    FIELD(int, ResultSelectionB, 0)                                                                          \
    FIELD(int, ReportDataRead, 0)                                                                            \
    FIELD(int, InputWritten, 0)                                                                              \
    FIELD(int, OffsetEditStation, 0)                                                                         \
    FIELD(int, OffsetEditRequested, 0)                                                                       \
    FIELD(int, OffsetSegmentsRequested, 0)                                                                   \
    FIELD(int, ChkSegLenInter, 0)                                                                            \
    FIELD(int, ChkSegLenPreRun, 0)                                                                           \
    FIELD(int, ChkNegZInter, 0)                                                                              \
    FIELD(int, ChkNegZPreRun, 0)
