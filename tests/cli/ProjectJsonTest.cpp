#include "cli/ProjectJson.h"

#include "core/platform/NumberText.h"
#include "tests/support/CTestProject.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <sstream>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using CJson = nlohmann::ordered_json;

namespace
{
CJson Parsed(CProjectData& project)
{
    return CJson::parse(ProjectJson(project));
}

std::vector<std::string> Names(const CJson& object)
{
    std::vector<std::string> names;
    for (const auto& item : object.items())
    {
        names.push_back(item.key());
    }
    return names;
}

/// The values of an array as the JSON text spells them.
std::vector<std::string> Spelled(const std::string& json, const std::string& keyword)
{
    const auto field = json.find("\"" + keyword + "\": {");
    const auto start = json.find("\"data\": [", field) + std::strlen("\"data\": [");
    std::istringstream list(json.substr(start, json.find(']', start) - start));
    std::vector<std::string> values;
    for (std::string value; std::getline(list >> std::ws, value, ',');)
    {
        values.push_back(value);
    }
    return values;
}
} // namespace

TEST(ProjectJson, HoldsKeywordsFieldsAndCompleteness)
{
    CTestProject test;
    EXPECT_THAT(Names(Parsed(test.Project)), testing::ElementsAre("keywords", "fields", "complete"));
}

TEST(ProjectJson, KeywordsStandInTableOrderWithTheirRow)
{
    CTestProject test;
    test.Project.KG.unit = kUnitBritish;
    test.Project.KG.changed = 1;
    const CJson keywords = Parsed(test.Project)["keywords"];
    ASSERT_EQ(keywords.size(), static_cast<std::size_t>(kKeywordCount));
    std::size_t index = 0;
    for (const auto& item : keywords.items())
    {
        const CKeywordRow& row = KeywordTable()[index++];
        EXPECT_EQ(item.key(), row.Name);
        EXPECT_THAT(Names(item.value()),
                    testing::ElementsAre("unit", "scope", "min", "max", "changed", "data"));
        EXPECT_EQ(item.value()["scope"], row.Scope);
        EXPECT_EQ(item.value()["min"].get<float>(), row.Minimum);
        EXPECT_EQ(item.value()["max"].get<float>(), row.Maximum);
        EXPECT_EQ(item.value()["data"].size(), static_cast<std::size_t>(row.Count));
    }
    EXPECT_EQ(keywords["KG"]["unit"], 1);
    EXPECT_EQ(keywords["KG"]["changed"], 1);
    EXPECT_EQ(keywords["SHIPLEN"]["unit"], 0);
}

TEST(ProjectJson, ASingleValueIsAnArrayToo)
{
    CTestProject test;
    test.Project.KG.Set(2.5F);
    EXPECT_EQ(Parsed(test.Project)["keywords"]["KG"]["data"], CJson({2.5}));
}

TEST(ProjectJson, IndentsByTwoAndKeepsArraysOnOneLine)
{
    CTestProject test;
    const std::string json = ProjectJson(test.Project);
    EXPECT_THAT(json, StartsWith("{\n  \"keywords\": {\n    \"INSYS\": {\n      \"unit\": 0,\n"
                                 "      \"scope\": 0,\n      \"min\": 0,\n      \"max\": 1,\n"
                                 "      \"changed\": 0,\n      \"data\": [1]\n    },\n    \"OUTSYS\": {\n"));
    EXPECT_THAT(json, HasSubstr("    \"RudderLateralGains\": [-111111, -111111, -111111],\n"));
    EXPECT_THAT(json, HasSubstr("    \"SelectedSpeeds\": [],\n"));
    EXPECT_THAT(json, EndsWith("    \"WaveComplete\": 0\n  }\n}\n"));
}

TEST(ProjectJson, FloatsHaveTheShortestTextThatReadsBack)
{
    CTestProject test;
    std::vector<float> values = {0.1F,        16777217.0F, 3.4028235e38F, 1.0e-45F, 1.17549435e-38F,
                                 123456.789F, 0.3048F,     -0.0F,         1e9F,     -2.5e-7F};
    std::mt19937 random(7);
    while (values.size() < test.Project.YAUSER.data.size())
    {
        const std::uint32_t bits = static_cast<std::uint32_t>(random());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        values.push_back(std::isfinite(value) ? value : 1.0F);
    }
    test.Project.YAUSER.data = values;
    const auto texts = Spelled(ProjectJson(test.Project), "YAUSER");
    ASSERT_EQ(texts.size(), values.size());
    const auto digits = [](const std::string& text)
    {
        const std::string mantissa = text.substr(0, text.find('e'));
        std::string kept;
        std::copy_if(mantissa.begin(), mantissa.end(), std::back_inserter(kept),
                     [](char c) { return c >= '0' && c <= '9'; });
        kept.erase(0, std::min(kept.find_first_not_of('0'), kept.size()));
        kept.erase(kept.find_last_not_of('0') + 1);
        return kept;
    };
    for (std::size_t k = 0; k < values.size(); ++k)
    {
        const float back = static_cast<float>(NumberAtStart(texts[k]));
        EXPECT_EQ(std::memcmp(&back, &values[k], sizeof back), 0) << texts[k];
        EXPECT_EQ(digits(texts[k]), digits(ShortestText(values[k]))) << texts[k];
    }
}

TEST(ProjectJson, NumbersThatAreNotFiniteAreNull)
{
    CTestProject test;
    test.Project.KG.Set(std::numeric_limits<float>::quiet_NaN());
    test.Project.LateralPointX = -std::numeric_limits<float>::infinity();
    const CJson json = Parsed(test.Project);
    EXPECT_EQ(json["keywords"]["KG"]["data"], CJson({nullptr}));
    EXPECT_EQ(json["fields"]["LateralPointX"], nullptr);
}

TEST(ProjectJson, PlainFieldsStandUnderTheirNames)
{
    CTestProject test;
    CProjectData& project = test.Project;
    project.ProjectTitle = "Ship";
    project.PositionLabel[1] = "Bridge";
    project.RudderLateralGains = {1.5F, 2, 3};
    project.RudderLateralGainUnits = {0, 1, 0};
    project.LateralPointZUnit = 1;
    project.SelectedHeadings = {0, 4};
    project.MSIFlag[9] = 1;
    const CJson fields = Parsed(project)["fields"];
    EXPECT_EQ(fields["ProjectTitle"], "Ship");
    EXPECT_EQ(fields["PositionLabel"], CJson({"", "Bridge", "", "", "", "", "", "", "", ""}));
    EXPECT_EQ(fields["RudderLateralGains"], CJson({1.5, 2, 3}));
    EXPECT_EQ(fields["RudderLateralGainUnits"], CJson({0, 1, 0}));
    EXPECT_EQ(fields["LateralPointZUnit"], 1);
    EXPECT_EQ(fields["SelectedHeadings"], CJson({0, 4}));
    EXPECT_EQ(fields["MSIFlag"], CJson({0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(fields["StationSpare"].size(), 21U);
}

TEST(ProjectJson, TheSummaryIsAnArrayOfItsSevenValues)
{
    CTestProject test;
    test.Project.SummaryValues = {{0.5F, 2}, 3, {"a", "b", "c"}, 4};
    EXPECT_EQ(Parsed(test.Project)["fields"]["SummaryValues"], CJson({0.5, 2, 3, "a", "b", "c", 4}));
}

TEST(ProjectJson, CompletenessFlagsStandInTheirOrder)
{
    CTestProject test;
    test.Project.SkegComplete = 1;
    const CJson complete = Parsed(test.Project)["complete"];
    EXPECT_THAT(Names(complete),
                testing::ElementsAre("TankComplete", "BilgeKeelComplete", "OffsetsComplete", "FoilComplete",
                                     "HullComplete", "MassComplete", "FrequenciesComplete", "SpeedsComplete",
                                     "ParticularsComplete", "FinComplete", "RudderComplete",
                                     "SeaDirectionsComplete", "PositionsComplete", "SectionAreasComplete",
                                     "SkegComplete", "WaveComplete"));
    EXPECT_EQ(complete["SkegComplete"], 1);
    EXPECT_EQ(complete["WaveComplete"], 0);
}

TEST(ProjectJson, Utf8TextsPassAndOthersGoByteByByte)
{
    CTestProject test;
    test.Project.ProjectTitle = "L\u00e4nge \u2248 1";
    test.Project.SpectrumFile = "\x80\xe4\xff";
    test.Project.HindcastFile = "\u00e4\xe4"; // one bad byte, and all go one by one
    const CJson fields = Parsed(test.Project)["fields"];
    EXPECT_EQ(fields["ProjectTitle"], "L\u00e4nge \u2248 1");
    EXPECT_EQ(fields["SpectrumFile"], "\u0080\u00e4\u00ff");
    EXPECT_EQ(fields["HindcastFile"], "\u00c3\u00a4\u00e4");
}

TEST(ProjectJson, QuotesAndControlCharactersAreEscaped)
{
    CTestProject test;
    test.Project.ProjectTitle = std::string("a\"b\\c\n\t\0d", 9);
    const std::string json = ProjectJson(test.Project);
    EXPECT_THAT(json, HasSubstr(R"("ProjectTitle": "a\"b\\c\n\t\u0000d")"));
}
