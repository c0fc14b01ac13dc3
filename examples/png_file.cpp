#include "png_file.h"

#include <png.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace demo {
namespace {

/// 256 MB with four channels. A larger picture is more likely a damaged header.
constexpr int64_t maxPixels = int64_t{1} << 26;

struct CloseFile {
  void operator()(FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

/// libpng's own record of a picture; what it holds while it reads or writes is freed on every way out.
struct Png : png_image {
  Png() : png_image{} { version = PNG_IMAGE_VERSION; }
  Png(const Png&) = delete;
  Png& operator=(const Png&) = delete;
  ~Png() { png_image_free(this); }
};

[[noreturn]] void fail(const char* what, const std::string& path, const std::string& why) {
  throw Failure(std::string("cannot ") + what + " " + path + ": " + why);
}

File openForReading(const std::string& path) {
  if (std::filesystem::is_directory(path)) fail("read", path, "it is a folder");
  File file(std::fopen(path.c_str(), "rb"));
  if (!file) fail("read", path, std::strerror(errno));
  const int first = std::fgetc(file.get());
  if (first == EOF) fail("read", path, std::ferror(file.get()) ? std::strerror(errno) : "the file is empty");
  std::ungetc(first, file.get());
  return file;
}

[[noreturn]] void failReading(const std::string& path, const Png& png, FILE* file) {
  fail("read", path, std::feof(file) ? "the file ends too early" : png.message);
}

int channelsFor(png_uint_32 format) {
  if (format & PNG_FORMAT_FLAG_ALPHA) return 4;
  return format & PNG_FORMAT_FLAG_COLOR ? 3 : 1;
}

png_uint_32 formatFor(int channels) {
  return channels == 1 ? PNG_FORMAT_GRAY : channels == 3 ? PNG_FORMAT_RGB : PNG_FORMAT_RGBA;
}

}  // namespace

Image8u readPng(const std::string& path) {
  const File file = openForReading(path);
  Png png;
  if (!png_image_begin_read_from_stdio(&png, file.get())) failReading(path, png, file.get());
  const VemiSize size = {static_cast<int>(png.width), static_cast<int>(png.height)};
  if (int64_t{size.width} * size.height > maxPixels) {
    fail("read", path, "it declares " + toText(size) + " pixels, more than the demo takes");
  }

  Image8u image(size, channelsFor(png.format));
  png.flags |= PNG_IMAGE_FLAG_16BIT_sRGB;  // otherwise 16 bits mean linear light
  png.format = formatFor(image.channels());
  const png_color black = {0, 0, 0};  // unused: alpha stays a channel wherever there is one
  if (!png_image_finish_read(&png, &black, image.data(), image.step(), nullptr)) failReading(path, png, file.get());
  return image;
}

void writePng(const Image8u& image, const std::string& path) {
  Png png;
  png.width = static_cast<png_uint_32>(image.width());
  png.height = static_cast<png_uint_32>(image.height());
  png.format = formatFor(image.channels());
  if (!png_image_write_to_file(&png, path.c_str(), 0, image.data(), image.step(), nullptr)) {
    fail("write", path, png.message);
  }
}

}  // namespace demo
