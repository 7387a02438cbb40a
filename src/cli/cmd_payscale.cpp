// Commands of the pay-scale table and the mass updates of the pay records of the session's set.
#include <iostream>

#include "cli/cli.h"
#include "core/numbers.h"
#include "payinputs/taryfikator.h"

namespace {

int bezArgumentow(cli::Context& c, const std::string& nazwa) {
    if (!c.args.empty()) throw cli::Usage(nazwa + " nie przyjmuje argumentów");
    c.openSession();
    return 0;
}

cli::Register tabela("pay-scale", {"pay-scale", "taryfikator płac (dane\\tabela.dat): txtPlaca(0)..txtPlaca(15) jako nazwa=wartość",
                                   [](cli::Context& c) {
                                       bezArgumentow(c, "pay-scale");
                                       auto placa = payinputs::Tabela::read(c.session);
                                       for (std::size_t i = 0; i < placa.size(); ++i)
                                           std::cout << "txtPlaca(" << i << ")=" << core::Format(placa[i], "0.00") << "\n";
                                       return 0;
                                   }});

cli::Register wymiana("pay-scale-apply",
                      {"pay-scale-apply",
                       "płaca zasadnicza z taryfikatora i dodatek stażowy w kartotekach płacowych list zestawu (pytanie: --yes)",
                       [](cli::Context& c) {
                           bezArgumentow(c, "pay-scale-apply");
                           payinputs::wymienZasadnicza(c.session, c.dialogs, payinputs::Tabela::read(c.session));
                           return c.dialogs.errorBoxes > 0 ? 1 : 0;
                       }});

cli::Register koszty("mass-costs",
                     {"mass-costs",
                      "koszty uzyskania, ulga podatkowa i stawka podatku ze stawek roku w kartotekach płacowych list zestawu",
                      [](cli::Context& c) {
                          bezArgumentow(c, "mass-costs");
                          payinputs::zmianaKosztow(c.session, c.dialogs);
                          return c.dialogs.errorBoxes > 0 ? 1 : 0;
                      }});

}  // namespace
