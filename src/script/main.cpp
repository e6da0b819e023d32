// veldrin-script FILE...: runs scripts against the program on a simulated machine, without a window. "-" is
// standard input. The exit status is 0 when every expectation held, 1 when one failed, 2 when a script is
// wrong itself.
#include "script/script_runner.h"

int main(int count, char** arguments) {
  veldrin::ScriptHand hand;
  const std::vector<std::string> files(arguments + 1, arguments + count);
  return static_cast<int>(veldrin::RunScriptFiles(files, hand, "veldrin-script"));
}
