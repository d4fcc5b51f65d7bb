#pragma once

#include <QPrinter>
#include <string>
#include <vector>

#include "reports/ui/compose.h"

namespace korvin {

/// The numbers of those of `all` pages, from 1, that the user asked the printer for, in the order in which
/// they are to be put on it, copies that the printer can't make itself included.
std::vector<int> wantedPages(const QPrinter& printer, int all);

/// Hands the wanted pages to the printer under the name `titel`. Throws `DeviceRefused`.
void handOver(QPrinter& printer, const std::string& titel, const std::vector<PageMarks>& pages,
              TextShaper& shaper, const PageWatch& watch);

}  // namespace korvin
