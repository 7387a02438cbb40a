// Seniority: full years of service from the date of hire and the percent of the seniority
// allowance. One computation for the pay calculation, the pay screen and the pay-scale update.
#pragma once
#include <string>

namespace payinputs {

struct Staz {
    int stazLat = 0;      // full years of service
    int stazProcent = 0;  // percent of the allowance
};

// `dataZatrudnienia` dd/mm/rrrr (any separators), `dataListy` dd-mm-rrrr. Group "n" (compared
// as stored) earns the allowance from 3 years, others from 5; the percent stops at 20 and the
// years at 20 unless the payer is "SKR", whose percent is the years without limits; negative
// values and values above 50 give 0.
Staz obliczStaz(const std::string& dataZatrudnienia, const std::string& dataListy, const std::string& grupa,
                const std::string& skrotPlatnika);

}  // namespace payinputs
