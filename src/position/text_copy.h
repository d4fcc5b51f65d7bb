#pragma once

#include <string>

#include "frame/dictionary.h"
#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// The text copy of a position measurement: head lines, then one line a point, parted by tabs. UTF-8, lines
/// end with
/// "\r\n"; `textkopieBytes` gives the bytes of the file. The heading reads "[mm]" in the inch system too,
/// where the numbers are mil: readers of earlier copies rely on it. An empty value reads "?.?", a level
/// without a measuring time has no line of the filter.
std::string positionTextCopy(const PositionsInfo& info, const PointStore& points, Dictionary& dictionary);

}  // namespace korvin
