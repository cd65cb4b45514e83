// Runs the tests of one program of forms, without a screen, under the locale of its environment.
#include <clocale>
#include <cstdlib>
#include <cstring>

#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv); // takes the locale of the environment
    if (std::getenv("ONDARA_COMMA_LOCALE") != nullptr &&
        std::strcmp(std::localeconv()->decimal_point, ",") != 0)
    {
        std::fprintf(stderr, "ONDARA_COMMA_LOCALE is set, but numbers have a point\n");
        return EXIT_FAILURE;
    }
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
