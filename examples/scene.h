// A picture for those who have none at hand, drawn with the library's own calls.
#pragma once

#include "image.h"

namespace demo {

/// Three channels. It is drawn large, with hard edges; halving it twice makes the edges smooth.
Image8u drawScene();

}  // namespace demo
