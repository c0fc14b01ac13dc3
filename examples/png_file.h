// PNG files as images of 8 bits a channel, through libpng.
#pragma once

#include <string>

#include "image.h"

namespace demo {

/// One channel for grey files, three for colour and palettes, four where the file has alpha; 16-bit files are reduced.
/// Throws Failure, with the file's name and the reason, if there is no such picture.
Image8u readPng(const std::string& path);

/// Writes an image of one (grey), three (RGB) or four (RGBA) channels; throws Failure if it cannot.
void writePng(const Image8u& image, const std::string& path);

}  // namespace demo
