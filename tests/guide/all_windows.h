// Every window of the program as it is designed.
#pragma once

#include "tests/view/told_desk.h"
#include "view/forms/form1.h"
#include "view/forms/form10.h"
#include "view/forms/form2.h"
#include "view/forms/form3.h"
#include "view/forms/form4.h"
#include "view/forms/form5.h"
#include "view/forms/form6.h"
#include "view/forms/form7.h"
#include "view/forms/form9.h"

#include <vector>

namespace veldrin {

struct AllWindows : ToldDesk {
  Form1 form1{desk};
  Form2 form2{desk};
  Form3 form3{desk};
  Form4 form4{desk};
  Form5 form5{desk};
  Form6 form6{desk};
  Form7 form7{desk};
  Form9 form9{desk};
  Form10 form10{desk};

  /// Those that the user works with.
  std::vector<Window*> Worked() { return {&form2, &form3, &form4, &form5, &form7, &form9, &form10}; }
};

}  // namespace veldrin
