// A copy of the demo data folder with a session opened on it, for the tests of this folder.
#pragma once
#include "core/session.h"
#include "reference/payers.h"
#include "support/tempdir.h"

namespace reference_tests {

struct Demo {
    testing_support::TempDir dir;
    core::Session s;
    Demo() {
        testing_support::copyTree(PENSJA_DEMO, dir.path());
        s.WorkDir = dir.path();
        s.takeInstalka(core::Instalka::read(dir.path()));
        reference::selectPayer(s);
    }
    std::filesystem::path payer() const { return dir.path() / "DEMO"; }
};

}  // namespace reference_tests
