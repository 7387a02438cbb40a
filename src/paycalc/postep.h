// What a long command of the list screen shows while it runs: the progress bar over the people
// of the list and the status label. The screen moves its controls and repaints; the command line
// and the tests may leave either empty.
#pragma once
#include <functional>
#include <string>

namespace paycalc {

struct Postep {
    // The bar from `min` to `max`, now at `value`.
    std::function<void(int min, int max, int value)> krok;
    // The status label of the screen.
    std::function<void(const std::string&)> status;

    void operator()(int min, int max, int value) const {
        if (krok) krok(min, max, value);
    }
    void pokaz(const std::string& text) const {
        if (status) status(text);
    }
};

}  // namespace paycalc
