#include "core/platform/CChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
/// A pipe of which each end is closed when a program is executed.
class CPipe
{
public:
    CPipe() : m_open(::pipe2(m_ends.data(), O_CLOEXEC) == 0) {}
    ~CPipe()
    {
        CloseWriteEnd();
        Close(m_ends[0]);
    }
    CPipe(const CPipe&) = delete;
    CPipe& operator=(const CPipe&) = delete;

    bool IsOpen() const { return m_open; }
    int ReadEnd() const { return m_ends[0]; }
    int WriteEnd() const { return m_ends[1]; }
    void CloseWriteEnd() { Close(m_ends[1]); }

private:
    static void Close(int& end)
    {
        if (end >= 0)
        {
            ::close(end);
        }
        end = -1;
    }

    std::array<int, 2> m_ends = {-1, -1};
    bool m_open;
};

EStart StartOfError(int error)
{
    switch (error)
    {
    case 0:
        return EStart::Started;
    case ENOENT:
    case ENOTDIR:
        return EStart::NotFound;
    case ENOMEM:
    case EAGAIN:
        return EStart::OutOfMemory;
    default:
        return EStart::Refused;
    }
}

pid_t Wait(pid_t process, int* status, int options)
{
    pid_t waited = -1;
    do
    {
        waited = ::waitpid(process, status, options);
    } while (waited < 0 && errno == EINTR);
    return waited;
}

// What follows until the program is executed runs in the child: there only calls that are safe in the copy of
// a program with several threads.

void RestoreSignals()
{
    struct sigaction byDefault = {};
    byDefault.sa_handler = SIG_DFL;
    for (int number = 1; number < NSIG; ++number)
    {
        ::sigaction(number, &byDefault, nullptr);
    }
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

constexpr int kReport = 3; ///< the first behind the standard streams

/// Standard streams into nothing; the report of a failed execution becomes kReport, nothing else stays open.
void RedirectStreams(int report)
{
    const int high = ::fcntl(report, F_DUPFD_CLOEXEC, kReport);
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    for (int stream = 0; stream < kReport && nothing >= 0; ++stream)
    {
        if (nothing != stream)
        {
            ::dup2(nothing, stream);
        }
        else
        {
            ::fcntl(nothing, F_SETFD, 0); // this program has no such stream itself
        }
    }
    if (high != kReport)
    {
        ::dup3(high, kReport, O_CLOEXEC);
    }
    ::close_range(kReport + 1, ~0U, 0);
}

[[noreturn]] void Execute(const char* path, char* const* words, int report, bool ownSession)
{
    if (ownSession)
    {
        ::setsid();
    }
    else
    {
        ::setpgid(0, 0);
    }
    RestoreSignals();
    RedirectStreams(report);
    ::execv(path, words);
    const int error = errno;
    static_cast<void>(::write(kReport, &error, sizeof error) == sizeof error);
    ::_exit(127);
}

/// The words of a command line as execv takes them.
class CWords
{
public:
    CWords(const std::string& path, const std::vector<std::string>& arguments) : m_texts(arguments)
    {
        m_texts.insert(m_texts.begin(), path);
        for (std::string& text : m_texts)
        {
            m_words.push_back(text.data());
        }
        m_words.push_back(nullptr);
    }

    const char* Path() const { return m_words.front(); }
    char* const* Words() const { return m_words.data(); }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_words;
};

/// What the child told of its failed execution; 0 if it told nothing, since then the program runs.
int ErrorToldBy(CPipe& report)
{
    report.CloseWriteEnd();
    int error = 0;
    ssize_t got = -1;
    do
    {
        got = ::read(report.ReadEnd(), &error, sizeof error);
    } while (got < 0 && errno == EINTR);
    return got == sizeof error ? error : 0;
}
} // namespace

EStart CChildProcess::Start(const std::string& path, const std::vector<std::string>& arguments)
{
    if (IsRunning())
    {
        return EStart::Refused;
    }
    const CWords words(path, arguments);
    CPipe report;
    const pid_t child = report.IsOpen() ? ::fork() : -1;
    if (child < 0)
    {
        return EStart::OutOfMemory;
    }
    if (child == 0)
    {
        Execute(words.Path(), words.Words(), report.WriteEnd(), false);
    }
    ::setpgid(child, child); // whichever of both comes first
    const int error = ErrorToldBy(report);
    if (error != 0)
    {
        Wait(child, nullptr, 0);
        return StartOfError(error);
    }
    m_process = child;
    return EStart::Started;
}

bool CChildProcess::IsRunning()
{
    if (m_process != 0 && Wait(m_process, nullptr, WNOHANG) != 0)
    {
        m_process = 0;
    }
    return m_process != 0;
}

void CChildProcess::End()
{
    constexpr int attempts = 200;
    constexpr int pause = 10; // milliseconds
    if (m_process == 0)
    {
        return;
    }
    ::kill(-m_process, SIGTERM);
    ::kill(-m_process, SIGCONT); // a stopped program wouldn't hear of it
    // The program is looked at without being taken away: as long as it is there, its group can be no other's.
    siginfo_t info = {};
    const auto process = static_cast<id_t>(m_process);
    for (int k = 0; k < attempts && info.si_pid == 0; ++k)
    {
        ::poll(nullptr, 0, k == 0 ? 0 : pause);
        if (::waitid(P_PID, process, &info, WEXITED | WNOHANG | WNOWAIT) != 0 && errno != EINTR)
        {
            break;
        }
    }
    ::kill(-m_process, SIGKILL);
    Wait(m_process, nullptr, 0);
    m_process = 0;
}

EStart CChildProcess::StartDetached(const std::string& path, const std::vector<std::string>& arguments)
{
    const CWords words(path, arguments);
    CPipe report;
    const pid_t child = report.IsOpen() ? ::fork() : -1;
    if (child < 0)
    {
        return EStart::OutOfMemory;
    }
    if (child == 0)
    {
        // The program is the child of a child that is gone at once: the system takes it away when it ends.
        const pid_t program = ::fork();
        if (program == 0)
        {
            Execute(words.Path(), words.Words(), report.WriteEnd(), true);
        }
        ::_exit(program < 0 ? EXIT_FAILURE : EXIT_SUCCESS);
    }
    int status = 0;
    Wait(child, &status, 0);
    const int error = ErrorToldBy(report);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS ? StartOfError(error)
                                                                    : EStart::OutOfMemory;
}
