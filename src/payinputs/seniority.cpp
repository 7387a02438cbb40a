#include "payinputs/seniority.h"

#include "core/text.h"

namespace payinputs {

Staz obliczStaz(const std::string& dataZatrudnienia, const std::string& dataListy, const std::string& grupa,
                const std::string& skrotPlatnika) {
    const std::string zatr = "staż, data zatrudnienia " + dataZatrudnienia;
    const std::string listy = "staż, data listy " + dataListy;
    const int hireDay = core::ValInt(core::Mid(dataZatrudnienia, 1, 2), zatr);
    const int hireMonth = core::ValInt(core::Mid(dataZatrudnienia, 4, 2), zatr);
    const int hireYear = core::ValInt(core::Mid(dataZatrudnienia, 7, 4), zatr);
    const int listMonth = core::ValInt(core::Mid(dataListy, 4, 2), listy);
    const int listYear = core::ValInt(core::Right(dataListy, 4), listy);

    Staz st;
    st.stazLat = listYear - hireYear;
    if (hireMonth == listMonth && hireDay > 1) st.stazLat -= 1;
    if (listMonth < hireMonth) st.stazLat -= 1;

    const int threshold = grupa == "n" ? 3 : 5;
    st.stazProcent = st.stazLat < threshold ? 0 : st.stazLat;
    if (skrotPlatnika != "SKR") {
        if (st.stazProcent >= 20) st.stazProcent = 20;
        if (st.stazLat > 20) st.stazLat = 20;
    } else {
        st.stazProcent = st.stazLat;
    }
    if (st.stazLat < 0 || st.stazLat > 50) st.stazLat = 0;
    if (st.stazProcent < 0 || st.stazProcent > 50) st.stazProcent = 0;
    return st;
}

}  // namespace payinputs
