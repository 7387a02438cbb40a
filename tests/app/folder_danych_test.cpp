// The first start of an installed program: a data folder made from the demonstration data, or
// an existing one chosen, or the working folder kept.
#include <gtest/gtest.h>

#include "core/error.h"
#include "app/folder_danych.h"
#include "support/scripted.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;
using core::Answer;
using testing_support::ScriptedDialogs;
using testing_support::TempDir;

TEST(FolderDanych, DemoFoundBesideTheProgramOnlyWhenItHoldsTheRecord) {
    TempDir d;
    testing_support::copyTree(PENSJA_DEMO, d / "usr/share/pensja/demo");
    EXPECT_EQ(app::folderDemo(d / "usr/bin"), (d / "usr/share/pensja/demo").lexically_normal());
    EXPECT_TRUE(app::folderDemo(d / "opt/bin").empty());
}

TEST(FolderDanych, NewFolderFromDemoRefusesAFolderWithFiles) {
    TempDir d;
    app::zalozZDemo(PENSJA_DEMO, d / "nowy");
    EXPECT_TRUE(app::jestFolderemDanych(d / "nowy"));
    EXPECT_EQ(testing_support::readBytes(d / "nowy/DEMO/Bazy/a.dta"),
              testing_support::readBytes(fs::path(PENSJA_DEMO) / "DEMO/Bazy/a.dta"));

    fs::create_directories(d / "zajety");
    testing_support::writeLines(d / "zajety/notatka.txt", {"moje"});
    try {
        app::zalozZDemo(PENSJA_DEMO, d / "zajety");
        FAIL() << "a folder with files was taken";
    } catch (const core::Error& e) {
        EXPECT_EQ(e.Number, core::err::PathFileAccess);
    }
    EXPECT_EQ(fs::directory_iterator(d / "zajety")->path().filename(), "notatka.txt");
    EXPECT_FALSE(app::jestFolderemDanych(d / "zajety"));
}

// Each row: the answers to the question, the texts typed, and the folder the start goes on in
// ("" for the working folder), with the number of boxes shown.
struct Choice {
    const char* name;
    std::vector<Answer> answers;
    std::vector<std::string> typed;  // relative to the test folder; "-" cancels
    std::string result;
    size_t boxes;
};

void PrintTo(const Choice& c, std::ostream* os) { *os << c.name; }

class FolderChoice : public testing::TestWithParam<Choice> {};

TEST_P(FolderChoice, StartsWhereTheOperatorSaid) {
    const Choice& c = GetParam();
    TempDir d;
    testing_support::copyTree(PENSJA_DEMO, d / "istniejacy");
    fs::create_directories(d / "inny");
    testing_support::writeLines(d / "inny/plik.txt", {"x"});
    ScriptedDialogs ui;
    for (Answer a : c.answers) ui.answer(a);
    for (const std::string& t : c.typed) ui.type(t == "-" ? std::nullopt : std::optional<std::string>((d / t).string()));
    auto wybrany = app::wybierzFolderDanych(ui, PENSJA_DEMO, d / "pensja-dane");
    EXPECT_EQ(wybrany ? wybrany->string() : "", c.result.empty() ? "" : (d / c.result).string());
    EXPECT_EQ(ui.boxes.size(), c.boxes) << testing::PrintToString(ui.lines());
    if (wybrany) EXPECT_TRUE(app::jestFolderemDanych(*wybrany));
}

INSTANTIATE_TEST_SUITE_P(
    Start, FolderChoice,
    testing::Values(Choice{"NewFromDemo", {Answer::Yes}, {"nowe"}, "nowe", 2},
                    Choice{"Existing", {Answer::No}, {"istniejacy"}, "istniejacy", 2},
                    Choice{"WorkingFolder", {Answer::Cancel}, {}, "", 1},
                    Choice{"NotADataFolderAskedAgain", {Answer::No, Answer::OK, Answer::Cancel}, {"inny"}, "", 4},
                    Choice{"FolderWithFilesRefusedThenNew", {Answer::Yes, Answer::OK, Answer::Yes}, {"inny", "nowe"}, "nowe", 5},
                    Choice{"TypingCancelledAsksAgain", {Answer::Yes, Answer::Cancel}, {"-"}, "", 3}),
    [](const auto& info) { return std::string(info.param.name); });
