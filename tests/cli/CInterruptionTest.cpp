#include "cli/CInterruption.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kEndingSignals[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

void DoNothing(int) {}

/// What the program does at a signal, for as long as it lives.
class CSignalAction
{
public:
    CSignalAction(int signal, void (*action)(int)) : m_signal(signal), m_before(std::signal(signal, action))
    {
    }
    ~CSignalAction() { std::signal(m_signal, m_before); }
    CSignalAction(const CSignalAction&) = delete;
    CSignalAction& operator=(const CSignalAction&) = delete;

private:
    int m_signal;
    void (*m_before)(int);
};

/// The action of now.
void (*ActionAt(int signal))(int)
{
    struct sigaction action = {};
    ::sigaction(signal, nullptr, &action);
    return action.sa_handler;
}
} // namespace

TEST(CliInterruption, NotesEachSignalThatEndsAProgram)
{
    for (const int signal : kEndingSignals)
    {
        const CSignalAction action(signal, DoNothing);
        const CInterruption interruption;
        EXPECT_EQ(interruption.Signal(), 0);
        std::raise(signal);
        EXPECT_EQ(interruption.Signal(), signal);
    }
}

TEST(CliInterruption, ASignalOfBeforeIsForgotten)
{
    const CSignalAction action(SIGINT, DoNothing);
    {
        const CInterruption interruption;
        std::raise(SIGINT);
        EXPECT_EQ(interruption.Signal(), SIGINT);
    }
    EXPECT_EQ(CInterruption().Signal(), 0);
}

TEST(CliInterruption, AnIgnoredSignalStaysIgnored)
{
    for (const int signal : kEndingSignals)
    {
        const CSignalAction action(signal, SIG_IGN);
        const CInterruption interruption;
        std::raise(signal);
        EXPECT_EQ(interruption.Signal(), 0);
        EXPECT_EQ(ActionAt(signal), SIG_IGN);
    }
}

TEST(CliInterruption, WhatWasDoneBeforeIsDoneAgainBehindIt)
{
    for (const int signal : kEndingSignals)
    {
        const CSignalAction action(signal, DoNothing);
        {
            const CInterruption interruption;
            EXPECT_NE(ActionAt(signal), DoNothing);
        }
        EXPECT_EQ(ActionAt(signal), DoNothing);
    }
}
