#pragma once

#include <string>
#include <string_view>

#include "frame/dictionary.h"

namespace korvin {

/// True if `text` holds nothing but blanks.
bool istLeerText(std::string_view text);

/// The number of an entered or stored text, read leniently; what is no finite number is 0: a record that
/// holds it could be saved but not be read.
double endlicheZahl(std::string_view text);

/// Tells how an unchecked entry `text` is read, as `gelesen`, if that is not what it looks like: "Is read as:
/// 0". Empty for plain numbers and blank texts.
std::string zahlHinweis(const std::string& text, double gelesen, Dictionary& dictionary);

}  // namespace korvin
