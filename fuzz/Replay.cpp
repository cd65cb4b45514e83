// Runs a fuzz target over each file of the folders given, for builds without libFuzzer: the suite replays the
// corpus.
#include "core/platform/Files.h"
#include "fuzz/FuzzTarget.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

int main(int argc, char** argv)
{
    int files = 0;
    for (int k = 1; k < argc; ++k)
    {
        for (const auto& entry : std::filesystem::directory_iterator(argv[k]))
        {
            // Told first, so that a crash shows which file it was.
            std::cout << entry.path().filename().string() << std::endl;
            const std::string content = ReadFile(entry.path().string(), entry.file_size()).value();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++files;
        }
    }
    if (files == 0)
    {
        std::cerr << "no corpus\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
