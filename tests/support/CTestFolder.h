// A folder of a test's own, gone when the test ends; and the files in it.
#pragma once

#include <string>

class CTestFolder
{
public:
    CTestFolder();
    ~CTestFolder();
    CTestFolder(const CTestFolder&) = delete;
    CTestFolder& operator=(const CTestFolder&) = delete;

    const std::string& Path() const { return m_path; }
    std::string File(const std::string& name) const { return m_path + "/" + name; }
    /// Writes a file into the folder and gives its path.
    std::string Write(const std::string& name, const std::string& content) const;

private:
    std::string m_path;
};

/// A file's bytes; fails the running test if there is no such file.
std::string FileContent(const std::string& path);
/// A file that stands in the source tree, by its path from the project's root.
std::string SourceFile(const std::string& path);
/// Compares bytes with a golden file of tests/golden and prints the first differing line. With the
/// environment variable ONDARA_RENEW_GOLDEN set, writes the golden file instead.
void ExpectGolden(const std::string& content, const std::string& name);
