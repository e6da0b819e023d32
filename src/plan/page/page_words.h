// The words of drawn charts and pages, in both languages.
#pragma once

#include <string>

namespace veldrin {

struct PageWords {
  const char* language;  // as HTML names it
  const char* gear;
  const char* pair;
  const char* request;
  const char* speed;
  const char* step;
  const char* neAfter;
  const char* stored;
  const char* difference;
  const char* deviation;
  const char* main;
  const char* counter;
  const char* primary;
  const char* final;
  const char* tyre;
  const char* shift;
  const char* check;
  const char* parts;
  const char* changes;
  const char* nothing;
  const char* tyreFit;
  const char* spread;
  const char* doesNotFit;
  const char* original;  // the stored speeds, in the chart's legend
  const char* measured;
};

const PageWords& EnglishWords();
const PageWords& JapaneseWords();

/// "1ST", "1速".
std::string GearTitle(const PageWords& words, int gear);

}  // namespace veldrin
