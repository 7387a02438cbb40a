// libFuzzer's entry for the target named by PENSJA_FUZZ_TARGET.
#include <cstdlib>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::Run run = fuzz::find(PENSJA_FUZZ_TARGET);
    if (!run) std::abort();
    run(data, size);
    return 0;
}
