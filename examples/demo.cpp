// vemi_demo [IMAGE.png] [--out FOLDER]: runs the library on a picture and writes a page that shows what came out.

#include "demo.h"

#include <cstdio>
#include <exception>
#include <optional>
#include <string>

#include "png_file.h"
#include "prepare.h"
#include "scene.h"

namespace demo {
namespace {

constexpr const char* usage = "usage: vemi_demo [IMAGE.png] [--out FOLDER]";

struct Options {
  std::optional<std::string> picture;
  std::string folder = "vemi-demo";
  bool help = false;
};

struct Section {
  const char* title;
  const char* text;
  void (*show)(const Demo& demo);
};

constexpr Section sections[] = {
    {"Memory, regions, steps",
     "An image is a pointer, a step in bytes and a size in pixels. vemiMalloc gives rows that begin on 32-byte "
     "boundaries, but memory and step may be anything.",
     demoMemory},
    {"Statuses",
     "Each call returns a status, and nothing else reports. All arguments are tested before anything is written.",
     demoStatus},
    {"Channels and planes", "Copies between interleaved channels, single channels and separate planes.", demoChannels},
    {"Fills and masks", "Constants and copies, on a region, on one channel, or only where a mask is not zero.",
     demoFill},
    {"Borders", "Filters read around their region; these copies make the pixels that they read there.", demoBorder},
    {"Adding",
     "Sums of two images, or of an image and a constant. The exact sum is multiplied by 2 to the power of minus the "
     "scale factor, rounded, and limited to the range of the type.",
     demoAdd},
    {"Differences and gain",
     "vemiSub takes its first source off the second and stops at 0 in 8 bits; vemiMulC and vemiDiv change brightness "
     "by factors, which the scale factor turns into fractions.",
     demoGain},
    {"Curves and blends",
     "Squares, roots, logarithms and exponentials of each element, absolute values, and products on the full scale, "
     "where 255 is one.",
     demoCurves},
    {"Bits",
     "And, or, exclusive or, not, and shifts. Nothing is rounded or limited: bits that are shifted out are gone.",
     demoBits},
    {"Alpha",
     "Pictures with transparency laid over each other in six ways. Results are premultiplied: colours that have been "
     "multiplied by their alpha.",
     demoAlpha},
    {"Thresholds and comparisons",
     "Elements below or above a threshold are replaced, by a rule for each channel. Comparisons make maps of one byte "
     "for each pixel, 255 or 0, which are masks for what follows.",
     demoThreshold},
    {"Other element types",
     "vemiConvert keeps the values and limits them to the new type, vemiScale spreads the range of one type over the "
     "other's. One bit for each pixel makes a picture of dots.",
     demoDepth},
    {"Lookup tables",
     "Steps, lines and cubics through points of your choice; palettes; and the transfer curve of video. What costs is "
     "the table, not the curve.",
     demoTables},
    {"Colours as the eye has them",
     "Hue, saturation and lightness, and the models of the CIE: each channel of the picture by itself, and what can be "
     "done with it.",
     demoPerceptual},
    {"Statistics",
     "Numbers out of a picture, one for each channel. Integer sums are exact at any size; extremes tell where they are "
     "met first.",
     demoStatistics},
    {"Histograms and moments",
     "Numbers out of a picture: how many pixels lie between levels, and where their values are gathered.", demoCounts},
    {"Patterns, noise, windows",
     "Images out of numbers: ramps and a chirp to test with, noise that a seed repeats to the bit, and windows that "
     "let a picture fade towards its rim.",
     demoGenerate},
    {"Luma and chroma",
     "Brightness apart from colour: two models of video, and what is left when pixels share their colour.", demoLuma},
    {"Colour twists",
     "Each channel of the result is a weighted sum of all three and a constant: a matrix of your own, on integers or "
     "floats.",
     demoTwist},
    {"Video layouts, orders, grey",
     "Pixels of video share chroma. Between its layouts samples are dropped and repeated, or filtered where the name "
     "says so. Channels change places, or become one.",
     demoVideo},
    {"Sixteen bits a pixel",
     "Video frames as words of 565, 555 or 444 bits for displays. Fewer levels show as bands; ordered dither breaks "
     "them up.",
     demoPacked},
    {"Few levels, and how alike pictures are",
     "A few grey levels by the nearest one, by noise, by a pattern and by error diffusion; and the quality index, "
     "which says how much of a picture is left, from 1 for all of it to 0 for nothing.",
     demoLevels},
    {"Templates, and convolution of pictures",
     "Where is the ball? A template is laid over each place, and each is told how well it matches. And what a picture "
     "becomes when each of its pixels spreads out as another picture does.",
     demoMatch},
    {"Box blurs",
     "The mean of a rectangle around each pixel, in the same time for any rectangle. Filters extend no image: the "
     "source has a border, made by vemiCopyReplicateBorder.",
     demoBox},
    {"Erosion and dilation",
     "The least or the greatest pixel of a shape around each pixel, which a mask of bytes selects.", demoMorphology},
    {"Medians and extremes",
     "The value in the middle of those around each pixel, or the least or greatest of them: nothing is computed, one "
     "of "
     "the values that are there is chosen.",
     demoRanks},
    {"Edges, sharpening, Gauss",
     "Filters with fixed kernels of three by three or five by five pixels. Slopes have a sign, which 16-bit results "
     "keep; here middle grey is no slope.",
     demoEdges},
    {"Kernels of one's own, and noise",
     "Any kernel of integers or floats, flipped as a convolution wants it; and a filter that takes noise out where "
     "there "
     "is nothing else.",
     demoKernels},
    {"Spectra",
     "The fast Fourier transform tells what waves a picture is made of, packed into as many numbers as it has pixels. "
     "What is taken away there is missing when it goes back.",
     demoFft},
    {"Cosines",
     "Blocks of eight by eight pixels as sums of cosines: few of them make most of the picture, which is how codecs "
     "save "
     "space. Integers all the way, the same to the bit everywhere.",
     demoDct},
    {"Wavelets",
     "Each level splits a picture into a smaller one and what that lacks: differences between neighbouring columns, "
     "between rows, and between both. The filters are the user's; here they are those of the 5/3 wavelet.",
     demoWavelet},
    {"Another size",
     "Enlarged by four interpolations, reduced by means: the same call gives the same pixels on every processor.",
     demoResize},
    {"Bent, straightened, mirrored",
     "Each pixel comes from where two maps say, or from a place in a quadrangle: a lens, a page seen from the side, "
     "and "
     "straight again.",
     demoBent},
    {"Turned, sheared, on parallelograms",
     "Affine maps take each pixel to another place. The destination's pixels are fetched from between those of the "
     "source; by quarter turns they are copied.",
     demoAffine},
};

Options optionsFrom(int argc, char** argv) {
  Options options;
  for (int n = 1; n < argc; n++) {
    const std::string argument = argv[n];
    if (argument == "--help" || argument == "-h") {
      options.help = true;
    } else if (argument == "--out") {
      if (++n == argc) throw Failure("--out needs a folder");
      options.folder = argv[n];
    } else if (argument.size() > 1 && argument[0] == '-') {
      throw Failure("unknown option " + argument + "; " + usage);
    } else if (options.picture) {
      throw Failure("one picture at a time, not both " + *options.picture + " and " + argument);
    } else {
      options.picture = argument;
    }
  }
  return options;
}

Image8u withoutAlpha(const Image8u& rgba) {
  Image8u rgb(rgba.size(), 3);
  CALL(vemiCopy_8u_AC4C3R(rgba.data(), rgba.step(), rgb.data(), rgb.step(), rgba.size()));
  return rgb;
}

void showPicture(const Image8u& rgba, const std::string& origin, Page& page) {
  page.lead(std::string("Image-processing primitives behind a flat C interface, ") + vemiGetLibVersion()->Version +
            ". Each picture stands beside the calls that made it.");
  page.section("The picture", origin + "; here " + toText(rgba.size()) + " pixels.");
  page.show(rgba, "What the others start from",
            "In the calls, photo is this picture with three channels, and rgba has a fourth, alpha. The library takes "
            "an image as a pointer, a step in bytes and a size in pixels, which are data(), step() and size() here; "
            "at(x, y) is the pointer to the pixel in column x of row y. Names of functions end in the type, the layout "
            "of the channels, and the shape of the call: 8u_C3R is a region of three interleaved 8-bit channels.",
            {});
}

void run(const Options& options) {
  const Image8u original = options.picture ? readPng(*options.picture) : drawScene();
  const std::string origin = (options.picture ? *options.picture : "A scene drawn with the library's own calls") +
                             ", " + toText(original.size()) + ", channels: " + std::to_string(original.channels());
  std::printf("%s\n", origin.c_str());

  const Image8u rgba = prepare(original);
  const Image8u photo = withoutAlpha(rgba);
  Page page(options.folder);
  showPicture(rgba, origin, page);
  for (const Section& section : sections) {
    std::printf("  %s\n", section.title);
    std::fflush(stdout);
    page.section(section.title, section.text);
    section.show({rgba, photo, page});
  }
  const std::string index = page.write().string();
  std::printf("%d pictures; open %s\n", page.pictures(), index.c_str());
}

}  // namespace
}  // namespace demo

int main(int argc, char** argv) {
  try {
    const demo::Options options = demo::optionsFrom(argc, argv);
    if (options.help) {
      std::printf("%s\nWithout a picture it draws one. The page goes to %s/index.html.\n", demo::usage,
                  options.folder.c_str());
      return 0;
    }
    demo::run(options);
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "vemi_demo: %s\n", failure.what());
    return 1;
  }
}
