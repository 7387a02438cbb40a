// The desktop around the program: finding and starting other programs (the calculator, a text
// editor) and setting the system clock. The main window holds one of these; tests put in
// their own.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "core/numbers.h"

namespace app {

struct Pulpit {
    // The first of the programs found on the search path, "" when none is installed.
    std::function<std::string(const std::vector<std::string>& programs)> find;
    // Starts a program apart from this one (it outlives the program); false when it could not.
    std::function<bool(const std::vector<std::string>& argv)> start;
    // Sets the system clock to the local date and time; 0, or the error number of the system
    // (EPERM when the program is not allowed to).
    std::function<int(const core::Date& d, int hour, int minute, int second)> setClock;

    // The real desktop.
    static Pulpit system();
};

// The programs looked for, in this order.
extern const std::vector<std::string> kKalkulatory;
extern const std::vector<std::string> kEdytory;

}  // namespace app
