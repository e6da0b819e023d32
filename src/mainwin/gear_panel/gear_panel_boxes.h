// The running conditions in their scroll bars and boxes, and the remark.
//
//   Text4, HScroll1  shift revolutions      Text2, HScroll2  check revolutions
//   Text3            rolling length         Text6            remark
//
// A valid number in Text2 or Text4 moves its bar, whose Change does the rest. The bars refresh under
// "HSCROLL", so moving them never marks the plan changed. What holds them back:
//
//   HScroll1  "INIT" and "ORIGINAL": nothing; "QUICK" and without a plan: no refresh
//   HScroll2  "INIT": no refresh
//   Text6     "MODULE1": the remark does not count as changed
//   the rest  "MODULE1": a box that loses the focus to a reader is not validated
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds `HScroll1`, `HScroll2`, `Text2`, `Text3`, `Text4` and `Text6`.
void AttachGearPanelBoxes(Program& program);

}  // namespace veldrin
