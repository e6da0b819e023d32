#include "plan/page/page_output.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"
#include "runtime/text.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace veldrin {

namespace {

constexpr char kStyle[] = R"(@page { size: A4; margin: 14mm }
body { font-family: "Noto Sans", "Noto Sans CJK JP", "Yu Gothic", sans-serif; font-size: 10pt; margin: 0 auto; max-width: 182mm }
h1 { font-size: 16pt; margin: 0 0 2mm } h2 { font-size: 12pt; margin: 4mm 0 1mm } h3 { font-size: 10pt; margin: 2mm 0 1mm } p { margin: 1mm 0 }
svg { display: block; height: 110mm; width: auto; margin: 3mm 0; -webkit-print-color-adjust: exact; print-color-adjust: exact }
table { break-inside: avoid } h2, h3 { break-after: avoid }
table { border-collapse: collapse; margin: 2mm 0 } th, td { border: 0.2mm solid #888; padding: 0.6mm 2mm; text-align: right }
th { background: #eee; font-weight: normal } td.text, th.text { text-align: left }
pre { font-family: inherit; white-space: pre-wrap; margin: 1mm 0 } .note { color: #c00 }
)";

std::string Fixed(double value, const char* format = "0.0") {
  return FormatNumber(value, format);
}

/// A column of a table: its head, and the text of each gear.
struct Column {
  std::string head;
  bool isText;
  std::function<std::string(const SheetGear& gear, int number)> cell;
};

class HtmlWriter {
 public:
  HtmlWriter(std::ostream& out, const PageWords& words) : out_(out), words_(words) {}

  void Section(const PlanSheet& sheet) {
    out_ << "<section>\n<h2>" << MarkupText(sheet.title) << "</h2>\n<p>" << words_.primary << ' '
         << MarkupText(sheet.primary) << " &#160; " << words_.final << ' ' << MarkupText(sheet.final)
         << " &#160; " << words_.tyre << ' ' << ShortestText(sheet.tyreLength) << " m &#160; " << words_.shift
         << ' ' << sheet.shiftNe << " rpm &#160; " << words_.check << ' ' << ShortestText(sheet.checkNe)
         << " rpm</p>\n";
    Table(sheet, Figures(sheet));
    Notes(sheet);
    if (sheet.changes) Changes(*sheet.changes);
    out_ << "<h3>" << words_.parts << "</h3>\n";
    Table(sheet, Parts(sheet), Ratios(sheet));
    if (!Trim(sheet.remark).empty()) out_ << "<pre>" << MarkupText(sheet.remark) << "</pre>\n";
    out_ << "</section>\n";
  }

  void Tyre(const TyreFit& tyre) {
    out_ << "<section>\n<h2>" << words_.tyreFit << "</h2>\n<p>" << Fixed(tyre.length, "0.0000") << " m";
    if (tyre.points.size() > 1) out_ << ", " << words_.spread << ' ' << Fixed(tyre.spread, "0.0000");
    out_ << "</p>\n<table>\n<tr><th>" << words_.gear << "</th><th>" << words_.speed
         << "</th><th>rpm</th><th>m</th><th>" << words_.difference << "</th></tr>\n";
    for (const FittedPoint& point : tyre.points) {
      out_ << "<tr><td>" << GearTitle(words_, point.point.gear) << "</td><td>" << Fixed(point.point.speed)
           << "</td><td>" << Fixed(point.point.ne, "0") << "</td><td>" << Fixed(point.length, "0.0000")
           << "</td><td>" << Fixed(point.off, "+#0.0;-#0.0;\\+-0")
           << (point.fits ? "" : std::string(" ") + words_.doesNotFit) << "</td></tr>\n";
    }
    out_ << "</table>\n</section>\n";
  }

 private:
  std::vector<Column> Figures(const PlanSheet& sheet) const {
    const auto above = [](int number, const std::string& text) { return number > 1 ? text : std::string(); };
    std::vector<Column> columns = {
        {words_.gear, true, [&](const SheetGear&, int number) { return GearTitle(words_, number); }},
        {words_.pair, true, [](const SheetGear& gear, int) { return gear.pair; }}};
    if (sheet.hasRequests) {
      columns.push_back(
          {words_.request, false, [](const SheetGear& gear, int) { return ShortestText(gear.request); }});
    }
    columns.push_back({words_.speed, false, [](const SheetGear& gear, int) { return Fixed(gear.speed); }});
    columns.push_back({words_.step, false,
                       [=](const SheetGear& gear, int number) { return above(number, Fixed(gear.step)); }});
    columns.push_back({words_.neAfter, false, [=](const SheetGear& gear, int number) {
                         return above(number, Fixed(gear.afterNe, "0"));
                       }});
    if (sheet.hasStored) {
      columns.push_back(
          {words_.stored, false, [](const SheetGear& gear, int) { return Fixed(gear.stored); }});
      columns.push_back({words_.difference, false, [](const SheetGear& gear, int) {
                           return Fixed(gear.difference, "+#0.0;-#0.0;\\+-0");
                         }});
      columns.push_back({words_.deviation, false, [](const SheetGear& gear, int) {
                           return Fixed(gear.deviation, "+###;-###;\\+-0");
                         }});
    }
    return columns;
  }

  std::vector<Column> Parts(const PlanSheet& sheet) const {
    std::vector<Column> columns = {
        {words_.gear, true, [&](const SheetGear&, int number) { return GearTitle(words_, number); }},
        {words_.pair, true, [](const SheetGear& gear, int) { return gear.pair; }}};
    const bool hasParts = std::any_of(sheet.gears.begin(), sheet.gears.end(), [](const SheetGear& gear) {
      return !gear.main.empty() || !gear.counter.empty();
    });
    if (!hasParts) return columns;
    columns.push_back({words_.main, true, [](const SheetGear& gear, int) { return gear.main; }});
    columns.push_back({words_.counter, true, [](const SheetGear& gear, int) { return gear.counter; }});
    return columns;
  }

  /// What of the parts is no gear: name and text.
  std::vector<std::pair<std::string, std::string>> Ratios(const PlanSheet& sheet) const {
    return {{words_.final, sheet.final}, {words_.primary, sheet.primary}};
  }

  /// From 6th gear down, as the window and the report have it, and below that lines of two cells.
  void Table(const PlanSheet& sheet, const std::vector<Column>& columns,
             const std::vector<std::pair<std::string, std::string>>& below = {}) {
    out_ << "<table>\n<tr>";
    for (const Column& column : columns)
      out_ << (column.isText ? "<th class=\"text\">" : "<th>") << column.head << "</th>";
    out_ << "</tr>\n";
    for (int number = kGears; number >= 1; --number) {
      out_ << "<tr>";
      for (const Column& column : columns) {
        out_ << (column.isText ? "<td class=\"text\">" : "<td>")
             << MarkupText(column.cell(sheet.gears[static_cast<std::size_t>(number - 1)], number)) << "</td>";
      }
      out_ << "</tr>\n";
    }
    for (const auto& [name, text] : below) {
      out_ << "<tr><td class=\"text\">" << name << "</td><td class=\"text\">" << MarkupText(text)
           << "</td></tr>\n";
    }
    out_ << "</table>\n";
  }

  bool InJapanese() const { return &words_ == &JapaneseWords(); }

  void Notes(const PlanSheet& sheet) {
    const auto note = [&](const std::string& text) {
      out_ << "<p class=\"note\">" << MarkupText(text) << "</p>\n";
    };
    if (!InJapanese()) {
      for (const std::string& text : veldrin::Notes(sheet)) note(text);
      return;
    }
    if (sheet.excludedPair) {
      note("3速の" + sheet.gears[2].pair + "と4速の" + sheet.gears[3].pair + "は一緒に組めません");
    }
    for (const int gear : sheet.notFaster) {
      note(GearTitle(words_, gear) + "は" + GearTitle(words_, gear - 1) + "より速くありません");
    }
  }

  void Changes(const std::vector<PartChange>& changes) {
    out_ << "<p>" << words_.changes << ": ";
    const char* separator = "";
    for (const PartChange& change : changes) {
      std::string text = ChangeText(change);
      if (InJapanese()) {
        const std::string place = change.place == kPrimaryPlace ? words_.primary
                                  : change.place == kFinalPlace ? words_.final
                                                                : GearTitle(words_, change.place);
        text = place + ' ' + change.out + "→" + change.in;
      }
      out_ << separator << MarkupText(text);
      separator = "; ";
    }
    if (changes.empty()) out_ << words_.nothing;
    out_ << "</p>\n";
  }

  std::ostream& out_;
  const PageWords& words_;
};

}  // namespace

void WriteHtml(std::ostream& out, const PageWords& words, const std::vector<PlanSheet>& sheets,
               const TyreFit* tyre) {
  const std::string machine = MarkupText(sheets.front().machine);
  out << "<!DOCTYPE html>\n<html lang=\"" << words.language
      << "\">\n<head>\n<meta charset=\"utf-8\">\n<title>" << machine << ": "
      << MarkupText(sheets.front().title) << "</title>\n<style>\n"
      << kStyle << "</style>\n</head>\n<body>\n<h1>" << machine << "</h1>\n";
  WriteSvg(out, words, sheets, tyre);
  HtmlWriter html(out, words);
  for (const PlanSheet& sheet : sheets) html.Section(sheet);
  if (tyre != nullptr) html.Tyre(*tyre);
  out << "</body>\n</html>\n";
}

}  // namespace veldrin
