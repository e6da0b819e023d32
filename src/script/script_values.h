// Words of a script as values. All of these throw ScriptError for a word that does not fit.
#pragma once

#include "platform/colour.h"

#include <cstdint>
#include <string>

namespace veldrin {

/// A whole number within the limits.
std::int64_t WholeNumber(const std::string& word, std::int64_t least, std::int64_t most);
int IntNumber(const std::string& word);

/// Any number, with a point before its decimals.
double Number(const std::string& word);
float SingleNumber(const std::string& word);

/// True or False.
bool TrueOrFalse(const std::string& word);

/// R,G,B.
Colour ColourOf(const std::string& word);

}  // namespace veldrin
