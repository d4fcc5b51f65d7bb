#pragma once

#include <string>

namespace korvin::tour {

/// Settles on which screen the windows appear; to be called before the application is made. Without a display
/// it is one in memory, with 1280 by 1024 pixels, whose description is written into `folder`.
void choosePlatform(const std::string& folder);

}  // namespace korvin::tour
