// The commands of payers and pay lists.
#include <gtest/gtest.h>

#include "core/seqfile.h"
#include "support/run.h"
#include "support/tempdir.h"

using testing_support::run;
using testing_support::TempDir;

namespace {
struct Demo {
    TempDir dir;
    Demo() { testing_support::copyTree(PENSJA_DEMO, dir.path()); }
    testing_support::RunResult cli(const std::vector<std::string>& args) { return run(PENSJA_CLI, args, dir.path()); }
};
}  // namespace

TEST(CliPayers, PayersAndTheListsOfThePayer) {
    Demo d;
    auto p = d.cli({"payers"});
    ASSERT_EQ(p.status, 0) << p.err;
    EXPECT_EQ(p.out, "DEMO  Przedsiębiorstwo Usługowe Demo, Spółka z o.o.\n");

    auto l = d.cli({"lists"});
    ASSERT_EQ(l.status, 0) << l.err;
    EXPECT_EQ(l.out,
              "Administracja                     a         a   A\n"
              "Produkcja                         p         p   B\n");
}

TEST(CliPayers, ListsOfAnotherPayerAndErrors) {
    Demo d;
    std::filesystem::create_directory(d.dir / "INNY");
    core::commitFile(d.dir / "INNY" / "instal.dat",
                     "\"Zlecenia                         \",\"u       \",\"u\",\"C\",\"\",\"\",\"\",\"1\",\"\"\r\n");
    auto l = d.cli({"--payer", "INNY", "lists"});
    ASSERT_EQ(l.status, 0) << l.err;
    EXPECT_EQ(l.out, "Zlecenia                          u         u   C\n");

    auto none = d.cli({"--payer", "NIEMA", "lists"});
    EXPECT_EQ(none.status, 1);
    EXPECT_NE(none.err.find("Błąd nr 76"), std::string::npos) << none.err;
    EXPECT_EQ(d.cli({"payers", "x"}).status, 2);
}
