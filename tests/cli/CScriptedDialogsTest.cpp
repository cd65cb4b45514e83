#include "cli/CScriptedDialogs.h"

#include <gtest/gtest.h>

TEST(CliDialogs, ChooseTheAnswersInOrderAndThenCancel)
{
    CScriptedDialogs dialogs;
    dialogs.Answer("/a");
    dialogs.Answer("/b");
    EXPECT_EQ(dialogs.AskOpen({}), "/a");
    EXPECT_EQ(dialogs.AskSave({}), "/b");
    EXPECT_EQ(dialogs.AskOpen({}), std::nullopt);
    EXPECT_EQ(dialogs.AskSave({}), std::nullopt);
}
