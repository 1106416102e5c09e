// The draw screen, the hub of the program: it shows the current draw and the
// draws on disk, takes the official numbers of Lotto (with Bonus and PowerBall)
// and, apart from them, of Strike, writes them to the draw files, and leads to
// the ticket screens.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "screen/application.h"
#include "screen/form.h"
#include "screen/integer.h"
#include "store/draw_store.h"

namespace veridraw {

FormDesign veridraw7fDesign();

class Veridraw7f : public Form, private store::DrawFields {
 public:
  explicit Veridraw7f(Application& application);

  static constexpr const char* kQuestion = "Are these numbers correct?";
  // The tops of LblCorrectNumbers in the Lotto and in the Strike entry.
  static constexpr int kLottoQuestionTop = 5520;
  static constexpr int kStrikeQuestionTop = 4800;
  static constexpr int kLottoCells = 8;
  static constexpr int kMainNumbers = 6;
  static constexpr int kBonusCell = 7;
  static constexpr int kPowerBallCell = 8;
  static constexpr int kStrikeCells = 4;

  // The draw in hand, as the form-level variables hold it.
  const store::DrawFields& drawInHand() const { return *this; }

 private:
  // A colour that one of the entries gives a cell of its own.
  struct CellColour {
    int cell;
    std::int32_t colour;
  };

  // What sets the Change handler of the Strike cells apart from that of the
  // Lotto cells; the steps of the two are otherwise the same.
  struct EntryRules {
    const ControlArray Veridraw7f::*cells;
    int scanBound;                            // the scan goes on while CellIndex is at most this
    int lastCell;                             // the cell whose completion ends the entry
    std::optional<int> exemptFromDuplicates;  // a cell, besides cell 1, not searched
    bool rangeWarningWhitens;                 // the range warning whitens the cell itself
    std::optional<CellColour> afterWarning;   // painted again after a whitening warning
    std::optional<CellColour> onAdvance;      // painted at each advance
    void (Veridraw7f::*completeEntry)();
  };

  // What sets the Strike enter button apart from the Lotto one.
  struct EntryStart {
    std::string store::DrawFields::*lineOfGame;  // in hand: the button starts afresh
    const char* markOfGame;
    std::string store::DrawFields::*lineOfOtherGame;  // in hand: paired, no question
    const char* markOfOtherGame;
    bool refusesDrawsBeforeStrike;
    const char* overwritePrompt;
    void (Veridraw7f::*showEntry)();
    const ControlArray Veridraw7f::*cells;
  };

  static const EntryRules kLottoRules;
  static const EntryRules kStrikeRules;
  static const EntryStart kLottoStart;
  static const EntryStart kStrikeStart;

  // Event procedures.
  void Form_Load() override;
  void BtnEnterLottoDrawNumbers_Click();
  void BtnEnterStrikeNumbers_Click();
  void BtnCheckTickets_Click();
  void BtnCancel_Click();
  void Btn1Lotto_Click();
  void Btn2Strike_Click();
  void BtnPowerBall_Click();
  void BtnRestart_Click();
  void CmdEnd_Click();
  void List1_Click();
  void TxtDrawnNumbers_Change();
  void TxtStrikeNumbers_Change();
  void BtnYes_Click();
  void BtnYes2_Click();
  void BtnNo_Click();
  void BtnNo2_Click();

  // Subs of the draw store.
  // Asks for the number of the draw to enter, into CurrentDrawText.
  void DrawNumber();
  // Empties the list of draws on disk, List1.
  void ListClear();
  // Fills List1 with the draws on disk, probing 1 to 1500.
  void FileExists2();
  // Probes the draws 1 to 1500 for DrawFileName: DrawFileMissing ends at 0
  // when it is found, otherwise at 1 when any number on the way was free.
  void FileExists3();
  // Fills LstLottoTicket with the saved Lotto tickets, probing 1 to 100.
  void FileExists4();

  // The steps that the two enter buttons share.
  void StartEntry(const EntryStart& game);
  void ClearDrawInHand();
  bool AskDrawNumber(const EntryStart& game);
  bool DrawMayBeOverwritten(const EntryStart& game);
  void BackToIdle();
  void ShowIdleButtons();
  void ShowLottoEntry();
  void ShowStrikeEntry();

  // The steps that the two Change handlers share.
  void ScanCells(const EntryRules& rules);
  void ScanCell(const EntryRules& rules);
  void StepBack(const ControlArray& cells);
  void RefuseNumber(const EntryRules& rules, const char* message, bool whiten);
  void SearchDuplicates(const EntryRules& rules);
  void Advance(const EntryRules& rules);
  void SortDrawnNumbers();
  void AskStrikeNumbersCorrect();
  void AskIfCorrect(const ControlRef& yes, const ControlRef& no);
  void PutLblCorrectNumbers(int top, const char* caption);

  // The steps that the Yes and No buttons share.
  void AppendPairs(std::string& line, const ControlArray& cells, int first, int last);
  void ClearCells(const ControlArray& cells, int last);
  void SaveDraw(void (Veridraw7f::*showLine)());
  void EnterAgain(int top, const ControlArray& cells);

  // The display of the draw in hand.
  void ShowDraw();
  void ShowLottoLine();
  void ShowStrikeLine();
  void SetVisible(const ControlArray& controls, int first, int last, bool visible);

  // Form-level variables beside those of the draw store. The counters are
  // shared by the nested runs of the Change handlers, which is what moves the
  // cursor: they must stay members.
  Integer CellIndex;
  Integer PairFirst;
  Integer PairSecond;
  // One variable under two names, and that is behaviour: the outer counter of
  // the sort at the end of a Lotto entry is the second counter of the test
  // for repeats. A test interrupted by its own refusal goes on from where a
  // nested run that completed the entry and sorted left the counter.
  Integer& SortOuter = PairSecond;
  Integer CopyIndex;
  Integer SortInner;
  Integer Reordered;
  std::string SortTemp;
  Integer ClearIndex;  // loops that assign the entry cells, whose Change runs nest
  Integer ShowIndex;   // loops over the display and over whole rows of controls
  Integer LastMessageResult;
  Integer DrawFileMissing;
  std::string ProbeName;

  const ControlRef BtnEnterLottoDrawNumbers{*this, "BtnEnterLottoDrawNumbers"};
  const ControlRef BtnEnterStrikeNumbers{*this, "BtnEnterStrikeNumbers"};
  const ControlRef BtnCheckTickets{*this, "BtnCheckTickets"};
  const ControlRef BtnPowerBall{*this, "BtnPowerBall"};
  const ControlRef Btn1Lotto{*this, "Btn1Lotto"};
  const ControlRef Btn2Strike{*this, "Btn2Strike"};
  const ControlRef BtnCancel{*this, "BtnCancel"};
  const ControlRef BtnYes{*this, "BtnYes"};
  const ControlRef BtnNo{*this, "BtnNo"};
  const ControlRef BtnYes2{*this, "BtnYes2"};
  const ControlRef BtnNo2{*this, "BtnNo2"};
  const ControlRef TxtDrawBox{*this, "TxtDrawBox"};
  const ControlRef LblDraw{*this, "LblDraw"};
  const ControlRef List1{*this, "List1"};
  const ControlRef LstLottoTicket{*this, "LstLottoTicket"};
  const ControlRef LblDrawnOrder{*this, "LblDrawnOrder"};
  const ControlRef LblDrawnOrder2{*this, "LblDrawnOrder2"};
  const ControlRef LblBonusNumber{*this, "LblBonusNumber"};
  const ControlRef LblPwrBall{*this, "LblPwrBall"};
  const ControlRef LblNumericOrder{*this, "LblNumericOrder"};
  const ControlRef LblCorrectNumbers{*this, "LblCorrectNumbers"};
  const ControlArray TxtDrawnNumbers{*this, "TxtDrawnNumbers"};
  const ControlArray TxtDrawnNumeric{*this, "TxtDrawnNumeric"};
  const ControlArray TxtStrikeNumbers{*this, "TxtStrikeNumbers"};
  const ControlArray TxtDrawnNumbers2{*this, "TxtDrawnNumbers2"};
  const ControlArray TxtStrikeNumbers2{*this, "TxtStrikeNumbers2"};
  const ControlArray LineA{*this, "LineA"};
};

}  // namespace veridraw
