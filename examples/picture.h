/* What the examples share: PNG files by libpng, and an end with a line of text where something fails. */
#ifndef PICTURE_H
#define PICTURE_H

#include <png.h>
#include <stdio.h>
#include <stdlib.h>
#include <vemi/vemi.h>

static inline void fail(const char* what, const char* why) {
  fprintf(stderr, "%s: %s\n", what, why);
  exit(1);
}

/* Errors are negative. A block that vemiMalloc could not give is found by the next call: vemiErrNullPtr. */
static inline void checked(const char* call, VemiStatus status) {
  char why[32];
  snprintf(why, sizeof why, "status %d", status);
  if (status < vemiOk) fail(call, why);
}
#define CHECK(call) checked(#call, call)

/* One channel (grey) or three (red, green, blue), whatever the file has; vemiFree gives them back. */
static inline Vemi8u* readPng(const char* path, int channels, VemiSize* size, int* step) {
  png_image png = {.version = PNG_IMAGE_VERSION};
  const png_color black = {0, 0, 0};
  if (!png_image_begin_read_from_file(&png, path)) fail(path, png.message);
  png.format = channels == 1 ? PNG_FORMAT_GRAY : PNG_FORMAT_RGB;
  size->width = (int)png.width;
  size->height = (int)png.height;
  Vemi8u* const pixels = channels == 1 ? vemiMalloc_8u_C1(*size, step) : vemiMalloc_8u_C3(*size, step);
  if (pixels == NULL) fail(path, "too large");
  if (!png_image_finish_read(&png, &black, pixels, *step, NULL)) fail(path, png.message);
  return pixels;
}

static inline void writePng(const char* path, int channels, const Vemi8u* pixels, int step, VemiSize size) {
  png_image png = {.version = PNG_IMAGE_VERSION};
  png.format = channels == 1 ? PNG_FORMAT_GRAY : PNG_FORMAT_RGB;
  png.width = (png_uint_32)size.width;
  png.height = (png_uint_32)size.height;
  if (!png_image_write_to_file(&png, path, 0, pixels, step, NULL)) fail(path, png.message);
}

#endif
