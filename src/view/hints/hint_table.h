// Hints: what a control shows or does, and in which unit. Each window has a table of them beside its
// description, keyed by the window's own members, so that a control that is not there does not compile.
//
// In a text, {gear} and {next} stand for the gear of an element of a control array and for the one above,
// "6th" or 「6 速」, and {n} for the subscript itself.
#pragma once

#include "view/control_array.h"

#include <concepts>
#include <functional>
#include <vector>

namespace veldrin {

/// A hint, and whose it is: that of a control, of a whole array, or of one element; of several rows for the
/// same control the first counts.
struct HintRow {
  template <class Form, std::derived_from<Control> Kind>
  HintRow(Kind Form::*control, const char* inEnglish, const char* inJapanese)
      : HintRow(inEnglish, inJapanese, [=](const Window& window, int) -> const Control* {
          return &(static_cast<const Form&>(window).*control);
        }) {}

  template <class Form, class Kind>
  HintRow(ControlArray<Kind> Form::*array, const char* inEnglish, const char* inJapanese)
      : HintRow(inEnglish, inJapanese, [=](const Window& window, int index) -> const Control* {
          const auto& elements = static_cast<const Form&>(window).*array;
          return elements.Has(index) ? &elements[index] : nullptr;
        }) {}

  template <class Form, class Kind>
  HintRow(ControlArray<Kind> Form::*array, int only, const char* inEnglish, const char* inJapanese)
      : HintRow(inEnglish, inJapanese, [=](const Window& window, int index) -> const Control* {
          const auto& elements = static_cast<const Form&>(window).*array;
          return index == only && elements.Has(index) ? &elements[index] : nullptr;
        }) {}

  const char* english;
  const char* japanese;
  /// The control of the window that the hint is for, where its subscript is this one; null for none.
  std::function<const Control*(const Window& window, int index)> element;

 private:
  HintRow(const char* inEnglish, const char* inJapanese,
          std::function<const Control*(const Window&, int)> theElement)
      : english(inEnglish), japanese(inJapanese), element(std::move(theElement)) {}
};

using HintRows = std::vector<HintRow>;

// The tables, in the order of the screen. That of the main window is in three parts: what stands in the
// window itself, the columns of the gears, and the menus.
const HintRows& HintsOfForm1();
const HintRows& HintsOfForm2();
const HintRows& GearHintsOfForm2();
const HintRows& MenuHintsOfForm2();
const HintRows& HintsOfForm3();
const HintRows& HintsOfForm4();
const HintRows& HintsOfForm5();
const HintRows& HintsOfForm7();
const HintRows& HintsOfForm9();
const HintRows& HintsOfForm10();

}  // namespace veldrin
