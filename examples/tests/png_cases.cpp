// png_cases FOLDER: writes a small PNG of every kind into the folder, reads each through readPng, and compares all
// pixels. The files stay for the demo to run on, beside pictures of unusual proportions. One more file declares a size
// that nobody could hold.

#include <png.h>

#include <cstdio>
#include <string>
#include <vector>

#include "../png_file.h"

namespace {

constexpr VemiSize size = {70, 66};

struct Case {
  const char* name;
  int colourType, depth, interlace;
  bool transparency;  // palettes: with a tRNS chunk
  int channels;       // as readPng gives them
};

constexpr Case cases[] = {
    {"grey1", PNG_COLOR_TYPE_GRAY, 1, PNG_INTERLACE_NONE, false, 1},
    {"grey8", PNG_COLOR_TYPE_GRAY, 8, PNG_INTERLACE_NONE, false, 1},
    {"grey16", PNG_COLOR_TYPE_GRAY, 16, PNG_INTERLACE_NONE, false, 1},
    {"greyAlpha8", PNG_COLOR_TYPE_GRAY_ALPHA, 8, PNG_INTERLACE_NONE, false, 4},
    {"rgb8", PNG_COLOR_TYPE_RGB, 8, PNG_INTERLACE_NONE, false, 3},
    {"rgb16", PNG_COLOR_TYPE_RGB, 16, PNG_INTERLACE_NONE, false, 3},
    {"rgbInterlaced", PNG_COLOR_TYPE_RGB, 8, PNG_INTERLACE_ADAM7, false, 3},
    {"rgba8", PNG_COLOR_TYPE_RGBA, 8, PNG_INTERLACE_NONE, false, 4},
    {"rgba16", PNG_COLOR_TYPE_RGBA, 16, PNG_INTERLACE_NONE, false, 4},
    {"palette", PNG_COLOR_TYPE_PALETTE, 8, PNG_INTERLACE_NONE, false, 3},
    {"paletteAlpha", PNG_COLOR_TYPE_PALETTE, 8, PNG_INTERLACE_NONE, true, 4},
};

/// Sample `channel` of a pixel as it stands in the file, in 8 bits.
int sample(const Case& c, int x, int y, int channel) {
  if (c.depth == 1) return (x / 3 + y) % 2;
  return (3 * x + 5 * y + 40 * channel) % 256;
}

int samplesPerPixel(const Case& c) {
  switch (c.colourType) {
    case PNG_COLOR_TYPE_RGB:
      return 3;
    case PNG_COLOR_TYPE_RGBA:
      return 4;
    case PNG_COLOR_TYPE_GRAY_ALPHA:
      return 2;
    default:
      return 1;
  }
}

int paletteValue(int index, int channel) { return (index * (2 * channel + 1) + 60 * channel) % 256; }

/// What readPng has to give.
int expected(const Case& c, int x, int y, int channel) {
  switch (c.colourType) {
    case PNG_COLOR_TYPE_PALETTE:
      return paletteValue(sample(c, x, y, 0), channel);
    case PNG_COLOR_TYPE_GRAY_ALPHA:
      return sample(c, x, y, channel == 3 ? 1 : 0);
    default:
      return c.depth == 1 ? 255 * sample(c, x, y, 0) : sample(c, x, y, channel);
  }
}

/// Errors of libpng abort the program: nothing here may fail.
struct Writer {
  explicit Writer(const std::string& path)
      : file(std::fopen(path.c_str(), "wb")),
        png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr)),
        info(png_create_info_struct(png)) {
    if (!file) throw demo::Failure("cannot write " + path);
    png_init_io(png, file);
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  ~Writer() {
    png_destroy_write_struct(&png, &info);
    std::fclose(file);
  }
  void header(png_uint_32 width, png_uint_32 height, int depth, int colourType, int interlace) {
    png_set_IHDR(png, info, width, height, depth, colourType, interlace, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
  }

  FILE* file;
  png_structp png;
  png_infop info;
};

void setPalette(Writer& writer, bool transparency) {
  png_color colours[256];
  png_byte alpha[256];
  for (int n = 0; n < 256; n++) {
    colours[n] = {static_cast<png_byte>(paletteValue(n, 0)), static_cast<png_byte>(paletteValue(n, 1)),
                  static_cast<png_byte>(paletteValue(n, 2))};
    alpha[n] = static_cast<png_byte>(paletteValue(n, 3));
  }
  png_set_PLTE(writer.png, writer.info, colours, 256);
  if (transparency) png_set_tRNS(writer.png, writer.info, alpha, 256, nullptr);
}

void writeCase(const Case& c, const std::string& path) {
  const int bytes = c.depth == 16 ? 2 : 1;
  std::vector<std::vector<png_byte>> rows(size.height);
  std::vector<png_bytep> pointers;
  for (int y = 0; y < size.height; y++) {
    for (int x = 0; x < size.width; x++) {
      for (int n = 0; n < samplesPerPixel(c) * bytes; n++) {
        rows[y].push_back(static_cast<png_byte>(sample(c, x, y, n / bytes)));  // 16 bits: v * 257
      }
    }
    pointers.push_back(rows[y].data());
  }
  Writer writer(path);
  writer.header(size.width, size.height, c.depth, c.colourType, c.interlace);
  if (c.colourType == PNG_COLOR_TYPE_PALETTE) setPalette(writer, c.transparency);
  png_write_info(writer.png, writer.info);
  png_set_packing(writer.png);
  png_write_image(writer.png, pointers.data());
  png_write_end(writer.png, writer.info);
}

void writeShapes(const std::string& folder) {
  for (const VemiSize shape : {VemiSize{1, 1}, {479, 64}, {64, 479}, {3000, 2}, {1, 3000}, {1281, 5}}) {
    demo::Image8u image(shape, 3);
    const Vemi8u colour[3] = {90, 160, 30};
    CALL(vemiSet_8u_C3R(colour, image.data(), image.step(), shape));
    demo::writePng(image, folder + std::to_string(shape.width) + "x" + std::to_string(shape.height) + ".png");
  }
}

void writeHuge(const std::string& path) {
  Writer writer(path);
  writer.header(100000, 100000, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE);
  png_write_info(writer.png, writer.info);
  png_write_chunk(writer.png, reinterpret_cast<png_const_bytep>("IDAT"), reinterpret_cast<png_const_bytep>("x"), 1);
}

void check(const Case& c, const demo::Image8u& image) {
  const std::string name = c.name;
  if (image.channels() != c.channels) throw demo::Failure(name + ": channels " + std::to_string(image.channels()));
  if (image.width() != size.width || image.height() != size.height) throw demo::Failure(name + ": size");
  for (int y = 0; y < size.height; y++) {
    for (int x = 0; x < size.width; x++) {
      for (int channel = 0; channel < c.channels; channel++) {
        const int value = image.at(x, y)[channel];
        if (value == expected(c, x, y, channel)) continue;
        throw demo::Failure(name + ": channel " + std::to_string(channel) + " at " + std::to_string(x) + ", " +
                            std::to_string(y) + " is " + std::to_string(value) + ", not " +
                            std::to_string(expected(c, x, y, channel)));
      }
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string folder = std::string(argv[1]) + "/";
  try {
    for (const Case& c : cases) {
      const std::string path = folder + c.name + ".png", again = folder + c.name + "-again.png";
      writeCase(c, path);
      const demo::Image8u image = demo::readPng(path);
      check(c, image);
      demo::writePng(image, again);
      check(c, demo::readPng(again));
      std::remove(again.c_str());
    }
    writeShapes(folder);
    writeHuge(folder + "huge");
  } catch (const demo::Failure& failure) {
    std::fprintf(stderr, "png_cases: %s\n", failure.what());
    return 1;
  }
  return 0;
}
