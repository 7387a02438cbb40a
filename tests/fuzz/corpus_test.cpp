// Every input that once made a fuzz target fail (tests/fuzz/corpus/<target>/), run again through
// that target: each must now be read or refused with an error, never crash.
#include <gtest/gtest.h>

#include <filesystem>

#include "fuzz/targets.h"
#include "support/tempdir.h"

namespace fs = std::filesystem;

TEST(FuzzCorpus, EveryInputThatOnceFailedNowPasses) {
    int inputs = 0;
    for (const auto& dir : fs::directory_iterator(PENSJA_FUZZ_CORPUS)) {
        if (!dir.is_directory()) continue;
        fuzz::Run run = fuzz::find(dir.path().filename().string());
        ASSERT_NE(run, nullptr) << "no fuzz target " << dir.path().filename();
        for (const auto& f : fs::directory_iterator(dir.path())) {
            const std::string data = testing_support::readBytes(f.path());
            SCOPED_TRACE(f.path().string());
            run(reinterpret_cast<const std::uint8_t*>(data.data()), data.size());
            ++inputs;
        }
    }
    EXPECT_GT(inputs, 0);
}
