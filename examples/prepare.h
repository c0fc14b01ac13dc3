// From a picture of any size and kind to the one that the demo works on.
#pragma once

#include "image.h"

namespace demo {

/// The picture with four channels and 64 to 480 pixels in either direction: halved as often as it takes, cut where it
/// is a single row or column, repeated where it is too small. Without alpha it becomes opaque.
Image8u prepare(const Image8u& picture);

/// Half as wide and half as high; four channels.
Image8u halved(const Image8u& picture);

}  // namespace demo
