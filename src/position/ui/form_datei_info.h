#pragma once

#include "frame/ui/form_datei_info.h"  // IWYU pragma: export
