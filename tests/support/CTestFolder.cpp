#include "tests/support/CTestFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

CTestFolder::CTestFolder() : m_path(fs::temp_directory_path() / "ondara-test-XXXXXX")
{
    if (::mkdtemp(m_path.data()) == nullptr)
    {
        throw std::runtime_error("no folder for the test: " + m_path);
    }
    m_path = fs::canonical(m_path).string();
}

CTestFolder::~CTestFolder()
{
    std::error_code error;
    fs::current_path("/", error);
    fs::remove_all(m_path, error);
}

std::string CTestFolder::Write(const std::string& name, const std::string& content) const
{
    const std::string path = File(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string FileContent(const std::string& path)
{
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << "no file " << path;
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

std::string SourceFile(const std::string& path)
{
    return std::string(ONDARA_SOURCE_DIR) + "/" + path;
}

namespace
{
std::string FirstDifference(const std::string& expected, const std::string& actual)
{
    std::istringstream left(expected);
    std::istringstream right(actual);
    std::string a;
    std::string b;
    for (int line = 1;; ++line)
    {
        const bool more = static_cast<bool>(std::getline(left, a));
        const bool moreToo = static_cast<bool>(std::getline(right, b));
        if (!more && !moreToo)
        {
            return "only in line ends";
        }
        if (more != moreToo || a != b)
        {
            return "line " + std::to_string(line) + "\n  golden: " + (more ? a : "(end)") +
                   "\n  actual: " + (moreToo ? b : "(end)");
        }
    }
}
} // namespace

void ExpectGolden(const std::string& content, const std::string& name)
{
    const std::string path = SourceFile("tests/golden/" + name);
    if (std::getenv("ONDARA_RENEW_GOLDEN") != nullptr)
    {
        fs::create_directories(fs::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return;
    }
    const std::string golden = FileContent(path);
    EXPECT_EQ(golden.size(), content.size());
    EXPECT_TRUE(golden == content) << name << " differs at " << FirstDifference(golden, content);
}
