#include "plan/page/page_output.h"

namespace veldrin {

std::string MarkupText(const std::string& text) {
  std::string markup;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '&':
        markup += "&amp;";
        break;
      case '<':
        markup += "&lt;";
        break;
      case '>':
        markup += "&gt;";
        break;
      case '"':
        markup += "&quot;";
        break;
      default:
        markup += byte < 0x20 && c != '\n' && c != '\t' ? '?' : c;
    }
  }
  return markup;
}

void WritePage(std::ostream& out, bool html, bool japanese, const std::vector<PlanSheet>& sheets,
               const TyreFit* tyre) {
  if (sheets.empty()) return;
  const PageWords& words = japanese ? JapaneseWords() : EnglishWords();
  if (html) {
    WriteHtml(out, words, sheets, tyre);
  } else {
    WriteSvg(out, words, sheets, tyre);
  }
}

}  // namespace veldrin
