// The text of --help.
#pragma once

namespace veldrin {

inline constexpr char kPlanHelp[] =
    R"(veldrin-plan searches mission plans for a machine list, as the program's FULL AUTO does.

  veldrin-plan LIST.RAT --speed V1,V2,V3,V4,V5,V6 [OPTION]...
  veldrin-plan --check LIST.RAT
  veldrin-plan --help | --version

  --speed V1,...,V6   speeds wanted in gears 1 to 6, whole km/h of 10 and more
  --manual G=-A+B     gear G stays within A km/h below and B above its speed, 1 to 21 each; may be given for
                      several gears. The others then widen as the window's AUTO gears do beside a MANUAL one
  --main G            gear G stays within 1 km/h; not together with --manual
  --min-plan N        plans wanted before the search stops, 1 to 30, default 1; not together with --manual.
                      A gap that the search leaves in its list counts as one, and is not printed
  --why               when no plan is found: what stands in the way, the speeds that each gear reaches next to
                      its request, and the nearest combination of all that can be fitted. Table or json
  --shift-ne N        shift-up revolutions, 5000 to 24000, default the list's SHIFT_NE, else 13000
  --tyre L            rolling length of the tyre in metres, 1 to 3, default the list's TYRE_L, else 1.9
  --format FORMAT     table (default): a block for each plan
                      csv: one line for each gear of each plan, with the columns plan, primary, final, gear,
                      pair, request, speed, step, ne_after; the last two are empty in gear 1
                      json: one object; what gear 1 does not have is null
  --encoding NAME     how the list is written: utf-8, or cpN with the number of a code page, such as cp932 or
                      cp1252. Default what the windows take: the system's code page; where that is UTF-8,
                      UTF-8 and, for what is none, cp932 on a Japanese system and cp1252 elsewhere
  --check LIST.RAT    reads a list strictly and names every fault with its line; what the program ignores,
                      takes in its own way or will do badly with is a warning

"step" is the speed above the gear below, "ne_after" the revolutions after changing up into the gear. Numbers
are read and written with a point. A list is checked strictly before a search. An option's value may also
stand behind "=", as in --main=6 and --check=LIST.RAT.

Exit status: 0 plans were found, or the list has no fault; 1 no plan was found; 2 the command line or the list
is wrong, or more than 30 plans meet the speeds.
)";

}  // namespace veldrin
