// The ticket store: one file per ticket, named by the game's prefix and the
// ticket number as typed, and the file "TicketNumber" that names the ticket
// last saved or clicked. A ticket file holds the number of lines (as Print
// writes an integer), its own name, a blank followed by the packed pairs of
// the cells, and on a PowerBall ticket a fourth record of PowerBall pairs.
#pragma once

#include <functional>
#include <string>

#include "screen/files.h"
#include "screen/integer.h"

namespace veridraw::store {

inline constexpr const char* kTicketNumberFile = "TicketNumber";
inline constexpr const char* kLottoPrefix = "Lotto # ";
inline constexpr const char* kStrikePrefix = "Strike # ";
inline constexpr const char* kPowerBallPrefix = "P-Ball # ";

// The form-level variables of a screen that carries a ticket. A form inherits
// them, so that its event procedures use them under these names.
struct TicketFields {
  std::string TicketNumberText;  // the number as typed, then the file's name
  std::string TicketFileName;    // the prefix and the number
  std::string TicketLineText;    // the packed pairs of line 3
};

// The text of a cell of the ticket, by its number from 1.
using CellText = std::function<std::string(int cell)>;

// The PowerBall screen's column: its one pair a line goes to the fourth record.
// The record is appended to and never emptied first, so it keeps the pairs of
// the last ticket saved or loaded in front of the new ones.
struct PowerBallColumn {
  std::string& PowerBallText;
  CellText cellText;
};

// Save: TicketFileName becomes the prefix and the number text, and so does
// TicketNumberText; TicketLineText becomes a blank and Left(text, 2) of each
// cell from 1 to LineCount x cellsPerLine. "TicketNumber" is written, then the
// ticket file, each whole. A file of that name is overwritten with no question.
void SaveTicket(SequentialFiles& files, TicketFields& ticket, const std::string& prefix,
                const std::string& numberText, Integer LineCount, int cellsPerLine,
                const CellText& cellText, PowerBallColumn* powerBall = nullptr);

// Load: the file name comes from a list's text. "TicketNumber" is rewritten
// with it, then the file gives LineCount, TicketNumberText, TicketLineText and,
// on the PowerBall screen, PowerBallText. Input drops the blank at the head of
// line 3, so pair k of TicketLineText starts at position 2k - 1.
void LoadTicket(SequentialFiles& files, TicketFields& ticket, const std::string& fileName,
                Integer& LineCount, std::string* PowerBallText = nullptr);

// Delete: Kill on the file. "TicketNumber" is left alone.
void DeleteTicket(SequentialFiles& files, const std::string& fileName);

// Pair k, from 1, of a packed record as Load leaves it: Mid(packed, 2k - 1, 2).
std::string TicketPair(const std::string& packed, int k);

}  // namespace veridraw::store
