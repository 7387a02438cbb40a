// Commands of the reference data: the rates of the year, the amount in words.
#include <iostream>

#include "cli/cli.h"
#include "core/numbers.h"
#include "core/text.h"
#include "reference/rates.h"

namespace {

cli::Register rates("rates", {"rates", "stawki roku daty listy, po jednej nazwa=wartość w wierszu",
                              [](cli::Context& c) {
                                  if (!c.args.empty()) throw cli::Usage("rates nie przyjmuje argumentów");
                                  c.openSession();
                                  for (const auto& l : reference::ratesReport(c.session.stawki)) std::cout << l << "\n";
                                  return 0;
                              }, cli::Reads});

cli::Register words("words", {"words KWOTA", "kwota całkowita słownie",
                              [](cli::Context& c) {
                                  if (c.args.size() != 1) throw cli::Usage("words wymaga jednej kwoty");
                                  const std::string& a = c.args[0];
                                  if (a.empty() || a.size() > 9 || a.find_first_not_of("0123456789") != std::string::npos)
                                      throw cli::Usage("kwota musi być liczbą całkowitą od 0 do 999999999");
                                  std::cout << core::KwotaSlownie(a) << "\n";
                                  return 0;
                              }, cli::Reads});

}  // namespace
