#include "support/module_generator_body.h"

#include <array>

namespace brimwork::module_generator {
namespace {

constexpr int kDeepest = 4;
constexpr int kSmallestBlock = 4;  // lines that a block needs to be worth opening

constexpr std::array<std::string_view, 14> kStatements = {
    "total = total +~price * quantity",
    "Call UpdateStock(partCode,~quantity,~warehouse)",
    "names(position) = Trim$(names(position))",
    "message = \"Part \" & partCode &~\" is not on the shelf\"",
    "Debug.Print position, total,~\"so far: \" & message",
    "If quantity < 0 Then quantity = 0",
    "If total > limit And Not allowed Then quantity = 0 Else total = 0",
    "Set entry = entries(position)",
    "MsgBox \"If you go on, the End is near\",~vbOKCancel,~\"Select Case\"",
    "position = InStr(1,~message,~\"'\")",
    "price = price * 1.2: total = total + price",
    "lookup(partCode) = \"\"\"quoted\"\" text\" ' as the customer wrote it",
    "RaiseEvent Progress(position,~count)",
    "quantity = quantity -~reserved(position)",
};

constexpr std::array<std::string_view, 5> kComments = {
    "' the old stock is counted first",
    "' don't touch: the invoice form needs the same order",
    "'--- totals",
    "Rem kept for the yearly report",
    "' If the price is missing, the list price is taken",
};

constexpr std::array<std::string_view, 13> kOddStatements = {
    "' End Sub is not the end here",
    "Rem End Function and Property Get are only words in this line",
    "Rem",
    "EndDate = Now: Friend_ = 1",
    "message = \"End Sub: Loop ' Next\"",
    "message = \"x: End Sub\" ' y: End Sub",
    "Retry:",
    "  Again: position = 1",
    "a = 1: b = 2: If a Then b = 3",
    "Größe = Größe + 1 ' naïve café, 20 °C for £5",
    "For i = 1 To 3: total = total + i: Next i",
    "Property_ = Sub1 + Function2",
    "message = \"not closed",
};

struct BlockText {
  std::string_view open, close;
};

constexpr std::array<BlockText, 6> kBlocks = {{
    {"For position = 1 To count", "Next position"},
    {"For Each entry In entries", "Next"},
    {"Do While position < limit", "Loop"},
    {"While pending > 0", "Wend"},
    {"With entries(position)", "End With"},
    {"If total > limit And~Not allowed Then", "End If"},
}};

class BodyWriter {
 public:
  explicit BodyWriter(Writer& writer) : writer_(writer) {}

  void Fill(int budget) {
    const int goal = writer_.Lines() + budget;
    while (writer_.Lines() < goal) WriteOne(goal - writer_.Lines());
  }

 private:
  void WriteOne(int budget) {
    const unsigned choice = writer_.Below(16);
    if (choice < 4 && budget >= kSmallestBlock && nesting_ < kDeepest) {
      WriteBlock(budget);
    } else if (choice == 4) {
      writer_.Blank();
    } else if (choice == 5) {
      writer_.Line(writer_.AnyOf(kComments));
    } else if (writer_.Options().oddities && choice < 8) {
      WriteOdd();
    } else {
      writer_.Statement(writer_.AnyOf(kStatements));
    }
  }

  void WriteBlock(int budget) {
    ++nesting_;
    const int inner = 1 + static_cast<int>(writer_.Below(static_cast<unsigned>(budget - 2)));
    switch (writer_.Below(4)) {
      case 0:
        WriteIfElse(inner);
        break;
      case 1:
        WriteSelect(inner);
        break;
      default:
        WriteSimpleBlock(inner);
    }
    --nesting_;
  }

  void WriteSimpleBlock(int inner) {
    const BlockText& block = kBlocks[writer_.Below(kBlocks.size())];
    writer_.Statement(block.open);
    FillDeeper(inner);
    writer_.Statement(block.close);
  }

  void WriteIfElse(int inner) {
    writer_.Statement("If quantity = 0 Or~reserved(position) > limit Then ' none left");
    FillDeeper(inner / 2 + 1);
    writer_.Statement(writer_.OneIn(2) ? "Else" : "ElseIf allowed Then");
    FillDeeper(inner / 2);
    writer_.Statement("End If");
  }

  void WriteSelect(int inner) {
    writer_.Statement("Select Case Left$(partCode, 1)");
    writer_.Deeper();
    writer_.Line("Case \"A\" To \"F\", \"'\"");
    FillDeeper(inner / 2 + 1);
    writer_.Line("Case Else");
    FillDeeper(inner / 2);
    writer_.Shallower();
    writer_.Line("End Select");
  }

  void FillDeeper(int budget) {
    writer_.Deeper();
    Fill(budget);
    writer_.Shallower();
  }

  void WriteOdd() {
    switch (writer_.Below(8)) {
      case 0:
        WriteConditional();
        break;
      case 1:
        WriteContinuedComment();
        break;
      default:
        writer_.Line(writer_.AnyOf(kOddStatements));
    }
  }

  void WriteConditional() {
    writer_.Line("#If DEBUGGING Then");
    writer_.Statement("Debug.Print \"stock\"; total");
    if (writer_.OneIn(2)) writer_.Line("#Else");
    writer_.Line("#End If");
  }

  void WriteContinuedComment() {
    writer_.Line(writer_.OneIn(2) ? "' this comment goes on _"
                                  : "total = 0 ' and so does this one _");
    writer_.Line("End Sub is what it says here");
  }

  Writer& writer_;
  int nesting_ = 0;
};

}  // namespace

void WriteBody(Writer& writer, int budget) {
  writer.Deeper();
  BodyWriter(writer).Fill(budget);
  writer.Shallower();
}

}  // namespace brimwork::module_generator
