#include "core/platform/NumberText.h"

#include "tests/support/CCommaLocale.h"

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace
{
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kGreatest = std::numeric_limits<int>::max();

/// Tokens as files have them, well-formed and not.
const std::vector<std::string> kTokens = {"",
                                          "0",
                                          "-0",
                                          "+0",
                                          "1",
                                          "-1",
                                          "+1",
                                          "-1.00",
                                          ".5",
                                          "-.5",
                                          "+.5",
                                          ".",
                                          "-",
                                          "+",
                                          "+-1",
                                          "--1",
                                          "5.",
                                          "5.e1",
                                          "1e3",
                                          "1E3",
                                          "1e",
                                          "1e+",
                                          "1e+2",
                                          "1e-2x",
                                          "1.7",
                                          "010",
                                          "08",
                                          "0x1A",
                                          "0X1a",
                                          "0x",
                                          "-0x",
                                          "0xg",
                                          "x1",
                                          "-0x10",
                                          "+0x1.8p1",
                                          "0x.8",
                                          "00x1",
                                          "nan",
                                          "-nan",
                                          "inf",
                                          "-inf",
                                          "infinity",
                                          "in",
                                          "na",
                                          "nan(1)",
                                          " 7",
                                          "\t7",
                                          "\n 7",
                                          "\v\f\r7",
                                          "7 8",
                                          "7,8",
                                          "12abc",
                                          "1.2.3",
                                          "1e308",
                                          "1e309",
                                          "-1e309",
                                          "1e-310",
                                          "1e-400",
                                          "0.1",
                                          "100000.001",
                                          "16777217",
                                          "2147483647",
                                          "-2147483648",
                                          "3.4e38",
                                          "3.5e38",
                                          "1e-46",
                                          "0.000001",
                                          "-111111.0000",
                                          "d5",
                                          "1d5",
                                          "0.30000001192092896"};

/// Short texts of the characters that numbers are made of.
std::vector<std::string> RandomTokens(int count)
{
    const std::string letters = "+-0123456789.xXeEaAfF inp\t";
    std::mt19937 random(20240229);
    std::vector<std::string> tokens;
    for (int k = 0; k < count; ++k)
    {
        std::string token;
        for (auto length = random() % 9 + 1; length > 0; --length)
        {
            token += letters[random() % letters.size()];
        }
        tokens.push_back(token);
    }
    return tokens;
}

std::vector<std::string> AllTokens()
{
    std::vector<std::string> tokens = kTokens;
    const auto more = RandomTokens(20000);
    tokens.insert(tokens.end(), more.begin(), more.end());
    return tokens;
}

/// The same number, counting all NaNs of a sign as one, and the two zeros as two.
template <class CNumber>
bool IsSame(CNumber a, CNumber b)
{
    return std::signbit(a) == std::signbit(b) && ((std::isnan(a) && std::isnan(b)) || a == b);
}

/// Makes the C locale the process's own, so that the library's own readings can be compared with.
class CPointLocale
{
public:
    CPointLocale() : m_previous(std::setlocale(LC_ALL, nullptr)) { std::setlocale(LC_ALL, "C"); }
    ~CPointLocale() { std::setlocale(LC_ALL, m_previous.c_str()); }
    CPointLocale(const CPointLocale&) = delete;
    CPointLocale& operator=(const CPointLocale&) = delete;

private:
    std::string m_previous;
};

std::optional<int> LibraryInteger(const std::string& token)
{
    int value = 0;
    return std::sscanf(token.c_str(), "%i", &value) == 1 ? std::optional(value) : std::nullopt;
}

std::optional<float> LibraryFloat(const std::string& token)
{
    float value = 0;
    return std::sscanf(token.c_str(), "%f", &value) == 1 ? std::optional(value) : std::nullopt;
}

std::string LibraryFixed(double value, int decimals)
{
    char text[400];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

/// What the five readers make of a token.
struct CReadings
{
    double Number;
    int Integer;
    std::optional<int> Scanned;
    std::optional<float> ScannedFloat;
};

CReadings Readings(const std::string& token)
{
    return {NumberAtStart(token), IntegerAtStart(token), ScanInteger(token), ScanFloat(token)};
}

CReadings LibraryReadings(const std::string& token)
{
    return {std::atof(token.c_str()), std::atoi(token.c_str()), LibraryInteger(token), LibraryFloat(token)};
}

void ExpectSame(const CReadings& expected, const CReadings& actual, const std::string& token)
{
    EXPECT_TRUE(IsSame(expected.Number, actual.Number))
        << "atof \"" << token << "\": " << expected.Number << ", not " << actual.Number;
    EXPECT_EQ(expected.Integer, actual.Integer) << "atoi \"" << token << '"';
    EXPECT_EQ(expected.Scanned, actual.Scanned) << "%i \"" << token << '"';
    ASSERT_EQ(expected.ScannedFloat.has_value(), actual.ScannedFloat.has_value()) << "%f \"" << token << '"';
    EXPECT_TRUE(IsSame(expected.ScannedFloat.value_or(0), actual.ScannedFloat.value_or(0)))
        << "%f \"" << token << '"';
}

/// Numbers whose texts are hard to round, and many of any size.
std::vector<double> HardNumbers()
{
    std::vector<double> numbers = {0.0,
                                   -0.0,
                                   0.5,
                                   1.5,
                                   2.5,
                                   -0.5,
                                   0.125,
                                   0.375,
                                   1.005,
                                   2.675,
                                   -0.001,
                                   0.05,
                                   0.15,
                                   0.25,
                                   1e22,
                                   1e23,
                                   -1.0,
                                   -99.0,
                                   -111111.0,
                                   999.995,
                                   1e-300,
                                   5e-324,
                                   1.7976931348623157e308,
                                   kInfinity,
                                   -kInfinity,
                                   static_cast<double>(0.1F),
                                   static_cast<double>(3.3F)};
    std::mt19937_64 random(7);
    for (int k = 0; k < 3000; ++k)
    {
        const auto value = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (!std::isnan(value))
        {
            numbers.push_back(value);
        }
        // Numbers as ships have them, and halves of the last digit among them.
        numbers.push_back(static_cast<double>(static_cast<int>(random() % 2000000) - 1000000) / 1000.0);
        numbers.push_back(static_cast<double>(static_cast<float>(random() % 100000) / 64.0F));
    }
    return numbers;
}

void ExpectPrintfText(double value)
{
    EXPECT_EQ(FixedText(value, "%.0f"), LibraryFixed(value, 0));
    EXPECT_EQ(FixedText(value, "%.1f"), LibraryFixed(value, 1));
    EXPECT_EQ(FixedText(value, "%.2f"), LibraryFixed(value, 2));
    EXPECT_EQ(FixedText(value, "%.3f"), LibraryFixed(value, 3));
    EXPECT_EQ(FixedText(value, "%.4f"), LibraryFixed(value, 4));
    EXPECT_EQ(FixedText(value, "%.6f"), LibraryFixed(value, 6));
    EXPECT_EQ(FixedText(value, "%.9f"), LibraryFixed(value, 9));
}
} // namespace

TEST(NumberText, AnIntegerIsScannedUpToTheFirstCharacterThatIsNone)
{
    EXPECT_EQ(ScanInteger("-1.00"), -1);
    EXPECT_EQ(ScanInteger("3.7"), 3);
    EXPECT_EQ(ScanInteger("1e5"), 1);
    EXPECT_EQ(ScanInteger("+12abc"), 12);
    EXPECT_EQ(ScanInteger(" \t\n7"), 7);
}

TEST(NumberText, ANumberThatBeginsWithItsPointIsNoInteger)
{
    EXPECT_EQ(ScanInteger(".5"), std::nullopt);
    EXPECT_EQ(ScanInteger("-.5"), std::nullopt);
    EXPECT_EQ(ScanFloat(".5"), 0.5F);
    EXPECT_EQ(ScanFloat("-.5"), -0.5F);
}

TEST(NumberText, HexadecimalAndOctalIntegersAreScanned)
{
    EXPECT_EQ(ScanInteger("0x1A"), 26);
    EXPECT_EQ(ScanInteger("-0X1a"), -26);
    EXPECT_EQ(ScanInteger("010"), 8);
    EXPECT_EQ(ScanInteger("08"), 0);
    EXPECT_EQ(ScanInteger("0x"), 0);
}

TEST(NumberText, NanAndInfAndWordsAreNoIntegers)
{
    for (const char* token : {"nan", "inf", "-inf", "abc", "x1", "", " ", "-", "+", "e5", ","})
    {
        EXPECT_EQ(ScanInteger(token), std::nullopt) << token;
    }
}

TEST(NumberText, NanAndInfAreFloats)
{
    EXPECT_TRUE(std::isnan(ScanFloat("nan").value()));
    EXPECT_TRUE(std::isinf(ScanFloat("-inf").value()));
    EXPECT_TRUE(std::isinf(ScanFloat("1e99").value()));
}

TEST(NumberText, ATextWithoutANumberIsNoFloat)
{
    for (const char* token : {"", " ", "abc", ".", "-", "+.", "e5", ",5"})
    {
        EXPECT_EQ(ScanFloat(token), std::nullopt) << token;
    }
}

TEST(NumberText, IntegersBeyondTheRangeAreTheNearestInt)
{
    EXPECT_EQ(ScanInteger("2147483647"), kGreatest);
    EXPECT_EQ(ScanInteger("2147483648"), kGreatest);
    EXPECT_EQ(ScanInteger("-2147483648"), kLeast);
    EXPECT_EQ(ScanInteger("-99999999999999999999999999"), kLeast);
    EXPECT_EQ(ScanInteger("0xFFFFFFFFFFFFFFFFFFFFFFF"), kGreatest);
    EXPECT_EQ(IntegerAtStart("4294967298"), kGreatest);
    EXPECT_EQ(IntegerAtStart("-4294967298"), kLeast);
}

TEST(NumberText, AnIntegerAtTheStartIsDecimalAndZeroWithoutOne)
{
    EXPECT_EQ(IntegerAtStart("1e3"), 1);
    EXPECT_EQ(IntegerAtStart("1.7"), 1);
    EXPECT_EQ(IntegerAtStart("010"), 10);
    EXPECT_EQ(IntegerAtStart("0x1A"), 0);
    EXPECT_EQ(IntegerAtStart("-4 5"), -4);
    EXPECT_EQ(IntegerAtStart(".5"), 0);
    EXPECT_EQ(IntegerAtStart("junk"), 0);
    EXPECT_EQ(IntegerAtStart(""), 0);
}

TEST(NumberText, ANumberAtTheStartMayBeHexadecimalOrInfinite)
{
    EXPECT_EQ(NumberAtStart("0x1A"), 26.0);
    EXPECT_EQ(NumberAtStart("inf"), kInfinity);
    EXPECT_TRUE(std::isnan(NumberAtStart("nan")));
    EXPECT_EQ(NumberAtStart("1e1"), 10.0);
    EXPECT_EQ(NumberAtStart("1e400"), kInfinity);
    EXPECT_EQ(NumberAtStart("-1e-400"), 0.0);
}

TEST(NumberText, ANumberAtTheStartIsZeroWithoutOne)
{
    for (const char* token : {"", " ", "junk", "-", ".", "-.", ",5", "e5"})
    {
        EXPECT_EQ(NumberAtStart(token), 0.0) << token;
    }
}

TEST(NumberText, ATextNeedsNoEnd)
{
    const std::string text = "12345";
    const std::string_view start = std::string_view(text).substr(0, 2);
    EXPECT_EQ(NumberAtStart(start), 12.0);
    EXPECT_EQ(IntegerAtStart(start), 12);
    EXPECT_EQ(ScanInteger(start), 12);
    EXPECT_EQ(ScanFloat(start), 12.0F);
    EXPECT_EQ(NumberAtStart(std::string_view("0x1AB").substr(0, 4)), 26.0);
}

TEST(NumberText, NumbersOfManyDigitsAreReadWhole)
{
    EXPECT_EQ(NumberAtStart("1" + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(NumberAtStart("0." + std::string(399, '0') + "1e400"), 1.0);
    EXPECT_EQ(NumberAtStart(std::string(450, '9')), kInfinity);
    EXPECT_EQ(ScanInteger(std::string(450, '0') + "7"), 7);
    EXPECT_EQ(ScanFloat(std::string(450, '0') + "7"), 7.0F);
}

TEST(NumberText, EveryReaderAgreesWithTheCLibrary)
{
    const CPointLocale point;
    for (const std::string& token : AllTokens())
    {
        ExpectSame(LibraryReadings(token), Readings(token), token);
        if (HasFatalFailure())
        {
            return;
        }
    }
}

TEST(NumberText, ATokenHoldsAnIntegerWhereOneIsScanned)
{
    for (const std::string& token : AllTokens())
    {
        EXPECT_EQ(HoldsInteger(token), ScanInteger(token).has_value()) << token;
    }
}

TEST(NumberText, TheDecimalCommaOfALocaleChangesNoReading)
{
    std::vector<CReadings> expected;
    for (const std::string& token : AllTokens())
    {
        expected.push_back(Readings(token));
    }
    const CCommaLocale comma;
    ASSERT_EQ(std::atof("1,5"), 1.5) << "the locale has no comma";
    std::size_t k = 0;
    for (const std::string& token : AllTokens())
    {
        ExpectSame(expected[k++], Readings(token), token);
    }
    EXPECT_EQ(NumberAtStart("1.5"), 1.5);
    EXPECT_EQ(NumberAtStart("1,5"), 1.0);
    EXPECT_EQ(NumberAtStart("0x1.8"), 1.5);
    EXPECT_EQ(ScanFloat("1.5"), 1.5F);
    EXPECT_EQ(ScanFloat("1,5"), 1.0F);
}

TEST(NumberText, TheDecimalCommaOfALocaleChangesNoWrittenNumber)
{
    const CCommaLocale comma;
    ASSERT_EQ(LibraryFixed(1.5, 2), "1,50") << "the locale has no comma";
    EXPECT_EQ(FixedText(1.5, "%.2f"), "1.50");
    EXPECT_EQ(FixedText(1234567.5, "%.1f"), "1234567.5");
    EXPECT_EQ(FormatText("%.2f %g", 1.5, 0.25), "1.50 0.25");
    EXPECT_EQ(IntegerText(1234567), "1234567");
    EXPECT_EQ(LibraryFixed(1.5, 2), "1,50") << "the program's locale is the user's again";
}

TEST(NumberText, NumbersAreWrittenAsPrintfWritesThem)
{
    const CPointLocale point;
    for (const double value : HardNumbers())
    {
        ExpectPrintfText(value);
    }
}

TEST(NumberText, AHalfOfTheLastDigitGoesToTheEvenNeighbour)
{
    EXPECT_EQ(FixedText(0.125, "%.2f"), "0.12");
    EXPECT_EQ(FixedText(0.375, "%.2f"), "0.38");
    EXPECT_EQ(FixedText(2.5, "%.0f"), "2");
    EXPECT_EQ(FixedText(1.005, "%.2f"), "1.00");
    EXPECT_EQ(FixedText(-0.001, "%.2f"), "-0.00");
}

TEST(NumberText, AppendingKeepsWhatStandsThere)
{
    std::string text = "x=";
    AppendFixed(text, -1.0, "%.4f");
    AppendFixed(text, 10.0, "%.0f");
    EXPECT_EQ(text, "x=-1.000010");
}

TEST(NumberText, IntegersAreWrittenPlainly)
{
    EXPECT_EQ(IntegerText(0), "0");
    EXPECT_EQ(IntegerText(kLeast), "-2147483648");
    EXPECT_EQ(IntegerText(kGreatest), "2147483647");
}

TEST(NumberText, FormattedTextsMayHaveAnyLength)
{
    EXPECT_EQ(FormatText("%s", ""), "");
    EXPECT_EQ(FormatText("Min. = %.2f   Max. = %.2f", 0.5, 100.0), "Min. = 0.50   Max. = 100.00");
    const std::string longText(5000, 'x');
    EXPECT_EQ(FormatText("%s!", longText.c_str()), longText + "!");
}

TEST(NumberText, TruncationDropsTheFractionAndStaysInTheRange)
{
    EXPECT_EQ(Truncated(1.99), 1);
    EXPECT_EQ(Truncated(-1.99), -1);
    EXPECT_EQ(Truncated(1e30), kGreatest);
    EXPECT_EQ(Truncated(-kInfinity), kLeast);
    EXPECT_EQ(Truncated(std::nan("")), 0);
    EXPECT_EQ(Truncated(-2147483648.5), kLeast);
}

TEST(NumberText, TheShortestTextOfAFloatReadsBackToIt)
{
    EXPECT_EQ(ShortestText(0.1F), "0.1");
    EXPECT_EQ(ShortestText(-111111.0F), "-111111");
    EXPECT_EQ(ShortestText(3.4028235e38F), "3.4028235e+38");
    EXPECT_EQ(ShortestText(-0.0F), "-0");
}
