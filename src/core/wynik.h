// The month result block of the pay calculation: 32-bit floats, filled by the calculation of
// one employee and read by its caller straight afterwards. Fields that a path of the
// calculation does not assign keep the previous employee's values.
#pragma once

namespace core {

struct WynikMiesiaca {
    // The fields are added by the pay calculation.
    float wBrutto = 0;
};

}  // namespace core
