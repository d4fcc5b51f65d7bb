#pragma once

#include <string>
#include <string_view>

#include "frame/file_dialog.h"

namespace korvin {

/// `name` with the extension of its kind. `filter` are pairs of a text and a pattern, separated by '|', or
/// one pattern alone; the first extension in it is the one that is appended. A name stands as it is if it
/// ends in any extension of the filter (no difference between capital and small letters), if the first
/// extension is a wildcard, or if it is empty. A name with another extension keeps it and gets the kind's
/// behind: "a.txt" becomes "a.txt.O".
std::string vervollstaendigterName(std::string_view name, std::string_view filter);

/// Asks for a file, starting in `ordner`; `oeffnen` false asks for the name of a file to be saved.
/// `vorschlag`, a name without folder, stands in the entry at the start. An empty filter becomes "*.*", an
/// empty title "Dateiauswahl". The result is the chosen path, completed as above, or the empty text
/// after Cancel. The name of a file to be opened stands as it is if there is such a file.
std::string dateiErfragen(FileDialog& dialog, std::string_view ordner, std::string_view filter,
                          std::string_view titel, bool oeffnen, std::string_view vorschlag = {});

}  // namespace korvin
