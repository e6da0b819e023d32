#include "tests/monkey/oracle/oracle.h"

namespace veldrin::monkey {

Oracle MakeOracle() {
  Oracle oracle;
  for (const auto make :
       {EndsAreStated, SpeedsAreThoseOfTheParts, ColoursTellPairsAndSteps, PlanDialogShowsItsParts,
        CompareShowsItsFiles, ChartShowsTheMode, ControlsAnswer, QuestionsCanBeAnswered, WordsComeToRest,
        TitleTellsOfChanges, SavedPlansOpenAgain, HistoryBelongsToItsMachine}) {
    oracle.push_back(make());
  }
  return oracle;
}

}  // namespace veldrin::monkey
