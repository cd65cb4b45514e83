#include "bench/Yardstick.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <iostream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
int DecimalsOf(std::string_view number)
{
    const std::size_t point = number.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(number.size() - point - 1);
}

[[noreturn]] void Stop(const std::string& path)
{
    std::cerr << "can't work with the file " << path << '\n';
    std::exit(EXIT_FAILURE);
}

int Open(const std::string& path, int flags)
{
    const int handle = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
    if (handle < 0)
    {
        Stop(path);
    }
    return handle;
}

void WriteTo(int handle, const std::string& path, std::string_view bytes)
{
    if (::write(handle, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
    {
        Stop(path);
    }
}
} // namespace

CYardstick::CYardstick(std::string_view text, std::string_view separators) : m_text(text)
{
    for (std::size_t begin = text.find_first_not_of(separators); begin != std::string_view::npos;)
    {
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        const std::string_view token = text.substr(begin, end - begin);
        double value = 0;
        const auto result = std::from_chars(token.data(), token.data() + token.size(), value);
        if (result.ec == std::errc() && result.ptr == token.data() + token.size())
        {
            m_numbers.push_back({begin, token.size(), value, DecimalsOf(token)});
        }
        begin = text.find_first_not_of(separators, end);
    }
}

double CYardstick::ReadNumbers(std::string_view bytes) const
{
    double sum = 0;
    for (const CNumber& number : m_numbers)
    {
        const char* begin = bytes.data() + number.Position;
        double value = 0;
        std::from_chars(begin, begin + number.Length, value);
        sum += value;
    }
    return sum;
}

std::size_t CYardstick::WriteNumbers()
{
    m_copy.assign(m_text);
    std::array<char, 400> buffer;
    std::size_t length = 0;
    for (const CNumber& number : m_numbers)
    {
        const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number.Value,
                                          std::chars_format::fixed, number.Decimals);
        length += static_cast<std::size_t>(result.ptr - buffer.data());
    }
    return length;
}

std::string ReadBytes(const std::string& path)
{
    const int handle = Open(path, O_RDONLY);
    struct stat status = {};
    std::string bytes(::fstat(handle, &status) == 0 ? static_cast<std::size_t>(status.st_size) : 0, '\0');
    if (bytes.empty() || ::read(handle, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
    {
        Stop(path);
    }
    ::close(handle);
    return bytes;
}

void WriteBytes(const std::string& path, std::string_view bytes)
{
    const int handle = Open(path, O_WRONLY | O_CREAT | O_TRUNC);
    WriteTo(handle, path, bytes);
    ::close(handle);
}

void WriteBytesToDisk(const std::string& path, std::string_view bytes)
{
    const std::string aside = path + "~";
    if (::rename(path.c_str(), aside.c_str()) != 0)
    {
        Stop(path);
    }
    const int handle = Open(path, O_WRONLY | O_CREAT | O_EXCL);
    WriteTo(handle, path, bytes);
    if (::fsync(handle) != 0)
    {
        Stop(path);
    }
    ::close(handle);
    ::unlink(aside.c_str());
}
