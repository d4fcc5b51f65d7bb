#pragma once

#include <QWidget>
#include <string>

namespace korvin {

/// Lets the user choose a folder, from `anfang` on; if that isn't there, from the folder above it that is.
/// The chosen one with a separator at its end, UTF-8; empty after Cancel.
std::string ordnerErfragen(QWidget* parent, const std::string& titel, const std::string& anfang);

}  // namespace korvin
