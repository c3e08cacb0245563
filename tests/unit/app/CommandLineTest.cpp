#include "app/command_line/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorbel {

namespace {

using Action = CommandLine::Action;

CommandLine parse(std::vector<std::string> arguments) {
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    return CommandLine::parse(pointers);
}

} // namespace

TEST(CommandLineTest, PlaysWithoutOptions) {
    EXPECT_EQ(parse({}).action, Action::play);
}

TEST(CommandLineTest, KnowsItsOptions) {
    EXPECT_EQ(parse({"--help"}).action, Action::showHelp);
    EXPECT_EQ(parse({"--version"}).action, Action::showVersion);
    EXPECT_EQ(parse({"--demo"}).action, Action::demonstrate);
    EXPECT_EQ(parse({"--demo", "--screenshots", "pictures"}).screenshotsFolder, "pictures");
    EXPECT_EQ(parse({"--diagnose"}).action, Action::diagnose);
    EXPECT_EQ(parse({"--verbose", "--demo"}).action, Action::demonstrate);
    EXPECT_TRUE(parse({"--verbose"}).verbose);
    EXPECT_FALSE(parse({}).verbose);
    EXPECT_EQ(parse({"--screenshot", "arena.png"}).action, Action::takeScreenshot);
    EXPECT_EQ(parse({"--screenshot", "arena.png"}).screenshot, "arena.png");
    EXPECT_EQ(parse({"--replay", "match.jsonl"}).action, Action::replay);
    EXPECT_EQ(parse({"--replay", "match.jsonl"}).replay, "match.jsonl");
    EXPECT_EQ(parse({"--replay"}).action, Action::complain);
    EXPECT_TRUE(parse({"--no-recording"}).noRecording);
    EXPECT_FALSE(parse({}).noRecording);
}

TEST(CommandLineTest, OptionsOfTheGameAreResetOrTurnedOnBeforeItIsPlayed) {
    EXPECT_FALSE(parse({}).resetOptions);
    EXPECT_FALSE(parse({}).oneSwitch);
    const CommandLine reset = parse({"--reset-options"});
    EXPECT_TRUE(reset.resetOptions);
    EXPECT_FALSE(reset.oneSwitch);
    EXPECT_EQ(reset.action, Action::play);
    EXPECT_TRUE(parse({"--one-switch"}).oneSwitch);
    EXPECT_EQ(parse({"--one-switch"}).action, Action::play);
}

TEST(CommandLineTest, ComplainsInOneLineAboutWhatItDoesNotUnderstand) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{{"--bogus"},
                                                                       {"extra"},
                                                                       {"--demo", "-x"},
                                                                       {"--screenshot"},
                                                                       {"--demo", "--screenshots"},
                                                                       {"--screenshots", "folder"},
                                                                       {""}}) {
        const CommandLine commandLine = parse(arguments);
        EXPECT_EQ(commandLine.action, Action::complain) << arguments[0];
        EXPECT_FALSE(commandLine.complaint.empty());
        EXPECT_EQ(commandLine.complaint.find('\n'), std::string::npos);
    }
}

TEST(CommandLineTest, HelpNamesEveryOption) {
    const std::string help = CommandLine::helpText();
    for (const char* option :
         {"--help", "--version", "--demo", "--screenshots", "--screenshot FILE", "--diagnose", "--verbose",
          "--reset-options", "--one-switch", "VORBEL_SPEED"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
}

} // namespace vorbel
