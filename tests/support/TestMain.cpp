// Runs the tests of one program under the locale of its environment, as the desktop program runs under the
// user's.
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <gmock/gmock.h>

namespace
{
/// Whether numbers are written with a comma, if the environment wants that.
bool IsCommaInEffect()
{
    if (std::getenv("ONDARA_COMMA_LOCALE") == nullptr ||
        std::strcmp(std::localeconv()->decimal_point, ",") == 0)
    {
        return true;
    }
    std::fprintf(stderr, "ONDARA_COMMA_LOCALE is set, but the decimal point is \"%s\"\n",
                 std::localeconv()->decimal_point);
    return false;
}
} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    if (!IsCommaInEffect())
    {
        return EXIT_FAILURE;
    }
    testing::InitGoogleMock(&argc, argv);
    const int result = RUN_ALL_TESTS();
    // A test that changes the locale must put it back, or those behind it run under another.
    return IsCommaInEffect() ? result : EXIT_FAILURE;
}
