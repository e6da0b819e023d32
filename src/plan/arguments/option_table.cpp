#include "plan/arguments/option_table.h"

#include "plan/arguments/option_values.h"

#include <algorithm>

namespace veldrin {

namespace {

constexpr Limits kGearLimits{1, kGears};
constexpr Limits kBestLimits{1, 1000};
constexpr Limits kWithinLimits{0, 1000};  // km/h

constexpr Actions kSearch = Bit(PlanAction::Search);
constexpr Actions kPlans = Bit(PlanAction::Show) | Bit(PlanAction::Compare);
constexpr Actions kPrinting = kSearch | kPlans;
constexpr Actions kFiles =
    kPrinting | Bit(PlanAction::Check) | Bit(PlanAction::FromCsv) | Bit(PlanAction::ToCsv);

constexpr ActionOption kActionOptions[] = {
    {"--show", PlanAction::Show, "PLAN [LIST]",
     "prints a plan as the window shows it. Without LIST the machine's list is looked for beside "
     "the plan, in LIST beside its folder, and in the program's own LIST folder"},
    {"--compare", PlanAction::Compare, "PLAN PLAN...",
     "prints plans of one machine side by side, with what changes from the first; a list among "
     "the files is their machine's"},
    {"--check", PlanAction::Check, "LIST",
     "reads a list strictly and names every fault with its line; what the program ignores, takes "
     "in its own way or will do badly with is a warning"},
    {"--from-csv", PlanAction::FromCsv, "PARTS LIST",
     "writes the machine list LIST of a table of parts, and where the table names parts of shafts "
     "the combination file beside it. Nothing is written when the table has a fault"},
    {"--to-csv", PlanAction::ToCsv, "LIST",
     "prints the table of parts of a list and of the combination file beside it"},
};

// clang-format off
constexpr Option kOptions[] = {
    {"--speed", "V1,...,V6", "Search", kSearch, false, ReadSpeeds,
     "speeds wanted in gears 1 to 6, whole km/h of 10 and more"},
    {"--manual", "G=-A+B", "Search", kSearch, true, ReadManual,
     "gear G stays within A km/h below and B above its speed, 1 to 21 each; may be given for "
     "several gears. The others then widen as the window's AUTO gears do beside a MANUAL one"},
    {"--main", "G", "Search", kSearch, false,
     [](const std::string& text, PlanArguments& result) {
       result.mainGear = WholeNumber("--main", text, kGearLimits);
     },
     "gear G stays within 1 km/h; not together with --manual"},
    {"--min-plan", "N", "Search", kSearch, false,
     [](const std::string& text, PlanArguments& result) {
       result.minPlan = static_cast<std::int16_t>(WholeNumber("--min-plan", text, kMinPlanLimits));
     },
     "plans wanted before the search stops, 1 to 30, default 1; not together with --manual. A gap "
     "that the search leaves in its list counts as one, and is not printed"},
    {"--why", nullptr, "Search", kSearch, false,
     [](const std::string&, PlanArguments& result) { result.why = true; },
     "when no plan is found: what stands in the way, the speeds that each gear reaches next to its "
     "request, and the nearest combination of all that can be fitted. Table or json"},
    {"--best", "N", "Best plans", kSearch, false,
     [](const std::string& text, PlanArguments& result) {
       result.best = WholeNumber("--best", text, kBestLimits);
     },
     "in place of the search: the N best of all combinations that can be fitted, 1 to 1000. --main "
     "and --manual hold gears as in a search"},
    {"--rank", "RANK", "Best plans", kSearch, false, ReadRank,
     "by what the best are chosen: miss (default), the largest miss of a gear; sum, of all misses; "
     "steps, how even the drops of revolutions are, as the sum of the squared differences of "
     "neighbouring ones; change, the fewest parts changed from the plan of --from, then miss"},
    {"--within", "K", "Best plans", kSearch, false,
     [](const std::string& text, PlanArguments& result) {
       result.within = Number("--within", text, kWithinLimits);
     },
     "only plans that miss no gear by more than K km/h, 0 to 1000; default 5 for steps and change"},
    {"--from", "PLAN", "Best plans", kSearch, false, ReadFrom,
     "the plan that is built in now: each plan is printed with the parts to be changed. Sprockets "
     "count one by one, gear pairs as pairs, those of 3rd and 4th gear by the combination file "
     "beside the list, where one part of the main shaft may serve both"},
    {"--tyre-from", "V@NE:G", "Tyre", Bit(PlanAction::Show), true, ReadTyreFrom,
     "a measured point, V km/h at NE rev/min in gear G: prints the rolling length that follows with "
     "the plan of --show, of several points the best, its spread and the points that do not fit. "
     "Or a CSV file of speed, revolutions, gear. With --format csv the points take the place of the plan"},
    {"--shift-ne", "N", "Running conditions", kPrinting, false,
     [](const std::string& text, PlanArguments& result) {
       result.shiftNe = static_cast<std::int16_t>(WholeNumber("--shift-ne", text, kRevolutionLimits));
     },
     "shift-up revolutions, 5000 to 24000, default the plan's, else the list's SHIFT_NE, else 13000"},
    {"--tyre", "L", "Running conditions", kPrinting, false,
     [](const std::string& text, PlanArguments& result) {
       result.tyreLength = static_cast<float>(Number("--tyre", text, kTyreLimits));
     },
     "rolling length of the tyre in metres, 1 to 3, default the plan's, else the list's TYRE_L, "
     "else 1.9"},
    {"--check-ne", "N", "Running conditions", kPrinting, false,
     [](const std::string& text, PlanArguments& result) {
       result.checkNe = static_cast<std::int16_t>(WholeNumber("--check-ne", text, kRevolutionLimits));
     },
     "revolutions of the check line, 5000 to 24000, default the list's CHECK_NE, else 10000"},
    {"--format", "FORMAT", "Output", kPrinting, false, ReadFormat,
     "table (default): a block for each plan\n"
     "csv: one line for each gear of each plan, with the columns plan, primary, final, gear, "
     "pair, request, speed, step, ne_after; the last two are empty in gear 1\n"
     "json: one object; what gear 1 does not have is null. docs/veldrin-plan.schema.json\n"
     "svg: the saw-tooth chart, several plans laid over each other\n"
     "html: one page with table, chart and parts, for A4"},
    {"--language", "en|ja", "Output", kPrinting, false, ReadLanguage,
     "the language of svg and html, default en"},
    {"--encoding", "NAME", "Output", kFiles, false, ReadEncoding,
     "how the files are written: utf-8, or cpN with the number of a code page, such as cp932 or "
     "cp1252. Default what the windows take: the system's code page; where that is UTF-8, UTF-8 "
     "and, for what is none, cp932 on a Japanese system and cp1252 elsewhere"},
};
// clang-format on

constexpr std::size_t kHelpColumn = 22;
constexpr std::size_t kHelpWidth = 86;  // of the text

/// One line of the help's text, broken at blanks where it does not fit.
std::string Wrapped(const std::string& line) {
  std::string text;
  std::size_t width = 0;
  std::size_t begin = 0;
  while (begin < line.size()) {
    const std::size_t end = std::min(line.find(' ', begin), line.size());
    const bool fits = width == 0 || width + 1 + end - begin <= kHelpWidth;
    if (width > 0) text += fits ? " " : '\n' + std::string(kHelpColumn, ' ');
    width = fits && width > 0 ? width + 1 + end - begin : end - begin;
    text += line.substr(begin, end - begin);
    begin = end + 1;
  }
  return text;
}

/// The lines of an entry: its name in front, the text in a column of its own.
std::string Entry(const std::string& name, const std::string& help) {
  std::string entry = "  " + name;
  if (entry.size() + 2 > kHelpColumn) entry += '\n' + std::string(kHelpColumn, ' ');
  entry.resize(std::max(entry.size(), kHelpColumn), ' ');
  std::size_t begin = 0;
  while (begin < help.size()) {
    const std::size_t end = std::min(help.find('\n', begin), help.size());
    if (begin > 0) entry += '\n' + std::string(kHelpColumn, ' ');
    entry += Wrapped(help.substr(begin, end - begin));
    begin = end + 1;
  }
  return entry + '\n';
}

}  // namespace

std::span<const ActionOption> ActionOptions() {
  return kActionOptions;
}

std::span<const Option> Options() {
  return kOptions;
}

std::string HelpText() {
  std::string text =
      "veldrin-plan searches mission plans for a machine list, as the program's FULL AUTO does, and\n"
      "shows, compares and draws plans.\n\n"
      "  veldrin-plan LIST --speed V1,V2,V3,V4,V5,V6 [OPTION]...\n";
  for (const ActionOption& action : kActionOptions) {
    text += std::string("  veldrin-plan ") + action.name + ' ' + action.files + " [OPTION]...\n";
  }
  text += "  veldrin-plan --help | --version\n\nWhat is done\n";
  for (const ActionOption& action : kActionOptions) text += Entry(action.name, action.help);
  std::string section;
  for (const Option& option : kOptions) {
    if (section != option.section) text += '\n' + std::string(option.section) + '\n';
    section = option.section;
    text +=
        Entry(option.name + (option.value == nullptr ? "" : ' ' + std::string(option.value)), option.help);
  }
  return text +
         "\n\"step\" is the speed above the gear below, \"ne_after\" the revolutions after changing up into "
         "the\n"
         "gear. Numbers are read and written with a point. A list is checked strictly before a search. An\n"
         "option's value may also stand behind \"=\", as in --main=6 and --check=LIST; behind \"--\" all is "
         "files.\n"
         "\nExit status: 0 plans were found, or the list has no fault; 1 no plan was found; 2 the command "
         "line\n"
         "or a file is wrong, or more than 30 plans meet the speeds.\n";
}

}  // namespace veldrin
