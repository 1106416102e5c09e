#include "store/ticket_store.h"

#include "screen/strings.h"

namespace veridraw::store {

namespace {

constexpr int kTicketFileNumber = 1;
constexpr int kNameFileNumber = 2;

void WriteTicketNumberFile(SequentialFiles& files, const std::string& name) {
  files.Open(kTicketNumberFile, FileMode::Output, kNameFileNumber);
  files.Print(kNameFileNumber, name);
  files.Close(kNameFileNumber);
}

}  // namespace

void SaveTicket(SequentialFiles& files, TicketFields& ticket, const std::string& prefix,
                const std::string& numberText, Integer LineCount, int cellsPerLine,
                const CellText& cellText, PowerBallColumn* powerBall) {
  ticket.TicketFileName = prefix + numberText;
  ticket.TicketNumberText = ticket.TicketFileName;
  ticket.TicketLineText.assign(1, ' ');  // a single blank
  const int cells = LineCount * cellsPerLine;
  for (int cell = 1; cell <= cells; ++cell)
    ticket.TicketLineText += Left(cellText(cell), 2);
  if (powerBall != nullptr) {
    for (int line = 1; line <= LineCount; ++line)
      powerBall->PowerBallText += Left(powerBall->cellText(line), 2);
  }
  WriteTicketNumberFile(files, ticket.TicketNumberText);
  files.Open(ticket.TicketFileName, FileMode::Output, kTicketFileNumber);
  files.Print(kTicketFileNumber, LineCount);
  files.Print(kTicketFileNumber, ticket.TicketNumberText);
  files.Print(kTicketFileNumber, ticket.TicketLineText);
  if (powerBall != nullptr) files.Print(kTicketFileNumber, powerBall->PowerBallText);
  files.Close(kTicketFileNumber);
}

void LoadTicket(SequentialFiles& files, TicketFields& ticket, const std::string& fileName,
                Integer& LineCount, std::string* PowerBallText) {
  ticket.TicketNumberText = fileName;
  ticket.TicketFileName = fileName;
  WriteTicketNumberFile(files, ticket.TicketNumberText);
  files.Open(ticket.TicketFileName, FileMode::Input, kTicketFileNumber);
  files.Input(kTicketFileNumber, LineCount);
  files.Input(kTicketFileNumber, ticket.TicketNumberText);
  files.Input(kTicketFileNumber, ticket.TicketLineText);
  if (PowerBallText != nullptr) files.Input(kTicketFileNumber, *PowerBallText);
  files.Close(kTicketFileNumber);
}

void DeleteTicket(SequentialFiles& files, const std::string& fileName) {
  files.Kill(fileName);
}

std::string TicketPair(const std::string& packed, int k) {
  return Mid(packed, 2 * k - 1, 2);
}

}  // namespace veridraw::store
