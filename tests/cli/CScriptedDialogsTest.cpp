#include "cli/CScriptedDialogs.h"

#include <sstream>

#include <gtest/gtest.h>

TEST(CliDialogs, ChooseTheAnswersInOrderAndThenCancel)
{
    std::ostringstream stream;
    CStreamMessages messages(stream, false);
    CScriptedDialogs dialogs(messages);
    dialogs.Answer("/a");
    dialogs.Answer("/b");
    EXPECT_EQ(dialogs.AskOpen({}), "/a");
    EXPECT_EQ(dialogs.AskSave({}), "/b");
    EXPECT_EQ(dialogs.AskOpen({}), std::nullopt);
    EXPECT_EQ(stream.str(), "");
}

TEST(CliDialogs, WithoutANameToSaveUnderTheLossIsTold)
{
    std::ostringstream stream;
    CStreamMessages messages(stream, false);
    CScriptedDialogs dialogs(messages);
    EXPECT_EQ(dialogs.AskSave({"csv", "/ship_Hyd.csv", "", true}), std::nullopt);
    EXPECT_EQ(stream.str(),
              "ondara-cli: another name than /ship_Hyd.csv can't be asked for here; what was to be "
              "saved is dropped\n");
}
