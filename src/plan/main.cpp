// veldrin-plan: the search for plans on the console.
#include "plan/planner.h"
#include "plan/system_country.h"
#include "platform/process_texts.h"
#include "platform/system_code_pages.h"

#include <iostream>
#include <string>
#include <vector>

int main(int count, char** words) {
  const veldrin::ConsoleInUtf8 utf8;
  const std::vector<std::string> arguments = veldrin::ArgumentTexts(count, words);
  const veldrin::CodePages pages = veldrin::SystemCodePages(veldrin::IsJapaneseSystem());
  const int status = veldrin::RunPlanner(arguments, pages, std::cout, std::cerr);
  std::cout.flush();
  if (std::cout) return status;
  std::cerr << "veldrin-plan: the output cannot be written\n";
  return 2;
}
