#include "safety/fault_words.h"

#include "runtime/fault.h"
#include "workspace/failure_texts.h"

namespace veldrin {

namespace {

bool HasTooManyPlans(const Program& program) {
  return program.workspace.PlanCount >= kPlanLimit;
}

}  // namespace

BothLanguages FaultWords(const Program& program, int fault, bool inBox) {
  switch (fault) {
    case kFaultTypeMismatch:
      if (inBox) return {"A box held no number.", "数値ではない入力がありました。"};
      return {"A number was asked for where none stood.", "数値であるべきところが数値ではありません。"};
    case kFaultOverflow:
      return {"A number was too large.", "数値が大きすぎます。"};
    case kFaultDivisionByZero:
      return {"A speed or a number of revolutions was 0.", "速度または回転数が 0 になりました。"};
    case kFaultSubscript:
      if (HasTooManyPlans(program)) return {"There were more than 30 plans.", "プランが 30 を超えました。"};
      return {"A part was asked for that the machine does not have.", "この機種にない部品が指定されました。"};
    case kFaultOutOfMemory:
      return {"The memory was not enough.", "メモリーが足りません。"};
    case kFaultPastEnd:
      return {"A file ended too early.", "ファイルが途中で終わっています。"};
    case kFaultNoControlElement:
      return {"An entry was asked for that is no longer there.", "もうない項目が指定されました。"};
    default:
      break;
  }
  if (IsFileFault(fault) || fault == kFaultFileAlreadyOpen) return FailureCause(fault);
  return {"The program came upon something that it cannot do.", "実行できない処理がありました。"};
}

}  // namespace veldrin
