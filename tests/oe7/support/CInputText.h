// The input file of a reference ship, to be changed line by line.
#pragma once

#include "oe7/input/CInput.h"

#include <string>
#include <vector>

namespace oe7
{

class CInputText
{
public:
    /// A file of tests/oe7/reference, "barge" for barge.inp.
    explicit CInputText(const std::string& referenceCase = "barge");

    /// Lines count from 1, as they stand at the time of the call.
    CInputText& Set(int line, const std::string& text);
    CInputText& Insert(int line, const std::vector<std::string>& texts);
    CInputText& Erase(int first, int last);

    std::string Text(const std::string& lineEnd = "\n") const;
    /// As the engine reads it, with other files in the folder.
    CInput Read(const std::string& folder = "/nowhere") const;
    /// The text of the error that reading ends with; fails the running test if there is none.
    std::string Error(const std::string& folder = "/nowhere") const;
    std::vector<std::string> Warnings() const;

private:
    std::vector<std::string> m_lines;
};

} // namespace oe7
