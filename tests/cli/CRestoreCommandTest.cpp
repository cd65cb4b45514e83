#include "tests/cli/CEngineCliTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

TEST(CliRestore, SavesTheProjectOfTheResultsAndSaysNothing)
{
    CEngineCliTest test;
    test.Run({"run", "ship.od7", "--results", "out.tv7"});
    EXPECT_EQ(test.Run({"restore", "out.tv7", "again.od7"}), Done());
    const std::string dump = test.Run({"dump", "again.od7"}).Output;
    const std::string original = test.Run({"dump", "ship.od7"}).Output;
    const auto length = [](const std::string& json)
    {
        return json.substr(json.find("\"SHIPLEN\""),
                           json.find('}', json.find("\"SHIPLEN\"")) - json.find("\"SHIPLEN\""));
    };
    EXPECT_EQ(length(dump), length(original));
}

TEST(CliRestore, DoesNotLookAtTheExtension)
{
    CEngineCliTest test;
    test.Run({"run", "ship.od7"});
    test.Write("results.anything", test.Content("ondara7.bin"));
    EXPECT_EQ(test.Run({"restore", "results.anything", "again.od7"}), Done());
    EXPECT_TRUE(test.Has("again.od7"));
}

TEST(CliRestore, AFileThatCanNotBeOpenedSavesNothing)
{
    CEngineCliTest test;
    EXPECT_EQ(test.Run({"restore", "none.tv7", "again.od7"}),
              Failed("Error Saving File: The file could not be read.\n"));
    EXPECT_FALSE(test.Has("again.od7"));
}

TEST(CliRestore, AFileThatIsNoResultsFileSavesNothing)
{
    CEngineCliTest test;
    for (const std::string& bytes : {std::string(), std::string("abc"), std::string(100000, '\xFF')})
    {
        test.Write("bad.tv7", bytes);
        const CCliRun run = test.Run({"restore", "bad.tv7", "again.od7"});
        EXPECT_EQ(run.ExitCode, kExitFailed);
        EXPECT_THAT(run.Errors, HasSubstr("The file could not be read"));
        EXPECT_FALSE(test.Has("again.od7"));
    }
}

TEST(CliRestore, AnOutputThatCanNotBeWrittenIsAFailure)
{
    CEngineCliTest test;
    test.Run({"run", "ship.od7"});
    EXPECT_EQ(test.Run({"restore", "ondara7.bin", "none/again.od7"}),
              Failed("Error Saving File: The file could not be saved.\n"));
}
