// A saved ticket picked from the list of a ticket screen: the file is read,
// each of its pairs is put into a cell, whose Change walks the whole ticket,
// and the ticket is checked. The floor is the same file read plainly: its
// lines split and every pair converted.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "measure.h"
#include "program_driver.h"

namespace veridraw::bench {
namespace {

constexpr int kPickIterations = 30;
constexpr const char* kTicketName = "Lotto # 1";

// The ticket file as the Lotto screen writes it: the count of lines, the name,
// and a blank before the packed pairs.
std::string ticketFile(const std::vector<std::string>& lines) {
  std::string pairs;
  for (const std::string& line : lines)
    pairs += line;
  return " " + std::to_string(lines.size()) + " \r\n" + kTicketName + "\r\n " + pairs + "\r\n";
}

// The file read and taken apart plainly: its three lines, and each pair of the
// third as a number.
int plainRead(const TemporaryFolder& folder) {
  std::ifstream file(folder.path() / kTicketName, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  std::vector<std::string> lines(1);
  for (const char c : bytes) {
    if (c == '\n')
      lines.emplace_back();
    else if (c != '\r')
      lines.back() += c;
  }
  int sum = 0;
  const std::string& pairs = lines.at(2);
  for (std::size_t pair = 1; pair + 1 < pairs.size(); pair += 2)
    sum += (pairs[pair] - '0') * 10 + (pairs[pair + 1] - '0');
  return sum + std::stoi(lines.at(0));
}

void LottoPickSavedTicketOf14Lines(benchmark::State& state) {
  TemporaryFolder folder;
  folder.write(kTicketName, ticketFile(ticketLines(14)));
  PairedTimes times;
  for (auto _ : state) {
    Program program(folder);
    program.start("Veridraw7b");
    program.click("BtnCheckSavedTickets");
    Control& list = program.application().activeForm()->control("LstLottoTicket");
    times.floor([&] { benchmark::DoNotOptimize(plainRead(folder)); }, 16);
    times.subject(state, [&] { program.application().selectItem(list, 0); });
  }
  times.report(state);
}
BENCHMARK(LottoPickSavedTicketOf14Lines)->UseManualTime()->Iterations(kPickIterations);

}  // namespace
}  // namespace veridraw::bench
