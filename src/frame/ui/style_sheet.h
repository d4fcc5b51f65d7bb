#pragma once

#include <QString>

namespace korvin {

/// The style sheet of all windows, in the colours and sizes of the present palette and font.
QString styleSheet();

}  // namespace korvin
